// The library's messages on their way to the user.
#ifndef VCM_TOOLS_TRACE_H
#define VCM_TOOLS_TRACE_H

#include <cstdint>
#include <functional>
#include <string_view>

namespace vcmtool {

// Hands every line of the host's trace log to a receiver, without the blanks at its end. One of
// these may live at a time. The receiver must not call the library.
class Trace {
 public:
  using Receiver = std::function<void(bool isError, std::string_view line)>;

  explicit Trace(Receiver receiver);
  ~Trace();
  Trace(const Trace&) = delete;
  Trace& operator=(const Trace&) = delete;

 private:
  static void receive(std::int32_t isError, const char* text, std::int32_t length, void* trace);

  Receiver receiver_;
};

}  // namespace vcmtool

#endif
