// Recognising maneuver cards.
#include <algorithm>
#include <cstddef>
#include <string_view>

#include "Host/HostOrbit.h"

namespace {

constexpr std::string_view kKeyword = "MANEUV";

char capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

std::int32_t ismaneuvcardtype(const char* card, const std::int32_t* length) {
  std::string_view text(card, static_cast<std::size_t>(std::max(*length, 0)));
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.size() >= kKeyword.size() &&
                 std::equal(kKeyword.begin(), kKeyword.end(), text.begin(),
                            [](char expected, char c) { return expected == capital(c); })
             ? 1
             : 0;
}
