#include "VCM/VcmTree/LineOutput.h"

#include <algorithm>

namespace vcm {

namespace {
constexpr std::size_t kBufferSize = std::size_t{1} << 20;
}

LineOutput::LineOutput(std::FILE* stream) : stream_(stream), buffer_(kBufferSize) {}

void LineOutput::line(std::string_view text) {
  char* const at = begin(text.size());
  end(std::copy(text.begin(), text.end(), at));
}

char* LineOutput::begin(std::size_t size) {
  if (used_ + size + 1 > buffer_.size()) {
    flush();
  }
  return buffer_.data() + used_;
}

void LineOutput::end(const char* last) {
  const char* const first = buffer_.data() + used_;
  while (last != first && last[-1] == ' ') {
    --last;
  }
  used_ = static_cast<std::size_t>(last - buffer_.data());
  buffer_[used_++] = '\n';
}

void LineOutput::flush() {
  static_cast<void>(std::fwrite(buffer_.data(), 1, used_, stream_));
  used_ = 0;
}

}  // namespace vcm
