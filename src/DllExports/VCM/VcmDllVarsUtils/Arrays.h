// Records and the array form: 512 numbers and 512 characters.
#ifndef VCM_VCMDLLVARSUTILS_ARRAYS_H
#define VCM_VCMDLLVARSUTILS_ARRAYS_H

#include <cstdint>
#include <span>

#include "VCM/VcmFormats/ArrayLayout.h"

namespace vcm {

using NumberArray = std::span<double, kArrayNumbers>;
using CharacterArray = std::span<char, kArrayCharacters>;

// Fills both arrays from a record: zeros and blanks where nothing is laid out.
void Vcm2Array(const VcmRecord& record, NumberArray numbers, CharacterArray characters);

// Fills both arrays from a stored record and returns 0. An unknown key returns 2 with a line in the
// error trace: the characters are blank then and the numbers as they were.
std::int32_t GetSatToFields(std::int64_t satKey, NumberArray numbers, CharacterArray characters);

}  // namespace vcm

#endif
