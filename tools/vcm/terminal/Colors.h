// Colours of what goes to a terminal. None carries a meaning alone: signs and words say the same.
#ifndef VCM_TOOLS_COLORS_H
#define VCM_TOOLS_COLORS_H

#include <string>
#include <string_view>

namespace vcmtool {

enum class Style { removed, added, title, warning, error };

inline constexpr const char* kColorsOnTerminals = "auto";
inline constexpr const char* kColorsAlways = "always";
inline constexpr const char* kColorsNever = "never";

// One of the three above. Unless it is called, terminals alone get colours, and none when NO_COLOR
// is set to anything or TERM is "dumb" or not set.
void chooseColors(const std::string& when);

// The text as it goes to standard output or standard error.
std::string styled(int descriptor, Style style, std::string_view text);

}  // namespace vcmtool

#endif
