#include "Host/TraceLine.h"

#include <algorithm>
#include <charconv>

#include "Host/HostCore.h"

namespace vcm {

void logError(std::string_view text) {
  const auto length = static_cast<std::int32_t>(text.size());
  tracelogerror(text.data(), &length);
}

void logInfo(std::string_view text) {
  const auto length = static_cast<std::int32_t>(text.size());
  traceloginfo(text.data(), &length);
}

TraceLine& TraceLine::text(std::string_view text) {
  const std::size_t n = std::min(text.size(), line_.size() - used_);
  std::copy_n(text.data(), n, line_.data() + used_);
  used_ += n;
  return *this;
}

TraceLine& TraceLine::number(std::int64_t value, int width) {
  std::array<char, 20> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  const auto length = static_cast<std::size_t>(end - digits.data());
  for (std::size_t blanks = length; blanks < static_cast<std::size_t>(width); ++blanks) {
    text(" ");
  }
  return text({digits.data(), length});
}

TraceLine& TraceLine::key(std::int64_t satKey) {
  constexpr int kKeyColumns = 19;
  return number(satKey, kKeyColumns);
}

TraceLine& TraceLine::real(double value) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                 std::chars_format::general, 16)
                       .ptr;
  return text({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

}  // namespace vcm
