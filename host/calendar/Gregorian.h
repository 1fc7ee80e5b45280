// The proleptic Gregorian calendar in whole days, in 64 bits so that no year a caller gives
// overflows.
#ifndef HOST_CALENDAR_GREGORIAN_H
#define HOST_CALENDAR_GREGORIAN_H

#include <cstdint>

namespace hostcalendar {

inline constexpr std::int64_t kFirstYear = 1;
inline constexpr std::int64_t kLastYear = 9999;

constexpr bool isLeap(std::int64_t year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

// Rounds down, for a positive divisor.
constexpr std::int64_t floorDivide(std::int64_t value, std::int64_t divisor) {
  return value / divisor - (value % divisor < 0 ? 1 : 0);
}

constexpr std::int64_t daysSinceYear1(std::int64_t year) {
  const std::int64_t before = year - 1;
  return 365 * before + floorDivide(before, 4) - floorDivide(before, 100) +
         floorDivide(before, 400);
}

// Days since 1950 of the day before January 1: add the day of year.
constexpr std::int64_t daysBefore(std::int64_t year) {
  return daysSinceYear1(year) - daysSinceYear1(1950);
}
static_assert(daysBefore(1950) == 0 && daysBefore(2000) == 18262);

// The calendar's bounds as days since 1950: its first moment, and the one after its last.
inline constexpr auto kCalendarBegin = static_cast<double>(daysBefore(kFirstYear) + 1);
inline constexpr auto kCalendarEnd = static_cast<double>(daysBefore(kLastYear + 1) + 1);

// The year that a day since 1950 lies in.
constexpr std::int64_t yearOf(std::int64_t ds50Day) {
  // A year has 365.2425 days on average, which finds the year or one beside it.
  std::int64_t year = floorDivide((ds50Day - 1 + daysSinceYear1(1950)) * 400, 146097) + kFirstYear;
  while (daysBefore(year) >= ds50Day) {
    --year;
  }
  while (daysBefore(year + 1) < ds50Day) {
    ++year;
  }
  return year;
}

}  // namespace hostcalendar

#endif
