#include "VCM/VcmTree/LineOutput.h"

#include <algorithm>

namespace vcm {

namespace {
constexpr std::size_t kBufferSize = std::size_t{1} << 20;
}

LineOutput::LineOutput(std::FILE* stream) : stream_(stream), buffer_(kBufferSize) {}

void LineOutput::line(std::string_view text) {
  text = text.substr(0, text.find_last_not_of(' ') + 1);
  if (used_ + text.size() + 1 > buffer_.size()) {
    flush();
  }
  std::copy(text.begin(), text.end(), buffer_.data() + used_);
  used_ += text.size();
  buffer_[used_++] = '\n';
}

void LineOutput::flush() {
  static_cast<void>(std::fwrite(buffer_.data(), 1, used_, stream_));
  used_ = 0;
}

}  // namespace vcm
