#include "messages/EpochText.h"

#include <fmt/compile.h>

#include <cmath>
#include <cstdint>
#include <iterator>

#include "Host/HostCalendar.h"

namespace vcmtool {

void appendEpoch(fmt::memory_buffer& out, double ds50Utc) {
  // Half a millisecond on, a cut rounds, and the host has carried it as far as the year.
  constexpr double kHalfMillisecond = 0.0005 / 86400;
  const double shifted = ds50Utc + kHalfMillisecond;
  std::int32_t year = 0;
  std::int32_t dayOfYear = 0;
  std::int32_t hour = 0;
  std::int32_t minute = 0;
  double seconds = 0;
  dyklok(&shifted, &year, &dayOfYear, &hour, &minute, &seconds);
  const std::int64_t milliseconds = std::llround(seconds * 1e6) / 1000;
  fmt::format_to(std::back_inserter(out), FMT_COMPILE("{:04}-{:03} {:02}:{:02}:{:02}.{:03}"), year,
                 dayOfYear, hour, minute, milliseconds / 1000, milliseconds % 1000);
}

}  // namespace vcmtool
