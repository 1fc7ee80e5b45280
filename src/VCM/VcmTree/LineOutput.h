// Lines into an open file, handed over by the megabyte.
#ifndef VCM_VCMTREE_LINEOUTPUT_H
#define VCM_VCMTREE_LINEOUTPUT_H

#include <cstddef>
#include <cstdio>
#include <string_view>
#include <vector>

namespace vcm {

// For one thread. The stream stays the caller's; the destructor hands over what is left. What a
// full disk does not take is lost without a word: writers of this library do not report it.
class LineOutput {
 public:
  explicit LineOutput(std::FILE* stream);
  ~LineOutput() { flush(); }
  LineOutput(const LineOutput&) = delete;
  LineOutput& operator=(const LineOutput&) = delete;

  // Writes a line without its trailing blanks.
  void line(std::string_view text);

  // The same for a line that is put together in place: room for `size` characters, of which those up
  // to `last` are the line.
  char* begin(std::size_t size);
  void end(const char* last);

  void flush();

 private:
  std::FILE* stream_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
};

}  // namespace vcm

#endif
