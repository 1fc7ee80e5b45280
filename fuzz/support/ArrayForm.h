// A message in the array form, and what must hold of every message that was written as text.
#ifndef FUZZ_SUPPORT_ARRAYFORM_H
#define FUZZ_SUPPORT_ARRAYFORM_H

#include <bit>
#include <cstdint>
#include <vector>

#include "vcm/Vcm.h"

namespace fuzz {

// Also for what no comparison tells apart, such as not-a-number and zeros of either sign.
inline bool equalBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

// As callers pass it, in memory of just its size.
struct ArrayForm {
  std::vector<double> numbers = std::vector<double>(VCM_NUM_ARRAY_LENGTH);
  std::vector<char> texts = std::vector<char>(VCM_CHAR_ARRAY_LENGTH, ' ');

  // A stored message.
  static ArrayForm of(std::int64_t satKey);
  // To the bit.
  bool operator==(const ArrayForm& other) const;
};

// Both text forms can be written of it; and once a message has been text, its numbers are what they stay,
// however often they are written and read.
void requireStable(const ArrayForm& message);

}  // namespace fuzz

#endif
