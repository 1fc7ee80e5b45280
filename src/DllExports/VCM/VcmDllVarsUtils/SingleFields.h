// One field of a stored message, as text.
#ifndef VCM_VCMDLLVARSUTILS_SINGLEFIELDS_H
#define VCM_VCMDLLVARSUTILS_SINGLEFIELDS_H

#include <cstdint>
#include <span>
#include <string_view>

namespace vcm {

// Fills `value` with the field, shifted left; with blanks when the index is none. Returns 0, or 2 with
// a line in the error trace when the key is unknown: then the value is blank too.
std::int32_t GetField(std::int64_t satKey, std::int32_t fieldIndex, std::span<char> value);

// Changes the field; an index that is none changes nothing. Returns 0, or 2 with a line in the error
// trace when the field may not be changed, the key is unknown, the value is no date where one is
// wanted, or the record would break a limit: then the stored record is as it was. What else the store
// says of the update comes back as it is.
std::int32_t SetField(std::int64_t satKey, std::int32_t fieldIndex, std::string_view value);

}  // namespace vcm

#endif
