// Keeps what the library writes into the host's trace log.
#ifndef SUPPORT_TRACECAPTURE_H
#define SUPPORT_TRACECAPTURE_H

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

// While it lives it is the trace log's only sink. Lines are kept as they come, blanks included.
class TraceCapture {
 public:
  TraceCapture();
  ~TraceCapture();
  TraceCapture(const TraceCapture&) = delete;
  TraceCapture& operator=(const TraceCapture&) = delete;

  // What came since the last call, taken away; the trimmed forms without blanks at the end.
  std::vector<std::string> takeRawErrors();
  std::vector<std::string> takeErrors();
  std::vector<std::string> takeInfos();

 private:
  static void sink(std::int32_t isError, const char* text, std::int32_t length, void* context);
  std::mutex mutex_;
  std::vector<std::string> errors_;
  std::vector<std::string> infos_;
};

#endif
