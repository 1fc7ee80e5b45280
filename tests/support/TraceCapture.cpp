#include "support/TraceCapture.h"

#include <utility>

#include "host/HostTrace.h"

namespace {

std::vector<std::string> trimmed(std::vector<std::string> lines) {
  for (std::string& line : lines) {
    line.erase(line.find_last_not_of(' ') + 1);
  }
  return lines;
}

}  // namespace

TraceCapture::TraceCapture() { hosttracesink(&TraceCapture::sink, this); }

TraceCapture::~TraceCapture() { hosttracesink(nullptr, nullptr); }

void TraceCapture::sink(std::int32_t isError, const char* text, std::int32_t length,
                        void* context) {
  auto* const self = static_cast<TraceCapture*>(context);
  const std::lock_guard<std::mutex> lock(self->mutex_);
  (isError != 0 ? self->errors_ : self->infos_)
      .emplace_back(text, static_cast<std::size_t>(length));
}

std::vector<std::string> TraceCapture::takeRawErrors() {
  const std::lock_guard<std::mutex> lock(mutex_);
  return std::exchange(errors_, {});
}

std::vector<std::string> TraceCapture::takeErrors() { return trimmed(takeRawErrors()); }

std::vector<std::string> TraceCapture::takeInfos() {
  const std::lock_guard<std::mutex> lock(mutex_);
  return trimmed(std::exchange(infos_, {}));
}
