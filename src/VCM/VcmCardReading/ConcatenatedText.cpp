#include "VCM/VcmCardReading/ConcatenatedText.h"

namespace vcm {

ConcatenatedLines Concatenated2MultiLine(std::string_view text) {
  constexpr std::string_view kMarks = "<>";
  ConcatenatedLines result;
  std::size_t first = text.find_first_of(kMarks);
  while (first != std::string_view::npos && !result.isFull()) {
    const std::size_t next = text.find_first_of(kMarks, 2);
    if (next == std::string_view::npos) {
      result.add(text);
      break;
    }
    // A mark found first behind the second character is also the next one: an empty line.
    result.add(first < next ? text.substr(first, next - first) : std::string_view());
    text.remove_prefix(next);
    first = 0;
  }
  return result;
}

}  // namespace vcm
