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

#include "VCM/VcmFormats/ColumnWriting.h"

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

// A size as d.ddd and a power of ten, rounded to that many digits.
class StandardForm {
 public:
  StandardForm(double size, int digits) {
    const char* const end = std::to_chars(text_.data(), text_.data() + text_.size(), size,
                                          std::chars_format::scientific, digits - 1)
                                .ptr;
    letter_ = static_cast<std::size_t>(std::find(text_.begin(), text_.end(), 'e') - text_.begin());
    const char* const sign = text_.data() + letter_ + 1;
    std::from_chars(sign + 1, end, exponent_);
    exponent_ = *sign == '-' ? -exponent_ : exponent_;
  }
  int exponent() const { return exponent_; }

  // Copies the digits, without the point behind the first, and returns where they end.
  char* copyDigits(char* out) const {
    return std::remove_copy(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(letter_),
                            out, '.');
  }

 private:
  std::array<char, 64> text_;
  std::size_t letter_ = 0;
  int exponent_ = 0;
};

// The letter E, a sign and `digits` digits. Returns where they end.
char* putExponent(char* at, int exponent, int digits) {
  *at++ = 'E';
  *at++ = exponent < 0 ? '-' : '+';
  writeZeroFilled(at, digits, std::abs(exponent));
  return at + digits;
}

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
  // The standard form holds the same digits, one place further left.
  const StandardForm standard(std::fabs(value), digits);
  const int exponent = standard.exponent() + (value == 0.0 ? 0 : 1);
  if (std::abs(exponent) > 99) {
    fillAsterisks(out, width);
    return;
  }
  std::array<char, 64> text;
  char* at = text.data();
  *at++ = '0';
  *at++ = '.';
  at = standard.copyDigits(at);
  at = putExponent(at, exponent, 2);
  place(out, width, signOf(value), {text.data(), static_cast<std::size_t>(at - text.data())});
}

void writeGeneral(char* out, double value) {
  if (placeNonFinite(out, kGeneralWidth, value)) {
    return;
  }
  constexpr int kDigits = std::numeric_limits<double>::max_digits10;
  const double size = std::fabs(value);
  std::array<char, kDigits> digits;
  int exponent = 0;  // of the form d.ddd
  if (std::uint64_t number = 0; roundedDigits<kDigits>(size, number, exponent)) {
    placeDigits<kDigits>(digits.data(), number);
    --exponent;
  } else {
    const StandardForm standard(size, kDigits);
    standard.copyDigits(digits.data());
    exponent = standard.exponent();
  }
  const bool plain = exponent >= -1 && exponent < kDigits;
  const int whole = plain ? exponent + 1 : 1;
  std::array<char, kGeneralWidth + 1> text;
  char* at = text.data();
  if (whole == 0) {
    *at++ = '0';
  }
  at = std::copy_n(digits.begin(), whole, at);
  *at++ = '.';
  at = std::copy(digits.begin() + whole, digits.end(), at);
  if (!plain) {
    at = putExponent(at, exponent, 3);
  }
  place(out, kGeneralWidth, signOf(value),
        {text.data(), static_cast<std::size_t>(at - text.data())});
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
