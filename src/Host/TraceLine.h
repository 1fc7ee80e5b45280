// Lines for the host's trace log.
#ifndef HOST_TRACELINE_H
#define HOST_TRACELINE_H

#include <array>
#include <cstdint>
#include <string_view>

namespace vcm {

// Sends a text to the host's error trace, or as information, at exactly its length.
void logError(std::string_view text);
void logInfo(std::string_view text);

// A line of 128 characters, blank padded, composed from the left; what goes past the end is cut.
class TraceLine {
 public:
  TraceLine() { line_.fill(' '); }

  TraceLine& text(std::string_view text);
  // An integer right-aligned in `width` columns; more digits take more columns.
  TraceLine& number(std::int64_t value, int width = 0);
  // A satellite key, in the columns that every message gives it.
  TraceLine& key(std::int64_t satKey);
  // A real with 16 significant digits.
  TraceLine& real(double value);

  std::string_view view() const { return {line_.data(), line_.size()}; }
  void error() const { logError(view()); }
  void info() const { logInfo(view()); }

 private:
  std::array<char, 128> line_;
  std::size_t used_ = 0;
};

}  // namespace vcm

#endif
