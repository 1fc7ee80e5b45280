#include "commands/NearestName.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <numeric>
#include <vector>

namespace vcmtool {

namespace {

// Characters to put in, take out or change until one name is the other.
std::size_t distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (const char c : from) {
    std::size_t diagonal = row[0]++;
    for (std::size_t i = 0; i < to.size(); ++i) {
      const bool same = std::tolower(static_cast<unsigned char>(c)) ==
                        std::tolower(static_cast<unsigned char>(to[i]));
      const std::size_t changed = diagonal + (same ? 0 : 1);
      diagonal = row[i + 1];
      row[i + 1] = std::min({changed, row[i] + 1, diagonal + 1});
    }
  }
  return row.back();
}

}  // namespace

std::string nearestName(std::string_view wrong, std::span<const std::string_view> names) {
  constexpr std::size_t kLongest = 30;
  constexpr std::size_t kCharactersPerMistake = 3;
  if (wrong.size() > kLongest) {
    return {};
  }
  const std::string_view nearest = *std::min_element(
      names.begin(), names.end(), [wrong](std::string_view a, std::string_view b) {
        return distance(wrong, a) < distance(wrong, b);
      });
  return distance(wrong, nearest) <= (wrong.size() + 1) / kCharactersPerMistake
             ? fmt::format("; did you mean {}?", nearest)
             : "";
}

}  // namespace vcmtool
