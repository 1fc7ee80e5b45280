#include "StandardOutput.h"

#include <cerrno>

#include "Screen.h"

namespace vcmtool {

bool StandardOutput::lineDone() {
  constexpr std::size_t kPiece = std::size_t{1} << 18;
  if (buffer_.size() >= kPiece) {
    flush();
  }
  return error_ == 0;
}

ExitCode StandardOutput::finish(ExitCode soFar) {
  flush();
  if (error_ == 0 || error_ == EPIPE) {
    return soFar;
  }
  printFailure("standard output", error_);
  return kFailed;
}

void StandardOutput::flush() {
  if (error_ == 0 && buffer_.size() > 0) {
    error_ = writeOutput({buffer_.data(), buffer_.size()});
  }
  buffer_.clear();
}

}  // namespace vcmtool
