// Dates as single fields and the typed interface show them.
#ifndef VCM_VCMFORMATS_FIELDDATE_H
#define VCM_VCMFORMATS_FIELDDATE_H

#include <string_view>

#include "VCM/VcmTypes/InputDate.h"
#include "vcm/Vcm.h"

namespace vcm {

// The date of a field, yyyydddhhmmss.sss.
inline constexpr int kFieldDateWidth = VCM_DATE_LENGTH;

// Writes the date. A fraction that rounds up to one second is carried as far as the year, so that the
// text has its 17 characters and is a date. A part that does not fit is asterisks.
void writeFieldDate(const InputDate& date, char* out);

// Reads the date; seconds without a point have three decimals. False, and the date as it was, when a
// part cannot be read.
bool readFieldDate(std::string_view text, InputDate& date);

}  // namespace vcm

#endif
