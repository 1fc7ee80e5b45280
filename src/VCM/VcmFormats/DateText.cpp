#include "VCM/VcmFormats/DateText.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "Host/HostCalendar.h"
#include "VCM/VcmFormats/Field.h"

namespace vcm {

namespace {

constexpr std::array<std::string_view, 12> kMonths = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                      "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

// The parts of the date, by their columns within it.
constexpr std::string_view kCalendarForm = "         (      )   :  :      ";
constexpr Column kYear{1};
constexpr Column kDayOfYear{6};
constexpr Column kDayOfMonth{11};
constexpr Column kMonth{14};
constexpr Column kHour{19};
constexpr Column kMinute{22};
constexpr Column kSeconds{25};
constexpr Column kFraction{27};
constexpr int kSecondsWidth = 6;

// The fraction of a second as a point and three digits, with whatever stands before the point when
// that is not a zero. Returns the number of characters, at least four.
int writeFraction(double fraction, char* out) {
  constexpr int kWidth = 6;  // a sign, a digit, the point and the decimals
  constexpr std::size_t kUsualWidth = 4;
  std::array<char, kWidth> text;
  writeFixed<kWidth, 3>(text.data(), fraction);
  std::size_t first = static_cast<std::size_t>(std::count(text.begin(), text.end(), ' '));
  if (text[first] == '-' && text[first + 1] == '0') {
    text[++first] = '-';
  } else if (text[first] == '0') {
    ++first;
  }
  first = std::min(first, text.size() - kUsualWidth);
  return static_cast<int>(std::copy(text.begin() + first, text.end(), out) - out);
}

}  // namespace

int writeCalendarDate(const InputDate& date, char* out) {
  std::int32_t month = 1;
  std::int32_t dayOfMonth = 0;
  jul2mmdd(&date.year, &date.dayOfYear, &month, &dayOfMonth);

  const auto at = [out](Column column) { return out + column.index(); };
  copyPadded(kCalendarForm, out, kCalendarDateWidth);
  writeInteger<4>(at(kYear), date.year);
  writeZeroFilled<3>(at(kDayOfYear), date.dayOfYear);
  writeZeroFilled<2>(at(kDayOfMonth), dayOfMonth);
  copyPadded(kMonths[static_cast<std::size_t>(std::clamp(month, 1, 12) - 1)], at(kMonth), 3);
  writeZeroFilled<2>(at(kHour), date.hour);
  writeZeroFilled<2>(at(kMinute), date.minute);
  const double whole = std::trunc(date.seconds);
  writeZeroFilled<2>(at(kSeconds), truncated(whole));
  return static_cast<int>(kFraction.index()) + writeFraction(date.seconds - whole, at(kFraction));
}

bool readCalendarDate(std::string_view text, InputDate& date) {
  return readInteger<4>(columnsOf(text, kYear, 4), date.year) &&
         readInteger<3>(columnsOf(text, kDayOfYear, 3), date.dayOfYear) &&
         readInteger<2>(columnsOf(text, kHour, 2), date.hour) &&
         readInteger<2>(columnsOf(text, kMinute, 2), date.minute) &&
         readFixed<kSecondsWidth, 3>(columnsOf(text, kSeconds, kSecondsWidth), 0, date.seconds);
}

void writeDayAndMonth(bool leapYear, int dayOfYear, char* out) {
  std::array<int, kMonths.size()> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  days[1] += leapYear ? 1 : 0;
  std::size_t month = 0;
  for (; month + 1 < days.size() && dayOfYear > days[month]; ++month) {
    dayOfYear -= days[month];
  }
  writeZeroFilled(out, 2, dayOfYear);
  out[2] = ' ';
  copyPadded(kMonths[month], out + 3, 3);
}

}  // namespace vcm
