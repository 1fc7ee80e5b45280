// Standard output, written in large pieces.
#ifndef VCM_TOOLS_STANDARDOUTPUT_H
#define VCM_TOOLS_STANDARDOUTPUT_H

#include <fmt/format.h>

#include "Command.h"

namespace vcmtool {

class StandardOutput {
 public:
  fmt::memory_buffer& buffer() { return buffer_; }

  // To be called where a line is complete. False once nothing can be written any more.
  bool lineDone();

  // Writes what is left and returns the exit code of a command that came to `soFar`. A reader that
  // has seen enough is no failure.
  ExitCode finish(ExitCode soFar);

 private:
  void flush();

  fmt::memory_buffer buffer_;
  int error_ = 0;
};

}  // namespace vcmtool

#endif
