// Dates of a message as ISO 8601 ordinal dates, "2028-206T12:04:31.384Z".
#ifndef VCM_TOOLS_ISODATE_H
#define VCM_TOOLS_ISODATE_H

#include <string>
#include <string_view>

#include "VCM/VcmTypes/InputDate.h"

namespace vcmtool {

// As many digits as the seconds need to come back exactly. Parts that no calendar has stay what
// they are.
std::string isoDate(const vcm::InputDate& date);

// False when the text is no such date; then `date` keeps its value.
bool readIsoDate(std::string_view text, vcm::InputDate& date);

}  // namespace vcmtool

#endif
