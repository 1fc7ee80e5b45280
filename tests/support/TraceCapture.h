// Keeps what the library writes into the host's trace log.
#ifndef SUPPORT_TRACECAPTURE_H
#define SUPPORT_TRACECAPTURE_H

#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "host/HostTrace.h"

// While it lives it is the trace log's only sink. Lines are kept as they come, blanks included.
class TraceCapture {
 public:
  TraceCapture() { hosttracesink(&TraceCapture::sink, this); }
  ~TraceCapture() { hosttracesink(nullptr, nullptr); }
  TraceCapture(const TraceCapture&) = delete;
  TraceCapture& operator=(const TraceCapture&) = delete;

  // What came since the last call, taken away; the trimmed forms without blanks at the end.
  std::vector<std::string> takeRawErrors() { return take(true); }
  std::vector<std::string> takeErrors() { return trimmed(take(true)); }
  std::vector<std::string> takeInfos() { return trimmed(take(false)); }

 private:
  static void sink(std::int32_t isError, const char* text, std::int32_t length, void* context) {
    auto* const self = static_cast<TraceCapture*>(context);
    const std::lock_guard<std::mutex> lock(self->mutex_);
    self->lines_[isError != 0].emplace_back(text, static_cast<std::size_t>(length));
  }
  std::vector<std::string> take(bool errors) {
    const std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(lines_[errors], {});
  }
  static std::vector<std::string> trimmed(std::vector<std::string> lines) {
    for (std::string& line : lines) {
      line.erase(line.find_last_not_of(' ') + 1);
    }
    return lines;
  }

  std::mutex mutex_;
  std::vector<std::string> lines_[2];  // infos and errors
};

#endif
