#include "VCM/VcmTree/LineOutput.h"

#include <algorithm>
#include <cerrno>

namespace vcm {

namespace {
constexpr std::size_t kBufferSize = std::size_t{1} << 20;
}

LineOutput::LineOutput(std::FILE* stream) : stream_(stream), buffer_(kBufferSize) {
  // Of a buffer of the stream's own, what a signal interrupts would be lost.
  static_cast<void>(std::setvbuf(stream, nullptr, _IONBF, 0));
}

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
  std::size_t written = 0;
  do {
    errno = 0;
    written += std::fwrite(buffer_.data() + written, 1, used_ - written, stream_);
  } while (written < used_ && errno == EINTR);
  used_ = 0;
}

}  // namespace vcm
