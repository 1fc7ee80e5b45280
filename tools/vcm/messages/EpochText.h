// Epochs as text.
#ifndef VCM_TOOLS_EPOCHTEXT_H
#define VCM_TOOLS_EPOCHTEXT_H

#include <fmt/format.h>

namespace vcmtool {

inline constexpr int kEpochTextWidth = 21;

// Appends days since 1950 as "2028-206 12:04:31.384", rounded to the millisecond.
void appendEpoch(fmt::memory_buffer& out, double ds50Utc);

}  // namespace vcmtool

#endif
