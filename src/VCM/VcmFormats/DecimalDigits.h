// Doubles from decimal digits and back, correctly rounded.
#ifndef VCM_VCMFORMATS_DECIMALDIGITS_H
#define VCM_VCMFORMATS_DECIMALDIGITS_H

#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "VCM/VcmFormats/PowersOfTen.h"

namespace vcm {

// ---- how a double is put together ---------------------------------------------------------------

inline constexpr int kMantissaBits = std::numeric_limits<double>::digits;  // with the hidden one
inline constexpr int kStoredBits = kMantissaBits - 1;
inline constexpr int kExponentBias = std::numeric_limits<double>::max_exponent - 1;
inline constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << kStoredBits;

// Decimal digits that every double's mantissa holds exactly.
inline constexpr int kExactDigits = std::numeric_limits<double>::digits10;

// The biased exponent of a double that is not negative.
constexpr int biasedExponent(double size) {
  return static_cast<int>(std::bit_cast<std::uint64_t>(size) >> kStoredBits);
}

// The mantissa of a normal double, an integer.
constexpr std::uint64_t mantissaOf(double size) {
  return (std::bit_cast<std::uint64_t>(size) & (kHiddenBit - 1)) | kHiddenBit;
}

// A size with the sign of a number, without a branch.
constexpr double withSign(double size, bool negative) {
  return std::bit_cast<double>(std::bit_cast<std::uint64_t>(size) |
                               static_cast<std::uint64_t>(negative) << 63);
}

// ---- decimal to double --------------------------------------------------------------------------

inline constexpr std::array kExactPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// digits * 10^power through a product of 128 bits, to the nearest double. False when the rounding is not
// certain, and for what lies outside of the table of powers.
bool roundedTimesPowerOfTen(std::uint64_t digits, int power, double& value);

// The same, in one operation where both numbers are doubles.
[[gnu::always_inline]] inline bool timesPowerOfTen(std::uint64_t digits, int power, double& value) {
  const auto size = static_cast<std::size_t>(std::abs(power));
  if (digits >= 2 * kHiddenBit || size >= kExactPowersOfTen.size()) {
    return roundedTimesPowerOfTen(digits, power, value);
  }
  const auto exact = static_cast<double>(static_cast<std::int64_t>(digits));
  value = power < 0 ? exact / kExactPowersOfTen[size] : exact * kExactPowersOfTen[size];
  return true;
}

// ---- double to decimal --------------------------------------------------------------------------

// The first `Digits` decimal digits, as an integer, and the exponent: 0.digits * 10^exponent is the
// size rounded to that many digits, ties to even. False for a size that is zero, not finite, very small
// or very large, and when the rounding is not certain.
template <int Digits>
bool roundedDigits(double size, std::uint64_t& digits, int& exponent) {
  static_assert(Digits >= 1 && Digits <= std::numeric_limits<double>::max_digits10);
  constexpr int kLargestExponent = 109;
  static_assert(kLargestExponent + 2 + Digits <= kLargestPower);
  const int binaryExponent = biasedExponent(size) - kExponentBias;
  const int estimate = decimalExponentOfPower(binaryExponent);
  if (std::abs(estimate) > kLargestExponent) {
    return false;
  }
  const std::uint64_t aligned = mantissaOf(size) << (64 - kMantissaBits);
  // The estimate is right or one too small: is the next power of ten reached?
  const auto reached = static_cast<int>(binaryExponentOfPower(estimate + 1) == binaryExponent) &
                       static_cast<int>(aligned >= powerOfTen(estimate + 1).high);
  exponent = estimate + 1 + reached;
  const int power = Digits - exponent;
  const int shift = 62 - binaryExponent - binaryExponentOfPower(power);
  if (!roundedProduct(aligned, power, shift, digits)) {
    return false;
  }
  constexpr std::uint64_t kLimit = integerPowerOfTen(Digits);
  if (digits == kLimit) {
    digits = kLimit / 10;
    ++exponent;
  }
  // So close below a power of ten that 64 bits do not tell it from the power.
  return digits >= kLimit / 10;
}

// size * 10^Decimals as an integer, ties to even, for sizes below one.
template <int Decimals>
std::uint64_t roundedFraction(double size) {
  constexpr std::uint64_t kScale = integerPowerOfTen(Decimals);
  constexpr int kLongestShift = 127;  // what is shifted further is less than a half
  static_assert(Decimals <= kExactDigits);
  const int shift = kExponentBias + kStoredBits - biasedExponent(size);
  if (shift > kLongestShift) {
    return 0;
  }
  const Uint128 scaled = Uint128{mantissaOf(size)} * kScale;
  const auto whole = static_cast<std::uint64_t>(scaled >> shift);
  const Uint128 rest = scaled << (128 - shift);
  constexpr Uint128 kHalf = Uint128{1} << 127;
  // Either way is as likely as the other: no branch.
  return whole + (static_cast<std::uint64_t>(rest > kHalf) |
                  (static_cast<std::uint64_t>(rest == kHalf) & whole));
}

}  // namespace vcm

#endif
