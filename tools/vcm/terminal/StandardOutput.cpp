#include "terminal/StandardOutput.h"

#include <unistd.h>

#include <cerrno>

#include "terminal/Screen.h"

namespace vcmtool {

StandardOutput::StandardOutput() : TextOutput(STDOUT_FILENO) {}

ExitCode StandardOutput::finish(ExitCode soFar) {
  const int code = TextOutput::finish();
  if (code == 0 || code == EPIPE) {
    return soFar;
  }
  printFailure("standard output", code);
  return kFailed;
}

}  // namespace vcmtool
