// One-line messages into records.
#ifndef VCM_VCMCARDREADING_ONELINEPARSER_H
#define VCM_VCMCARDREADING_ONELINEPARSER_H

#include <cstdint>
#include <span>
#include <string_view>

#include "VCM/VcmCardReading/ReadingObserver.h"
#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

// Parses one line, of which at most 1500 characters count. A field that cannot be read keeps its
// empty value, in silence; parseStatus is what ValidateVcmValues says of the record. The observer,
// if any, is told of every such field, as on line `lineNumber`.
VcmRecord Vcm1Line2Vcm(std::string_view line, ReadingObserver* observer = nullptr,
                       std::int64_t lineNumber = 0);

// Parses one line and writes it as a multi-line message into `text`, an area of 80-character lines.
// Returns 0, or 2 when the writer fails. A line that makes no valid record leaves the area blank
// and returns 0: a blank area is no success.
std::int32_t Vcm1Line2VcmLines(std::string_view line, std::span<char> text);

}  // namespace vcm

#endif
