// Numbers into fixed-width fields.
//
// Every function fills exactly `width` characters at `out`, the number right-aligned. A number that
// does not fit is a row of asterisks; where one character is missing, the zero before the point
// gives way. Digits are the correctly rounded ones of the exact binary value, ties to even.
// Not-a-number is "NaN", an infinity asterisks; a negative number that rounds to zero keeps its
// sign.
#ifndef VCM_VCMFORMATS_NUMBERWRITING_H
#define VCM_VCMFORMATS_NUMBERWRITING_H

#include <cstdint>

namespace vcm {

void writeInteger(char* out, int width, std::int64_t value);

// With leading zeros to the full width, so that a negative number never fits.
void writeZeroFilled(char* out, int width, std::int64_t value);

// `decimals` digits behind the point.
void writeFixed(char* out, int width, int decimals, double value);

// Mantissa 0.ddd of `digits` digits, the letter E, a sign and two digits of exponent.
void writeScientific(char* out, int width, int digits, double value);

// The general notation with 17 significant digits, enough to tell any two doubles apart: plain from
// 0.1 up to 17 digits before the point, otherwise d.ddd, the letter E, a sign and three digits of
// exponent.
inline constexpr int kGeneralWidth = 24;
void writeGeneral(char* out, double value);

// A real as an integer: truncated toward zero, saturating at the limits of 32 bits, 0 for
// not-a-number.
std::int32_t truncated(double value);

}  // namespace vcm

#endif
