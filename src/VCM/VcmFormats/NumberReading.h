// Numbers out of fixed-width fields.
//
// Blanks inside a field are ignored and a blank field is zero. Each function returns false, and
// leaves the value alone, when the field cannot be read.
#ifndef VCM_VCMFORMATS_NUMBERREADING_H
#define VCM_VCMFORMATS_NUMBERREADING_H

#include <cstdint>
#include <string_view>

namespace vcm {

// An optional sign and digits, within 32 bits.
bool readInteger(std::string_view field, std::int32_t& value);

// A real, to the nearest double. Digits without a point and without an exponent have a point put
// before their last `impliedDecimals`. An exponent begins with E, e, D, d or a bare sign. What
// overflows to infinity cannot be read; underflow is zero.
bool readReal(std::string_view field, int impliedDecimals, double& value);

// Takes the next number off the front of a list of numbers separated by blanks. False at the end of
// the list or at what is no number.
bool readListed(std::string_view& list, double& value);

}  // namespace vcm

#endif
