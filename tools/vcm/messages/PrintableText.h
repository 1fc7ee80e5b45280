// Texts of messages for people.
#ifndef VCM_TOOLS_PRINTABLETEXT_H
#define VCM_TOOLS_PRINTABLETEXT_H

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

namespace vcmtool {

// A message's text stands as its file had it; a terminal should not obey it.
inline std::string printable(std::string_view text) {
  std::string result(text);
  std::replace_if(
      result.begin(), result.end(),
      [](char c) { return std::isprint(static_cast<unsigned char>(c)) == 0; }, '?');
  return result;
}

}  // namespace vcmtool

#endif
