// Numbers into columns of known width, digits eight at a time.
//
// Each function writes what its namesake in NumberWriting.h writes, to the byte; what does not fit
// plainly is left to that one.
#ifndef VCM_VCMFORMATS_COLUMNWRITING_H
#define VCM_VCMFORMATS_COLUMNWRITING_H

#include <cmath>
#include <cstdint>
#include <cstring>

#include "VCM/VcmFormats/DecimalDigits.h"
#include "VCM/VcmFormats/DigitBlocks.h"
#include "VCM/VcmFormats/NumberWriting.h"

namespace vcm {

// Right-aligns a whole number below kBlockLimit; false when there is no room for it.
template <int Width>
bool placeWhole(char* out, bool negative, std::uint32_t size) {
  constexpr int kBlockWidth = Width < kBlockDigits ? Width : kBlockDigits;
  const DigitBlock digits = digitsOf(size);
  // The last digit stays, also when it is a zero.
  constexpr DigitBlock kLastDigit = DigitBlock{1} << 56;
  const int zeros = std::countr_zero((digits ^ repeated('0')) | kLastDigit) / 8;
  const auto sign = static_cast<int>(negative);
  if (zeros - sign < kBlockDigits - kBlockWidth) {
    return false;
  }
  // The last blank becomes the sign, without a branch: signs have no pattern.
  const DigitBlock block = merged(repeated(' '), digits, zeros) ^
                           (DigitBlock{' ' ^ '-'} * static_cast<DigitBlock>(negative))
                               << ((zeros - sign) * 8);
  if constexpr (Width > kBlockDigits) {
    std::memset(out, ' ', Width - kBlockDigits);
  }
  storeLast<kBlockWidth>(out + (Width - kBlockWidth), block);
  return true;
}

// A zero, right-aligned, and its sign; false when there is no room for that.
template <int Width>
bool placeZero(char* out, bool negative) {
  if constexpr (Width > 1) {
    std::memset(out, ' ', Width - 1);
    out[Width - 2] = negative ? '-' : ' ';
  }
  out[Width - 1] = '0';
  return Width > 1 || !negative;
}

// Exactly N digits, of a number that has no more.
template <int N>
void placeDigits(char* out, std::uint64_t number) {
  if constexpr (N > kBlockDigits) {
    placeDigits<N - kBlockDigits>(out, number / kBlockLimit);
    storeLast<kBlockDigits>(out + (N - kBlockDigits),
                            digitsOf(static_cast<std::uint32_t>(number % kBlockLimit)));
  } else {
    storeLast<N>(out, digitsOf(static_cast<std::uint32_t>(number)));
  }
}

// Fields of the same shape share the code of these, as they do in ColumnReading.h.

template <int Width>
[[gnu::noinline]] void writeInteger(char* out, std::int32_t value) {
  const bool negative = value < 0;
  const auto bits = static_cast<std::uint32_t>(value);
  const std::uint32_t size = negative ? 0 - bits : bits;
  if (size >= kBlockLimit || !placeWhole<Width>(out, negative, size)) {
    writeInteger(out, Width, value);
  }
}

template <int Width>
[[gnu::noinline]] void writeZeroFilled(char* out, std::int32_t value) {
  constexpr std::int64_t kLimit = static_cast<std::int64_t>(integerPowerOfTen(Width));
  if (value >= 0 && value < kLimit) {
    placeDigits<Width>(out, static_cast<std::uint64_t>(value));
  } else {
    writeZeroFilled(out, Width, value);
  }
}

template <int Width, int Decimals>
[[gnu::noinline]] void writeFixed(char* out, double value) {
  constexpr int kWholeWidth = Width - Decimals - 1;
  const double size = std::fabs(value);
  if (size < kBlockLimit - 1) {  // not for not-a-number
    auto whole = static_cast<std::int32_t>(size);
    std::uint64_t fraction = roundedFraction<Decimals>(size - whole);
    if (fraction == integerPowerOfTen(Decimals)) {
      fraction = 0;
      ++whole;
    }
    if (placeWhole<kWholeWidth>(out, std::signbit(value), static_cast<std::uint32_t>(whole))) {
      out[kWholeWidth] = '.';
      placeDigits<Decimals>(out + kWholeWidth + 1, fraction);
      return;
    }
  }
  writeFixed(out, Width, Decimals, value);
}

template <int Width, int Digits>
[[gnu::noinline]] void writeScientific(char* out, double value) {
  constexpr int kWholeWidth = Width - Digits - 5;
  constexpr int kExponentWidth = 2;
  constexpr int kLargestExponent = 99;
  std::uint64_t digits = 0;
  int exponent = 0;
  const bool rounded = value == 0.0 || roundedDigits<Digits>(std::fabs(value), digits, exponent);
  if (!rounded || std::abs(exponent) > kLargestExponent ||
      !placeZero<kWholeWidth>(out, std::signbit(value))) {
    writeScientific(out, Width, Digits, value);
    return;
  }
  out += kWholeWidth;
  *out++ = '.';
  placeDigits<Digits>(out, digits);
  out += Digits;
  *out++ = 'E';
  *out++ = exponent < 0 ? '-' : '+';
  placeDigits<kExponentWidth>(out, static_cast<std::uint64_t>(std::abs(exponent)));
}

}  // namespace vcm

#endif
