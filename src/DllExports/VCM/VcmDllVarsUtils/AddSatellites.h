// New messages into the store.
#ifndef VCM_VCMDLLVARSUTILS_ADDSATELLITES_H
#define VCM_VCMDLLVARSUTILS_ADDSATELLITES_H

#include <cstdint>
#include <string_view>

#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"

namespace vcm {

// Both return the new key, kDuplicateKey when an identical record is stored already, and kNoKey when
// what was given makes no valid record or the store does not take it: why stands in the error trace.

// From a message in any text form.
std::int64_t AddSatFrLines(std::string_view text);

// From the array form.
std::int64_t AddSatFrFields(ConstCharacterArray characters, ConstNumberArray numbers);

}  // namespace vcm

#endif
