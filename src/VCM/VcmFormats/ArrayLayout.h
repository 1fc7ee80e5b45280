// The array form: 512 numbers and 512 characters. Its positions are those that the public header names.
#ifndef VCM_VCMFORMATS_ARRAYLAYOUT_H
#define VCM_VCMFORMATS_ARRAYLAYOUT_H

#include <cstddef>
#include <span>
#include <string_view>

#include "VCM/VcmTypes/VcmRecord.h"
#include "vcm/Vcm.h"

namespace vcm {

inline constexpr std::size_t kArrayNumbers = VCM_NUM_ARRAY_LENGTH;
inline constexpr std::size_t kArrayCharacters = VCM_CHAR_ARRAY_LENGTH;

// One number: its position, counted from 0, and how it goes out of a record and into one. Any double
// may go in: an integer is truncated and saturates at 32 bits, not-a-number is 0 there; what is no
// date makes a date of zeros.
struct ArrayNumber {
  std::size_t position;
  double (*get)(const VcmRecord& record);
  void (*set)(VcmRecord& record, double value);
};

// One text: its first position, counted from 0, and its width.
struct ArrayText {
  std::size_t position;
  std::size_t width;
  std::string_view (*get)(const VcmRecord& record);
  void (*set)(VcmRecord& record, std::string_view text);
};

extern const std::span<const ArrayNumber> kArrayNumberLayout;
extern const std::span<const ArrayText> kArrayTextLayout;

// The covariance triangle; only where the covariance size is at least 1.
inline constexpr std::size_t kArrayCovariance = VCM_NUM_COVARIANCE;

}  // namespace vcm

#endif
