#include "commands/FieldNames.h"

#include <fmt/format.h>
#include <strings.h>

#include <algorithm>
#include <cctype>
#include <iterator>
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

// Empty when no field's name is near: then a guess would be none.
std::string_view nearestName(std::string_view wrong) {
  constexpr std::size_t kLongest = 30;
  constexpr std::size_t kCharactersPerMistake = 3;
  const auto distances = [wrong](const vcm::SingleField& a, const vcm::SingleField& b) {
    return distance(wrong, a.name) < distance(wrong, b.name);
  };
  if (wrong.size() > kLongest) {
    return {};
  }
  const auto& nearest =
      *std::min_element(vcm::kSingleFields.begin(), vcm::kSingleFields.end(), distances);
  return distance(wrong, nearest.name) <= (wrong.size() + 1) / kCharactersPerMistake ? nearest.name
                                                                                     : "";
}

}  // namespace

const vcm::SingleField* fieldNamed(std::string_view nameOrIndex) {
  const std::string wanted(nameOrIndex);
  const auto found = std::find_if(
      vcm::kSingleFields.begin(), vcm::kSingleFields.end(), [&wanted](const vcm::SingleField& row) {
        return strcasecmp(std::string(row.name).c_str(), wanted.c_str()) == 0 ||
               std::to_string(row.index) == wanted;
      });
  return found == vcm::kSingleFields.end() ? nullptr : &*found;
}

std::string unknownField(std::string_view nameOrIndex) {
  if (fieldNamed(nameOrIndex) != nullptr) {
    return {};
  }
  const std::string_view nearest = nearestName(nameOrIndex);
  return fmt::format("{} is no field{}", nameOrIndex,
                     nearest.empty() ? "" : fmt::format("; did you mean {}?", nearest));
}

std::string fieldNames() {
  constexpr std::size_t kInRow = 4;
  constexpr int kNameWidth = 15;
  const std::size_t rows = (vcm::kSingleFields.size() + kInRow - 1) / kInRow;
  std::string text;
  for (std::size_t row = 0; row < rows; ++row) {
    std::string line;
    for (std::size_t i = row; i < vcm::kSingleFields.size(); i += rows) {
      const vcm::SingleField& field = vcm::kSingleFields[i];
      fmt::format_to(std::back_inserter(line), "  {:>2} {:<{}}", field.index, field.name,
                     kNameWidth);
    }
    text.append(line, 0, line.find_last_not_of(' ') + 1).append("\n");
  }
  return text;
}

}  // namespace vcmtool
