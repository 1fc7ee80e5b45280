// Records and the array form: 512 numbers and 512 characters.
#ifndef VCM_VCMDLLVARSUTILS_ARRAYS_H
#define VCM_VCMDLLVARSUTILS_ARRAYS_H

#include <cstdint>
#include <span>

#include "VCM/VcmFormats/ArrayLayout.h"

namespace vcm {

using NumberArray = std::span<double, kArrayNumbers>;
using CharacterArray = std::span<char, kArrayCharacters>;
using ConstNumberArray = std::span<const double, kArrayNumbers>;
using ConstCharacterArray = std::span<const char, kArrayCharacters>;

// Fills both arrays from a record: zeros and blanks where nothing is laid out.
void Vcm2Array(const VcmRecord& record, NumberArray numbers, CharacterArray characters);

// Builds a record from both arrays; what they do not carry (the common name, maneuver cards) is empty.
// Any number in any position gives a record, with parseStatus kGood: nothing is validated.
VcmRecord Array2Vcm(ConstCharacterArray characters, ConstNumberArray numbers);

// Fills both arrays from a stored record and returns 0. An unknown key returns 2 with a line in the
// error trace: the characters are blank then and the numbers as they were.
std::int32_t GetSatToFields(std::int64_t satKey, NumberArray numbers, CharacterArray characters);

// Replaces a stored record by what both arrays hold, but for its satellite number and epoch. Returns 0,
// or 2 with a line in the error trace when the key is unknown or the record that was stored breaks a
// limit: deliberately, the new values are not validated. What else the store says of the update comes
// back as it is.
std::int32_t UpdateSatFrFields(std::int64_t satKey, ConstCharacterArray characters,
                               ConstNumberArray numbers);

}  // namespace vcm

#endif
