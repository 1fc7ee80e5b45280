#include "VCM/VcmFormats/NumberReading.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <string>

#include "VCM/VcmFormats/DecimalDigits.h"
#include "VCM/VcmTypes/FixedText.h"

namespace vcm {

namespace {

constexpr int kMaxMantissaDigits = 19;  // always fit in 64 bits
// Exponents beyond this overflow or underflow whatever a field's digits are.
constexpr int kHugeExponent = 1'000'000;

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Walks over the characters of a field that are not blanks.
class FieldCursor {
 public:
  explicit FieldCursor(std::string_view field) : at_(field.data()), end_(at_ + field.size()) {
    skipBlanks();
  }
  bool atEnd() const { return at_ == end_; }
  char peek() const { return at_ == end_ ? '\0' : *at_; }
  void advance() {
    ++at_;
    skipBlanks();
  }
  // Takes a sign when there is one; true when it was a minus.
  bool takeSign() {
    const bool minus = peek() == '-';
    if (minus || peek() == '+') {
      advance();
    }
    return minus;
  }

 private:
  void skipBlanks() {
    while (at_ != end_ && isBlank(*at_)) {
      ++at_;
    }
  }
  const char* at_;
  const char* end_;
};

// A decimal number taken apart: (-1)^negative * digits * 10^exponent.
struct Decimal {
  bool negative = false;
  std::uint64_t mantissa = 0;  // the first 19 significant digits
  int significantDigits = 0;
  int exponent = 0;
};

bool takeExponent(FieldCursor& cursor, int& exponent) {
  const char letter = cursor.peek();
  if (letter == 'E' || letter == 'e' || letter == 'D' || letter == 'd') {
    cursor.advance();
  } else if (letter != '+' && letter != '-') {
    return false;
  }
  const bool minus = cursor.takeSign();
  if (!isDigit(cursor.peek())) {
    return false;
  }
  int size = 0;
  for (; isDigit(cursor.peek()); cursor.advance()) {
    size = std::min(size * 10 + (cursor.peek() - '0'), kHugeExponent);
  }
  exponent = minus ? -size : size;
  return true;
}

bool takeApart(std::string_view field, int impliedDecimals, Decimal& number) {
  FieldCursor cursor(field);
  if (cursor.atEnd()) {
    return true;
  }
  number.negative = cursor.takeSign();
  bool anyDigit = false;
  bool point = false;
  for (; !cursor.atEnd(); cursor.advance()) {
    const char c = cursor.peek();
    if (c == '.' && !point) {
      point = true;
    } else if (isDigit(c)) {
      anyDigit = true;
      number.exponent -= point ? 1 : 0;
      if (number.significantDigits > 0 || c != '0') {
        if (++number.significantDigits <= kMaxMantissaDigits) {
          number.mantissa = number.mantissa * 10 + static_cast<std::uint64_t>(c - '0');
        }
      }
    } else {
      break;
    }
  }
  if (!anyDigit) {
    return false;
  }
  if (cursor.atEnd()) {
    number.exponent -= point ? 0 : impliedDecimals;
    return true;
  }
  int written = 0;
  if (!takeExponent(cursor, written) || !cursor.atEnd()) {
    return false;
  }
  number.exponent += written;
  return true;
}

// Any length of digits, any exponent: rebuilt as one text and left to the standard library.
bool convertExactly(std::string_view field, const Decimal& number, double& value) {
  // Far beyond what a double holds, whatever the digits: no need to write such exponents out.
  const long scale = static_cast<long>(number.exponent) + number.significantDigits;
  double size = 0.0;
  if (scale > std::numeric_limits<double>::max_exponent10 + 1) {
    return false;
  }
  if (scale > std::numeric_limits<double>::min_exponent10 - 20) {
    std::string text;
    text.reserve(field.size() + 16);
    // The exponent counts from the last digit: the digits are copied as one integer.
    bool leading = true;
    int digits = 0;
    for (FieldCursor cursor(field); digits < number.significantDigits; cursor.advance()) {
      leading = leading && (!isDigit(cursor.peek()) || cursor.peek() == '0');
      if (!leading && isDigit(cursor.peek())) {
        text += cursor.peek();
        ++digits;
      }
    }
    text += 'e';
    text += std::to_string(number.exponent);
    const auto result = std::from_chars(text.data(), text.data() + text.size(), size);
    if (result.ec == std::errc::result_out_of_range) {
      if (scale > 0) {
        return false;
      }
      size = 0.0;
    }
  }
  value = number.negative ? -size : size;
  return true;
}

}  // namespace

bool readInteger(std::string_view field, std::int32_t& value) {
  FieldCursor cursor(field);
  if (cursor.atEnd()) {
    value = 0;
    return true;
  }
  const bool minus = cursor.takeSign();
  if (cursor.atEnd()) {
    return false;
  }
  constexpr std::int64_t kLimit = std::int64_t{1} << 31;
  std::int64_t size = 0;
  for (; !cursor.atEnd(); cursor.advance()) {
    if (!isDigit(cursor.peek())) {
      return false;
    }
    size = size * 10 + (cursor.peek() - '0');
    if (size > kLimit) {
      return false;
    }
  }
  if (size == kLimit && !minus) {
    return false;
  }
  value = static_cast<std::int32_t>(minus ? -size : size);
  return true;
}

bool readReal(std::string_view field, int impliedDecimals, double& value) {
  Decimal number;
  if (!takeApart(field, impliedDecimals, number)) {
    return false;
  }
  if (number.mantissa == 0) {
    value = number.negative ? -0.0 : 0.0;
    return true;
  }
  double size = 0.0;
  if (number.significantDigits <= kMaxMantissaDigits &&
      timesPowerOfTen(number.mantissa, number.exponent, size)) {
    value = number.negative ? -size : size;
    return true;
  }
  return convertExactly(field, number, value);
}

bool readListed(std::string_view& list, double& value) {
  list = withoutLeadingBlanks(list);
  std::size_t length = 0;
  while (length < list.size() && !isBlank(list[length])) {
    ++length;
  }
  if (length == 0 || !readReal(list.substr(0, length), 0, value)) {
    return false;
  }
  list.remove_prefix(length);
  return true;
}

}  // namespace vcm
