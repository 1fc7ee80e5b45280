// Names that are typed by mistake.
#ifndef VCM_TOOLS_NEARESTNAME_H
#define VCM_TOOLS_NEARESTNAME_H

#include <span>
#include <string>
#include <string_view>

namespace vcmtool {

// "; did you mean NAME?" with the nearest of the names. Empty when none is near: then a guess would be
// none.
std::string nearestName(std::string_view wrong, std::span<const std::string_view> names);

}  // namespace vcmtool

#endif
