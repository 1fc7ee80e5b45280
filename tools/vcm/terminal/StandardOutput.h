// Standard output as a command's result.
#ifndef VCM_TOOLS_STANDARDOUTPUT_H
#define VCM_TOOLS_STANDARDOUTPUT_H

#include "terminal/ExitCode.h"
#include "terminal/TextOutput.h"

namespace vcmtool {

class StandardOutput : public TextOutput {
 public:
  StandardOutput();

  // Writes what is left and returns the exit code of a command that came to `soFar`. A reader that
  // has seen enough is no failure.
  ExitCode finish(ExitCode soFar);
};

}  // namespace vcmtool

#endif
