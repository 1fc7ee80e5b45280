// All stored messages into a file.
#ifndef VCM_TOOLS_MESSAGEOUTPUT_H
#define VCM_TOOLS_MESSAGEOUTPUT_H

#include <string>

#include "terminal/ExitCode.h"

namespace vcmtool {

// Writes every stored message, ascending by key, to a file of this name ("-" is standard output).
// The file appears whole or not at all; what goes wrong is told to the user.
// With `onlyIfAllFit` a regular file stays what it was when a value does not fit into its field.
ExitCode writeMessages(const std::string& fileName, const std::string& form,
                       bool onlyIfAllFit = false);

}  // namespace vcmtool

#endif
