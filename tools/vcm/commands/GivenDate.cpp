#include "commands/GivenDate.h"

#include <charconv>
#include <chrono>
#include <regex>

#include "VCM/VcmFormats/FieldDate.h"

namespace vcmtool {

namespace {

using Match = std::match_results<std::string_view::const_iterator>;

// With every digit in its place: the library would take blanks for zeros.
bool isFieldDate(std::string_view text) {
  constexpr std::size_t kPoint = vcm::kFieldDateWidth - 4;
  return text.size() == vcm::kFieldDateWidth && text[kPoint] == '.' &&
         text.find(' ') == std::string_view::npos;
}

// Left out, it stays 0.
template <class Number>
void take(const Match::value_type& digits, Number& number) {
  if (digits.matched) {
    std::from_chars(&*digits.first, &*digits.first + digits.length(), number);
  }
}

// 0 when there is no such day.
std::int32_t dayOfYear(std::int32_t year, unsigned month, unsigned day) {
  using std::chrono::sys_days;
  const auto date = std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
  const auto newYear = std::chrono::year(year) / 1 / 1;
  return date.ok() ? static_cast<std::int32_t>((sys_days(date) - sys_days(newYear)).count()) + 1
                   : 0;
}

bool readParts(std::string_view text, vcm::InputDate& date) {
  static const std::regex form(
      R"((\d{4})-(?:(\d{3})|(\d\d)-(\d\d))(?:(?:T| +)(\d\d?):(\d\d?)(?::(\d\d?(?:\.\d*)?))?)? *Z?)");
  Match parts;
  if (!std::regex_match(text.begin(), text.end(), parts, form)) {
    return false;
  }
  unsigned month = 0;
  unsigned day = 0;
  take(parts[1], date.year);
  take(parts[2], date.dayOfYear);
  take(parts[3], month);
  take(parts[4], day);
  take(parts[5], date.hour);
  take(parts[6], date.minute);
  take(parts[7], date.seconds);
  if (!parts[2].matched) {
    date.dayOfYear = dayOfYear(date.year, month, day);
  }
  return true;
}

bool isInCalendar(const vcm::InputDate& date) {
  const int days = std::chrono::year(date.year).is_leap() ? 366 : 365;
  return date.dayOfYear >= 1 && date.dayOfYear <= days && date.hour >= 0 && date.hour < 24 &&
         date.minute >= 0 && date.minute < 60 && date.seconds >= 0 && date.seconds < 61;
}

}  // namespace

bool readGivenDate(std::string_view text, vcm::InputDate& date) {
  vcm::InputDate read;
  const bool good = isFieldDate(text) ? vcm::readFieldDate(text, read) : readParts(text, read);
  if (good && isInCalendar(read)) {
    date = read;
    return true;
  }
  return false;
}

}  // namespace vcmtool
