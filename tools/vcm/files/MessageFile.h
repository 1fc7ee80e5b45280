// A file of messages in any form that the program reads.
#ifndef VCM_TOOLS_MESSAGEFILE_H
#define VCM_TOOLS_MESSAGEFILE_H

#include <cstdint>
#include <string>

#include "VCM/VcmCardReading/ReadingObserver.h"

namespace vcmtool {

// Adds every good message of a file to the store. Returns 0, or the nonzero code of an open that
// failed.
std::int32_t readMessageFile(const std::string& name, vcm::ReadingObserver* observer = nullptr);

// The form that a file is in, for whoever writes it again: that of its messages, or the multi-line
// one where they are mixed.
std::string formOf(const std::string& name);

}  // namespace vcmtool

#endif
