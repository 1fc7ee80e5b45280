// What the program ends with.
#ifndef VCM_TOOLS_EXITCODE_H
#define VCM_TOOLS_EXITCODE_H

namespace vcmtool {

// The worst of several is the greatest.
enum ExitCode : int {
  kFine = 0,
  kBadInput = 1,  // something in the input was bad; the rest was worked on
  kFailed = 2     // wrong usage, or a file that cannot be read or written
};

}  // namespace vcmtool

#endif
