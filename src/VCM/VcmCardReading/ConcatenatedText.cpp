#include "VCM/VcmCardReading/ConcatenatedText.h"

namespace vcm {

namespace {

// The first of either mark; what lies behind a "<" need not be searched for the other.
std::size_t findMark(std::string_view text, std::size_t from) {
  const std::size_t open = text.find('<', from);
  const std::size_t close = text.substr(0, open).find('>', from);
  return close != std::string_view::npos ? close : open;
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
