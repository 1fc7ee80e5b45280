// Powers of ten to 128 bits, and products with them that are rounded only when that is certain.
//
// Both directions between binary and decimal are one operation: a 64-bit number times a power of ten,
// rounded to nearest. The product is formed to 128 bits; what was cut off can matter only where the
// rounding is all but a tie, and then the caller takes the long way.
#ifndef VCM_VCMFORMATS_POWERSOFTEN_H
#define VCM_VCMFORMATS_POWERSOFTEN_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace vcm {

__extension__ using Uint128 = unsigned __int128;

constexpr std::uint64_t integerPowerOfTen(int power) {
  std::uint64_t result = 1;
  for (int i = 0; i < power; ++i) {
    result *= 10;
  }
  return result;
}

// The first 128 bits of a power, the highest of them set: high:low * 2^(binaryExponent - 127).
struct PowerOfTen {
  std::uint64_t high;
  std::uint64_t low;
};

inline constexpr int kLargestPower = 128;  // and the smallest is its negative
extern const std::array<PowerOfTen, 2 * kLargestPower + 1> kPowersOfTen;

constexpr bool isInPowerTable(int power) {
  return power >= -kLargestPower && power <= kLargestPower;
}

inline const PowerOfTen& powerOfTen(int power) {
  const int place = power + kLargestPower;
  return kPowersOfTen[static_cast<std::size_t>(place)];
}

// floor(log2(10^power)), for the powers of the table.
constexpr int binaryExponentOfPower(int power) { return (power * 217706) >> 16; }

// floor(log10(2^exponent)), for the exponents of doubles.
constexpr int decimalExponentOfPower(int exponent) { return (exponent * 315653) >> 20; }

// The upper 64 bits of the product of a number with the bits of a power, without their last `shift` ones
// (1 to 63 of them), rounded to nearest, ties to even. False when the bits at hand do not tell which way
// to round.
inline bool roundedProduct(std::uint64_t number, int power, int shift, std::uint64_t& rounded) {
  const PowerOfTen& factor = powerOfTen(power);
  const Uint128 product = Uint128{number} * factor.high + (Uint128{number} * factor.low >> 64);
  const auto high = static_cast<std::uint64_t>(product >> 64);
  const auto low = static_cast<std::uint64_t>(product);
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  const std::uint64_t rest = high & (2 * half - 1);
  rounded = high >> shift;
  constexpr int kLargestExactPower = 27;  // 5^27 is the largest below 2^64
  if (power >= 0 && power <= kLargestExactPower) {
    const bool tie = rest == half && low == 0;
    rounded += (tie ? rounded & 1 : static_cast<std::uint64_t>(rest >= half));
    return true;
  }
  // The true product is less than two units of `low` larger.
  rounded += static_cast<std::uint64_t>(rest >= half);
  const bool perhapsTie = (rest == half && low == 0) || (rest == half - 1 && low >= UINT64_MAX - 1);
  return !perhapsTie;
}

}  // namespace vcm

#endif
