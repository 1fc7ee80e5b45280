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

}  // namespace vcmtool

#endif
