// The texts of messages, a byte a character, and the UTF-8 of the forms that other programs read.
#ifndef VCM_TOOLS_LATIN1_H
#define VCM_TOOLS_LATIN1_H

#include <optional>
#include <string>
#include <string_view>

namespace vcmtool {

// Each byte becomes the character of that number.
std::string utf8OfLatin1(std::string_view text);

// The way back, for UTF-8 without errors; none when a character is above 255.
std::optional<std::string> latin1OfUtf8(std::string_view text);

}  // namespace vcmtool

#endif
