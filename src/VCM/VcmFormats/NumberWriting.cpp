#include "VCM/VcmFormats/NumberWriting.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>

namespace vcm {

namespace {

void fillAsterisks(char* out, int width) { std::memset(out, '*', static_cast<std::size_t>(width)); }

// Right-aligns a number, without the zero before its point where that makes it fit.
void place(char* out, int width, std::string_view sign, std::string_view number) {
  auto room = static_cast<std::size_t>(width);
  if (sign.size() + number.size() == room + 1 && number.size() > 1 && number.starts_with("0.")) {
    number.remove_prefix(1);
  }
  const std::size_t used = sign.size() + number.size();
  if (used > room) {
    fillAsterisks(out, width);
    return;
  }
  room -= used;
  std::memset(out, ' ', room);
  std::copy(sign.begin(), sign.end(), out + room);
  std::copy(number.begin(), number.end(), out + room + sign.size());
}

// True when there was nothing to round: the field holds its final text.
bool placeNonFinite(char* out, int width, double value) {
  if (std::isfinite(value)) {
    return false;
  }
  if (std::isnan(value)) {
    place(out, width, "", "NaN");
  } else {
    fillAsterisks(out, width);
  }
  return true;
}

std::string_view signOf(double value) { return std::signbit(value) ? "-" : ""; }

}  // namespace

void writeInteger(char* out, int width, std::int64_t value) {
  std::array<char, 20> digits;
  const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  place(out, width, "", {digits.data(), static_cast<std::size_t>(end - digits.data())});
}

void writeZeroFilled(char* out, int width, std::int64_t value) {
  if (value < 0) {
    fillAsterisks(out, width);
    return;
  }
  writeInteger(out, width, value);
  std::replace(out, out + width, ' ', '0');
}

void writeFixed(char* out, int width, int decimals, double value) {
  if (placeNonFinite(out, width, value)) {
    return;
  }
  // Whatever needs more digits than the field has columns is not worth rounding.
  std::array<char, 64> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), std::fabs(value),
                                    std::chars_format::fixed, decimals);
  if (result.ec != std::errc()) {
    fillAsterisks(out, width);
    return;
  }
  place(out, width, signOf(value),
        {digits.data(), static_cast<std::size_t>(result.ptr - digits.data())});
}

void writeScientific(char* out, int width, int digits, double value) {
  if (placeNonFinite(out, width, value)) {
    return;
  }
  // The standard form d.ddde+xx holds the same digits, one place further left.
  std::array<char, 64> buffer;
  const double size = std::fabs(value);
  const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), size,
                                        std::chars_format::scientific, digits - 1)
                              .ptr;
  const std::string_view standard(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t letter = standard.find('e');
  int exponent = 0;
  std::from_chars(buffer.data() + letter + 2, end, exponent);
  if (standard[letter + 1] == '-') {
    exponent = -exponent;
  }
  exponent += size == 0.0 ? 0 : 1;
  if (std::abs(exponent) > 99) {
    fillAsterisks(out, width);
    return;
  }
  std::array<char, 64> text;
  char* at = text.data();
  *at++ = '0';
  *at++ = '.';
  for (const char c : standard.substr(0, letter)) {
    if (c != '.') {
      *at++ = c;
    }
  }
  *at++ = 'E';
  *at++ = exponent < 0 ? '-' : '+';
  *at++ = static_cast<char>('0' + std::abs(exponent) / 10);
  *at++ = static_cast<char>('0' + std::abs(exponent) % 10);
  place(out, width, signOf(value), {text.data(), static_cast<std::size_t>(at - text.data())});
}

std::int32_t truncated(double value) {
  if (std::isnan(value)) {
    return 0;
  }
  constexpr auto kLow = static_cast<double>(std::numeric_limits<std::int32_t>::min());
  constexpr auto kHigh = static_cast<double>(std::numeric_limits<std::int32_t>::max());
  return static_cast<std::int32_t>(std::clamp(value, kLow, kHigh));
}

}  // namespace vcm
