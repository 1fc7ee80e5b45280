// Eight decimal digits at a time.
//
// A block is eight characters in one 64-bit word, the first of them in the lowest byte. Fewer
// characters stand in a block's highest bytes, what lies below them is the caller's to fill.
#ifndef VCM_VCMFORMATS_DIGITBLOCKS_H
#define VCM_VCMFORMATS_DIGITBLOCKS_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vcm {

static_assert(std::endian::native == std::endian::little, "blocks are read and stored as words");

using DigitBlock = std::uint64_t;
inline constexpr int kBlockDigits = 8;
inline constexpr std::uint32_t kBlockLimit = 100'000'000;

// A block of one character.
constexpr DigitBlock repeated(char c) {
  return 0x0101010101010101 * static_cast<DigitBlock>(static_cast<unsigned char>(c));
}

// The bits of a block's first `count` characters, 0 to 8 of them: shifted in two steps, since a word may
// not be shifted by all of its width.
constexpr DigitBlock firstOf(int count) {
  return ((DigitBlock{1} << (count * 4)) << (count * 4)) - 1;
}

// A block whose first `count` characters come from `low`, the others from `high`.
constexpr DigitBlock merged(DigitBlock low, DigitBlock high, int count) {
  const DigitBlock mask = firstOf(count);
  return (low & mask) | (high & ~mask);
}

template <class Word>
inline DigitBlock loadWord(const char* at) {
  Word word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

template <class Word>
inline void storeWord(char* at, DigitBlock block) {
  const auto word = static_cast<Word>(block);
  std::memcpy(at, &word, sizeof word);
}

// N characters into the highest bytes of a block, zeros below them. Nothing else is read: words that
// overlap bring the same characters twice.
template <int N>
inline DigitBlock loadLast(const char* at) {
  static_assert(N >= 1 && N <= kBlockDigits);
  constexpr int kShift = (kBlockDigits - N) * 8;
  if constexpr (N == 8) {
    return loadWord<std::uint64_t>(at);
  } else if constexpr (N >= 4) {
    return loadWord<std::uint32_t>(at) << kShift | loadWord<std::uint32_t>(at + N - 4) << 32;
  } else if constexpr (N >= 2) {
    return loadWord<std::uint16_t>(at) << kShift | loadWord<std::uint16_t>(at + N - 2) << 48;
  } else {
    return loadWord<std::uint8_t>(at) << kShift;
  }
}

// The N characters in the highest bytes of a block; nothing else is written.
template <int N>
inline void storeLast(char* at, DigitBlock block) {
  static_assert(N >= 1 && N <= kBlockDigits);
  constexpr int kShift = (kBlockDigits - N) * 8;
  if constexpr (N == 8) {
    storeWord<std::uint64_t>(at, block);
  } else if constexpr (N >= 4) {
    storeWord<std::uint32_t>(at, block >> kShift);
    storeWord<std::uint32_t>(at + N - 4, block >> 32);
  } else if constexpr (N >= 2) {
    storeWord<std::uint16_t>(at, block >> kShift);
    storeWord<std::uint16_t>(at + N - 2, block >> 48);
  } else {
    storeWord<std::uint8_t>(at, block >> kShift);
  }
}

// Zero when all eight characters are digits: the bits tell which of them are not.
constexpr DigitBlock nonDigits(DigitBlock block) {
  constexpr DigitBlock kHighHalves = repeated('\xF0');
  // A digit stays below 0x40 when 6 is added to it.
  return ((block & kHighHalves) ^ repeated('0')) |
         (((block + repeated('\x06')) & kHighHalves) ^ repeated('0'));
}

// Neighbouring digits put together: four numbers below 100 in the block's four quarters, the first in
// the lowest.
constexpr DigitBlock pairsOf(DigitBlock digits) {
  return (digits & repeated('\x0F')) * (10 * 0x100 + 1) >> 8 & 0x00FF00FF00FF00FF;
}

// The number that four pairs make.
constexpr std::uint32_t numberOfPairs(DigitBlock pairs) {
  const DigitBlock fours = pairs * (100 * 0x10000 + 1) >> 16 & 0x0000FFFF0000FFFF;
  return static_cast<std::uint32_t>(fours * (10000 * 0x100000000 + 1) >> 32);
}

// The number that the N digits in a block's highest bytes make; zeros stand below them.
template <int N>
constexpr std::uint32_t numberOf(DigitBlock digits) {
  const DigitBlock pairs = pairsOf(digits);
  if constexpr (N <= 2) {
    return static_cast<std::uint32_t>(pairs >> 48);
  } else {
    return numberOfPairs(pairs);
  }
}

// The eight digits of a number below kBlockLimit, with leading zeros.
constexpr DigitBlock digitsOf(std::uint32_t number) {
  // Taken apart the other way round: to fours, to pairs, to digits. The divisions by 100 and 10 are
  // multiplications by rounded reciprocals, exact in the range of a four and of a pair.
  const DigitBlock fours = number / 10000 | DigitBlock{number % 10000} << 32;
  const DigitBlock hundreds = (fours * 10486 >> 20) & 0x0000007F0000007F;
  const DigitBlock pairs = hundreds | (fours - 100 * hundreds) << 16;
  const DigitBlock tens = (pairs * 103 >> 10) & 0x000F000F000F000F;
  return repeated('0') | tens | (pairs - 10 * tens) << 8;
}

// How many of the first characters of a block equal those of `repeatedCharacter`, 8 when all do.
constexpr int countLeading(DigitBlock block, DigitBlock repeatedCharacter) {
  return std::countr_zero(block ^ repeatedCharacter) / 8;
}

}  // namespace vcm

#endif
