// Dates as the command line states them.
#ifndef VCM_TOOLS_GIVENDATE_H
#define VCM_TOOLS_GIVENDATE_H

#include <string_view>

#include "VCM/VcmTypes/InputDate.h"

namespace vcmtool {

// False when the text is no date, or one that no calendar has: what is typed by mistake would be another
// day in silence.
bool readGivenDate(std::string_view text, vcm::InputDate& date);

// Some that are taken, as a message says it.
inline constexpr std::string_view kGivenDates =
    "2016366235959.000, 2016-366T23:59:59.000Z or 2016-12-31 23:59";

}  // namespace vcmtool

#endif
