// A message in whichever text form it came.
#ifndef VCM_VCMDLLVARSUTILS_ANYTEXT_H
#define VCM_VCMDLLVARSUTILS_ANYTEXT_H

#include <string_view>

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

// Parses a text that holds one message: a one-line message, or a multi-line one as lines of any
// width, with or without line ends. The result's parseStatus is the parser's; text that is neither
// form, or has fewer than 27 lines, makes an empty record with kRejected and a line in the error
// trace.
VcmRecord AnyVcmStrings2Vcm(std::string_view text);

}  // namespace vcm

#endif
