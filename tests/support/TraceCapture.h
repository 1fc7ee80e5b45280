// Keeps what the library writes into the host's trace log.
#ifndef SUPPORT_TRACECAPTURE_H
#define SUPPORT_TRACECAPTURE_H

#include <string>
#include <utility>
#include <vector>

#include "host/HostTrace.h"

// While it lives it is the trace log's only sink. Lines are kept as they come, blanks included.
class TraceCapture {
 public:
  TraceCapture() { hosttracesink(keep, this); }
  ~TraceCapture() { hosttracesink(nullptr, nullptr); }
  TraceCapture(const TraceCapture&) = delete;
  TraceCapture& operator=(const TraceCapture&) = delete;

  // What came since the last call, taken away; the trimmed forms without blanks at the end.
  std::vector<std::string> takeRawErrors() { return std::exchange(lines_[true], {}); }
  std::vector<std::string> takeErrors() { return trimmed(takeRawErrors()); }
  std::vector<std::string> takeInfos() { return trimmed(std::exchange(lines_[false], {})); }

 private:
  // The host calls it for one line at a time.
  static void keep(std::int32_t isError, const char* text, std::int32_t length, void* context) {
    static_cast<TraceCapture*>(context)->lines_[isError != 0].emplace_back(
        text, static_cast<std::size_t>(length));
  }
  static std::vector<std::string> trimmed(std::vector<std::string> lines) {
    for (std::string& line : lines) {
      line.erase(line.find_last_not_of(' ') + 1);
    }
    return lines;
  }

  std::vector<std::string> lines_[2];  // infos and errors
};

#endif
