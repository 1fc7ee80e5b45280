// Files into the store.
#ifndef VCM_TOOLS_LOADING_H
#define VCM_TOOLS_LOADING_H

#include <string>

#include "VCM/VcmCardReading/ReadingObserver.h"
#include "commands/Inputs.h"
#include "terminal/ExitCode.h"
#include "terminal/Progress.h"

namespace vcmtool {

// Loads one file and tells the user when it cannot be read, or holds something but no message.
ExitCode loadFile(const std::string& file, vcm::ReadingObserver& observer, Progress& progress);

// Loads all files, also those after one that fails. The library's messages go to standard error.
// kBadInput when a message was left out for being bad, duplicates only if the inputs say so, or when a
// file holds no message.
ExitCode loadFiles(const Inputs& inputs);

}  // namespace vcmtool

#endif
