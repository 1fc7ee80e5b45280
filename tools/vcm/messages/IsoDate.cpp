#include "messages/IsoDate.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>

namespace vcmtool {

namespace {

// Never with an exponent.
std::string secondsText(double seconds) {
  constexpr std::size_t kLongest = 400;  // the smallest number has 324 decimals and few digits
  std::array<char, kLongest> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), seconds, std::chars_format::fixed)
          .ptr;
  const bool oneDigit = !std::signbit(seconds) && seconds < 10;
  return std::string(oneDigit ? "0" : "").append(digits.data(), end);
}

// Takes a number and the character behind it off the text.
template <class Number>
bool take(std::string_view& text, Number& value, char behind) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const auto length = static_cast<std::size_t>(end - text.data());
  if (error != std::errc{} || length == text.size() || *end != behind) {
    return false;
  }
  text.remove_prefix(length + 1);
  return true;
}

}  // namespace

std::string isoDate(const vcm::InputDate& date) {
  return fmt::format("{:04}-{:03}T{:02}:{:02}:{}Z", date.year, date.dayOfYear, date.hour,
                     date.minute, secondsText(date.seconds));
}

bool readIsoDate(std::string_view text, vcm::InputDate& date) {
  vcm::InputDate read;
  if (!take(text, read.year, '-') || !take(text, read.dayOfYear, 'T') ||
      !take(text, read.hour, ':') || !take(text, read.minute, ':') ||
      !take(text, read.seconds, 'Z') || !text.empty() || !std::isfinite(read.seconds)) {
    return false;
  }
  date = read;
  return true;
}

}  // namespace vcmtool
