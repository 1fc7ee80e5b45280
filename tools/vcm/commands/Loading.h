// Files into the store.
#ifndef VCM_TOOLS_LOADING_H
#define VCM_TOOLS_LOADING_H

#include "commands/Inputs.h"
#include "terminal/ExitCode.h"

namespace vcmtool {

// Loads all files, also those after one that fails. The library's messages go to standard error.
// kBadInput when a message was left out for being bad; duplicates only if the inputs say so.
ExitCode loadFiles(const Inputs& inputs);

}  // namespace vcmtool

#endif
