#include "VCM/VcmTypes/InputDate.h"

#include "Host/HostCalendar.h"

namespace vcm {

double inputDateToDs50(const InputDate& date) {
  std::int32_t year = date.year;  // a copy: the host may adjust it
  return tcomps2utc(&date.dayOfYear, &date.hour, &date.minute, &date.seconds, &year);
}

}  // namespace vcm
