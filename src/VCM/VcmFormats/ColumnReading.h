// Numbers out of columns of known width, the way writers put them there, digits eight at a time.
//
// Each of the reading functions gives what readInteger or readReal gives, to the bit: a text of any
// other look, or shorter than its columns, is left to those.
#ifndef VCM_VCMFORMATS_COLUMNREADING_H
#define VCM_VCMFORMATS_COLUMNREADING_H

#include <cstdint>
#include <string_view>

#include "VCM/VcmFormats/DecimalDigits.h"
#include "VCM/VcmFormats/DigitBlocks.h"
#include "VCM/VcmFormats/NumberReading.h"

namespace vcm {

// Signs change from number to number without a pattern: nothing here branches on one.

// Blanks, a minus or not, digits: up to eight characters.
struct SignedDigits {
  bool negative;
  int digits;
  DigitBlock invalid;  // zero when there is nothing else among the characters
  std::uint32_t size;
};

// Takes the N characters in a block's highest bytes; zeros stand below them.
template <int N>
[[gnu::always_inline]] inline SignedDigits signedDigits(DigitBlock block) {
  constexpr DigitBlock kBlanks = repeated(' ');
  block |= kBlanks & firstOf(kBlockDigits - N);
  int before = countLeading(block, kBlanks);
  // Where all are blanks, the first of them is looked at.
  const bool negative = static_cast<char>(block >> (before % kBlockDigits * 8)) == '-';
  before += static_cast<int>(negative);
  block = merged(repeated('0'), block, before);
  return {negative, kBlockDigits - before, nonDigits(block), numberOf<N>(block)};
}

// The N digits at `at`, up to eight. Bits of `invalid` are set where there is no digit.
template <int N>
[[gnu::always_inline]] inline std::uint32_t unsignedDigits(const char* at, DigitBlock& invalid) {
  const DigitBlock block = loadLast<N>(at) | (repeated('0') & firstOf(kBlockDigits - N));
  invalid |= nonDigits(block);
  return numberOf<N>(block);
}

// A whole number. False when the field looks otherwise.
template <int Width>
bool takeInteger(std::string_view field, std::int32_t& value) {
  if constexpr (Width > kBlockDigits) {
    return false;
  } else {
    if (field.size() != Width) {
      return false;
    }
    const SignedDigits number = signedDigits<Width>(loadLast<Width>(field.data()));
    // A sign needs digits; blanks alone are zero.
    if (number.invalid != 0 || (number.negative && number.digits == 0)) {
      return false;
    }
    const auto size = static_cast<std::int32_t>(number.size);
    value = number.negative ? -size : size;
    return true;
  }
}

// A whole number, a point and `Decimals` digits. False when the field looks otherwise.
template <int Width, int Decimals>
inline bool takeFixed(std::string_view field, double& value) {
  constexpr int kPoint = Width - Decimals - 1;
  // The decimals behind the point that are read with the whole number, as if there were no point, and
  // the block of those that are left.
  constexpr int kTail = Decimals < kBlockDigits ? 0 : kBlockDigits;
  constexpr int kJoined = kPoint + Decimals - kTail <= kBlockDigits ? Decimals - kTail : 0;
  constexpr int kApart = Decimals - kJoined;
  static_assert(kPoint + kJoined <= kBlockDigits && kApart <= kBlockDigits &&
                kPoint + Decimals <= kExactDigits);
  if (field.size() != Width || field[kPoint] != '.') {
    return false;
  }
  const char* const decimals = field.data() + kPoint + 1;
  DigitBlock block = loadLast<kPoint>(field.data()) >> (kJoined * 8);
  if constexpr (kJoined > 0) {
    block |= loadLast<kJoined>(decimals);
  }
  const SignedDigits whole = signedDigits<kPoint + kJoined>(block);
  DigitBlock invalid = whole.invalid;
  std::uint64_t digits = whole.size;
  if constexpr (kApart > 0) {
    digits =
        digits * integerPowerOfTen(kApart) + unsignedDigits<kApart>(decimals + kJoined, invalid);
  }
  if (invalid != 0 || whole.digits < kJoined) {  // no blanks behind the point
    return false;
  }
  // Both operands are exact, so the one division rounds correctly.
  const double size = static_cast<double>(static_cast<std::int64_t>(digits)) /
                      static_cast<double>(integerPowerOfTen(Decimals));
  value = withSign(size, whole.negative);
  return true;
}

// Two characters, the first in the lower byte.
constexpr DigitBlock twoCharacters(const char (&text)[3]) {
  return static_cast<unsigned char>(text[0]) | DigitBlock{static_cast<unsigned char>(text[1])} << 8;
}

// What stands before a point: a zero, a minus or a blank before that, then nothing but blanks.
template <int Width>
inline bool takeLeadingZero(const char* at, bool& negative) {
  if constexpr (Width == 1) {
    return *at == '0';
  } else {
    const DigitBlock last = loadWord<std::uint16_t>(at + Width - 2);
    negative = last == twoCharacters("-0");
    bool found = negative | (last == twoCharacters(" 0"));
    for (int i = 0; i < Width - 2; ++i) {
      found &= at[i] == ' ';
    }
    return found;
  }
}

// A leading zero, a point, up to six digits, E, a sign and two digits of exponent. False when the field
// looks otherwise.
template <int Width, int Digits>
inline bool takeScientific(std::string_view field, double& value) {
  constexpr int kExponentDigits = 2;
  constexpr int kPoint = Width - Digits - 5;
  constexpr int kLetter = Width - kExponentDigits - 2;
  constexpr int kUnused = kBlockDigits - Digits - kExponentDigits;
  static_assert(kUnused >= 0);
  bool negative = false;
  if (field.size() != Width || field[kPoint] != '.' ||
      !takeLeadingZero<kPoint>(field.data(), negative)) {
    return false;
  }
  const DigitBlock letterAndSign = loadWord<std::uint16_t>(field.data() + kLetter);
  const bool negativeExponent = letterAndSign == twoCharacters("E-");
  // The digits of the exponent make the block's first pair, those of the number its last ones.
  const DigitBlock digits = loadLast<Digits>(field.data() + kPoint + 1) |
                            (repeated('0') & firstOf(kUnused)) << (kExponentDigits * 8) |
                            loadWord<std::uint16_t>(field.data() + kLetter + 2);
  if (nonDigits(digits) != 0 || (!negativeExponent && letterAndSign != twoCharacters("E+"))) {
    return false;
  }
  const DigitBlock pairs = pairsOf(digits);
  const auto exponent = static_cast<int>(pairs & firstOf(1));
  double size = 0.0;
  if (!timesPowerOfTen(numberOfPairs(pairs & ~firstOf(kExponentDigits)),
                       (negativeExponent ? -exponent : exponent) - Digits, size)) {
    return false;
  }
  value = withSign(size, negative);
  return true;
}

// These are not expanded where they are called: fields of the same shape share their code, so that the
// code that reads a whole message fits the processor's instruction cache.

template <int Width>
[[gnu::noinline]] bool readInteger(std::string_view field, std::int32_t& value) {
  return takeInteger<Width>(field, value) || readInteger(field, value);
}

template <int Width, int Decimals>
[[gnu::noinline]] bool readFixed(std::string_view field, int impliedDecimals, double& value) {
  return takeFixed<Width, Decimals>(field, value) || readReal(field, impliedDecimals, value);
}

template <int Width, int Digits>
[[gnu::noinline]] bool readScientific(std::string_view field, int impliedDecimals, double& value) {
  return takeScientific<Width, Digits>(field, value) || readReal(field, impliedDecimals, value);
}

}  // namespace vcm

#endif
