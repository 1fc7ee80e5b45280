#include "VCM/VcmFormats/PowersOfTen.h"

namespace vcm {

namespace {

// An integer of 448 bits in words of 32, the lowest first: enough for 5^128 (298 bits), and for 128
// bits of its reciprocal.
class LongInteger {
 public:
  static constexpr int kBits = 448;

  // 2^power
  constexpr explicit LongInteger(int power) {
    words_[static_cast<std::size_t>(power / 32)] = std::uint32_t{1} << (power % 32);
  }

  constexpr void multiplyByFive() {
    std::uint64_t carry = 0;
    for (std::uint32_t& word : words_) {
      carry += std::uint64_t{word} * 5;
      word = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
  }

  // What is left over is dropped.
  constexpr void divideByFive() {
    std::uint64_t rest = 0;
    for (std::size_t i = words_.size(); i-- > 0;) {
      rest = rest << 32 | words_[i];
      words_[i] = static_cast<std::uint32_t>(rest / 5);
      rest %= 5;
    }
  }

  // The first 128 bits, zeros behind the last.
  constexpr PowerOfTen firstBits() const {
    int top = kBits - 1;
    while (!bit(top)) {
      --top;
    }
    PowerOfTen result{0, 0};
    for (int i = 0; i < 128; ++i) {
      result.high = result.high << 1 | result.low >> 63;
      result.low = result.low << 1 | static_cast<std::uint64_t>(bit(top - i));
    }
    return result;
  }

 private:
  constexpr bool bit(int number) const {
    const auto at = static_cast<std::size_t>(number);
    return number >= 0 && (words_[at / 32] >> (at % 32) & 1) != 0;
  }

  std::array<std::uint32_t, kBits / 32> words_{};
};

// The twos of the tens change the binary exponent alone.
constexpr auto makePowers() {
  std::array<PowerOfTen, 2 * kLargestPower + 1> powers{};
  LongInteger five(0);
  LongInteger reciprocal(LongInteger::kBits - 1);
  for (std::size_t i = 0; i <= kLargestPower; ++i) {
    powers[kLargestPower + i] = five.firstBits();
    powers[kLargestPower - i] = reciprocal.firstBits();
    five.multiplyByFive();
    reciprocal.divideByFive();
  }
  return powers;
}

}  // namespace

constexpr std::array<PowerOfTen, 2 * kLargestPower + 1> kPowersOfTen = makePowers();

}  // namespace vcm
