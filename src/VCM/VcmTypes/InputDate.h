#ifndef VCM_VCMTYPES_INPUTDATE_H
#define VCM_VCMTYPES_INPUTDATE_H

#include <cstdint>

namespace vcm {

// A moment in UTC, as a message states it.
struct InputDate {
  std::int32_t year = 0;       // four digits
  std::int32_t dayOfYear = 0;  // 1 to 366
  std::int32_t hour = 0;
  std::int32_t minute = 0;
  double seconds = 0.0;  // of the minute, with fraction

  friend bool operator==(const InputDate&, const InputDate&) = default;
};

// The date as days since 1950 UTC.
double inputDateToDs50(const InputDate& date);

}  // namespace vcm

#endif
