#include "VCM/VcmCardReading/ConcatenatedText.h"

namespace vcm {

namespace {

// A search for either of two characters, several times as fast as that of the standard library.
std::size_t findMark(std::string_view text, std::size_t from) {
  for (std::size_t i = from; i < text.size(); ++i) {
    if (text[i] == '<' || text[i] == '>') {
      return i;
    }
  }
  return std::string_view::npos;
}

}  // namespace

ConcatenatedLines Concatenated2MultiLine(std::string_view text) {
  ConcatenatedLines result;
  std::size_t first = findMark(text, 0);
  while (first != std::string_view::npos && !result.isFull()) {
    const std::size_t next = findMark(text, 2);
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
