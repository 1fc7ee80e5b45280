// Text for an open file, written in large pieces.
#ifndef VCM_TOOLS_TEXTOUTPUT_H
#define VCM_TOOLS_TEXTOUTPUT_H

#include <fmt/format.h>

#include <string_view>

namespace vcmtool {

class TextOutput {
 public:
  // The descriptor stays the caller's.
  explicit TextOutput(int descriptor) : descriptor_(descriptor) {}

  fmt::memory_buffer& buffer() { return buffer_; }

  // To be called where a line is complete. False once nothing can be written any more.
  bool lineDone();
  // Appends a line without its trailing blanks.
  bool line(std::string_view text);

  // Writes what is left. Returns 0 or the errno value of the first write that failed.
  int finish();

 private:
  void flush();

  int descriptor_;
  fmt::memory_buffer buffer_;
  int error_ = 0;
};

}  // namespace vcmtool

#endif
