// Dates as messages show them.
#ifndef VCM_VCMFORMATS_DATETEXT_H
#define VCM_VCMFORMATS_DATETEXT_H

#include <string_view>

#include "VCM/VcmTypes/InputDate.h"

namespace vcm {

// The date of a multi-line message, "2028 206 (24 JUL) 12:04:31.384".
inline constexpr int kCalendarDateWidth = 30;

// Writes the date and returns the number of characters. The seconds are split into whole seconds,
// truncated, and a rounded fraction; a fraction that rounds up to one is written as 1.000, so that
// the date is a character longer. That is deliberate.
int writeCalendarDate(const InputDate& date, char* out);

// Reads year, day of year, hour, minute and seconds in this order; the day of month and the month
// are not read. False at the first that cannot be read: it and those after it keep their values.
bool readCalendarDate(std::string_view text, InputDate& date);

// The day of a year as day of month and month, "24 JUL", months taken whole from the table. A day past
// the year's end is one of December.
inline constexpr int kDayAndMonthWidth = 6;
void writeDayAndMonth(bool leapYear, int dayOfYear, char* out);

}  // namespace vcm

#endif
