#include "terminal/TextOutput.h"

#include "terminal/Screen.h"

namespace vcmtool {

bool TextOutput::lineDone() {
  constexpr std::size_t kPiece = std::size_t{1} << 18;
  if (buffer_.size() >= kPiece) {
    flush();
  }
  return error_ == 0;
}

bool TextOutput::line(std::string_view text) {
  buffer_.append(text.substr(0, text.find_last_not_of(' ') + 1));
  buffer_.push_back('\n');
  return lineDone();
}

int TextOutput::finish() {
  flush();
  return error_;
}

void TextOutput::flush() {
  if (error_ == 0 && buffer_.size() > 0) {
    error_ = writeOutput(descriptor_, {buffer_.data(), buffer_.size()});
  }
  buffer_.clear();
}

}  // namespace vcmtool
