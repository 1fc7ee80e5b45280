// Dates of the proleptic Gregorian calendar and days since 1950.
//
// Nothing a caller passes overflows: days and seconds are counted in 64 bits, and a double becomes
// an integer only after its range is known.
#include <array>
#include <cmath>

#include "Gregorian.h"
#include "Host/HostCalendar.h"

using namespace hostcalendar;

namespace {

constexpr double kSecondsPerDay = 86400.0;
constexpr std::int64_t kMicrosecondsPerSecond = 1'000'000;
constexpr std::int64_t kMicrosecondsPerMinute = 60 * kMicrosecondsPerSecond;
constexpr std::int64_t kMicrosecondsPerHour = 60 * kMicrosecondsPerMinute;
constexpr std::int64_t kMicrosecondsPerDay = 24 * kMicrosecondsPerHour;

constexpr std::array<std::int32_t, 12> kDaysBeforeMonth{0,   31,  59,  90,  120, 151,
                                                        181, 212, 243, 273, 304, 334};

}  // namespace

std::int32_t hleap(const std::int32_t* year) { return isLeap(*year) ? 1 : 0; }

std::int32_t fixyr(const std::int32_t* year) {
  // No satellite flew before 1957.
  constexpr std::int32_t kFirstOfLastCentury = 57;
  if (*year < 0 || *year > 99) {
    return *year;
  }
  return *year + (*year >= kFirstOfLastCentury ? 1900 : 2000);
}

double tcomps2utc(const std::int32_t* dayOfYear, const std::int32_t* hour,
                  const std::int32_t* minute, const double* seconds, std::int32_t* year) {
  *year = fixyr(year);
  const std::int64_t day = daysBefore(*year) + *dayOfYear;
  const std::int64_t wholeMinutes = std::int64_t{60} * *hour + *minute;
  const double secondsOfDay = static_cast<double>(60 * wholeMinutes) + *seconds;
  return static_cast<double>(day) + secondsOfDay / kSecondsPerDay;
}

void dyklok(const double* ds50Utc, std::int32_t* year, std::int32_t* dayOfYear, std::int32_t* hour,
            std::int32_t* minute, double* seconds) {
  *year = *dayOfYear = *hour = *minute = 0;
  *seconds = 0;
  // Written so that not-a-number fails it too. Just before the end a double resolves less than what
  // is rounded here, so nothing is carried past it.
  if (!(*ds50Utc >= kCalendarBegin && *ds50Utc < kCalendarEnd)) {
    return;
  }
  const double whole = std::floor(*ds50Utc);
  const std::int64_t microseconds =
      std::llround((*ds50Utc - whole) * static_cast<double>(kMicrosecondsPerDay));
  const std::int64_t day = static_cast<std::int64_t>(whole) + microseconds / kMicrosecondsPerDay;
  const std::int64_t ofDay = microseconds % kMicrosecondsPerDay;
  const std::int64_t dateYear = yearOf(day);
  *year = static_cast<std::int32_t>(dateYear);
  *dayOfYear = static_cast<std::int32_t>(day - daysBefore(dateYear));
  *hour = static_cast<std::int32_t>(ofDay / kMicrosecondsPerHour);
  *minute = static_cast<std::int32_t>(ofDay % kMicrosecondsPerHour / kMicrosecondsPerMinute);
  *seconds = static_cast<double>(ofDay % kMicrosecondsPerMinute) /
             static_cast<double>(kMicrosecondsPerSecond);
}

void jul2mmdd(const std::int32_t* year, const std::int32_t* dayOfYear, std::int32_t* month,
              std::int32_t* dayOfMonth) {
  const std::int32_t leapDay = isLeap(*year) ? 1 : 0;
  const auto daysBeforeMonth = [leapDay](std::size_t index) {
    return kDaysBeforeMonth[index] + (index >= 2 ? leapDay : 0);
  };
  std::size_t index = 0;
  while (index + 1 < kDaysBeforeMonth.size() && *dayOfYear > daysBeforeMonth(index + 1)) {
    ++index;
  }
  *month = static_cast<std::int32_t>(index + 1);
  *dayOfMonth = *dayOfYear - daysBeforeMonth(index);
}
