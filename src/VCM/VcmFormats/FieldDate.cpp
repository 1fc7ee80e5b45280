#include "VCM/VcmFormats/FieldDate.h"

#include <cmath>

#include "Host/HostCalendar.h"
#include "VCM/VcmFormats/Field.h"

namespace vcm {

namespace {

// The parts of the date, by their columns.
constexpr Column kYear{1};
constexpr Column kDayOfYear{5};
constexpr Column kHour{8};
constexpr Column kMinute{10};
constexpr Column kSeconds{12};
constexpr Column kFraction{14};
constexpr int kFractionWidth = 4;
constexpr int kDecimals = 3;
constexpr int kSecondsWidth = 6;

// The date with its seconds split into whole ones and a fraction of less than one when rounded to
// three decimals.
struct SplitDate {
  explicit SplitDate(const InputDate& given)
      : date(given), whole(std::trunc(date.seconds)), fraction(date.seconds - whole) {
    constexpr double kRoundsUp = 0.9995;
    constexpr double kSecondsInMinute = 60.0;
    if (fraction >= kRoundsUp) {
      fraction = 0.0;
      whole += 1.0;
      if (whole == kSecondsInMinute) {
        whole = 0.0;
        addMinute();
      }
    }
  }

  InputDate date;
  double whole;
  double fraction;

 private:
  void addMinute() {
    const int daysInYear = hleap(&date.year) != 0 ? 366 : 365;
    if (++date.minute == 60) {
      date.minute = 0;
      if (++date.hour == 24) {
        date.hour = 0;
        if (++date.dayOfYear > daysInYear) {
          date.dayOfYear = 1;
          ++date.year;
        }
      }
    }
  }
};

}  // namespace

void writeFieldDate(const InputDate& date, char* out) {
  const SplitDate split(date);
  const auto at = [out](Column column) { return out + column.index(); };
  writeZeroFilled<4>(at(kYear), split.date.year);
  writeZeroFilled<3>(at(kDayOfYear), split.date.dayOfYear);
  writeZeroFilled<2>(at(kHour), split.date.hour);
  writeZeroFilled<2>(at(kMinute), split.date.minute);
  writeZeroFilled<2>(at(kSeconds), truncated(split.whole));
  writeFixed(at(kFraction), kFractionWidth, kDecimals, split.fraction);
}

bool readFieldDate(std::string_view text, InputDate& date) {
  InputDate read;
  const bool whole = readInteger<4>(columnsOf(text, kYear, 4), read.year) &&
                     readInteger<3>(columnsOf(text, kDayOfYear, 3), read.dayOfYear) &&
                     readInteger<2>(columnsOf(text, kHour, 2), read.hour) &&
                     readInteger<2>(columnsOf(text, kMinute, 2), read.minute) &&
                     readReal(columnsOf(text, kSeconds, kSecondsWidth), kDecimals, read.seconds);
  if (whole) {
    date = read;
  }
  return whole;
}

}  // namespace vcm
