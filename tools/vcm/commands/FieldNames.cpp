#include "commands/FieldNames.h"

#include <fmt/format.h>
#include <strings.h>

#include <algorithm>
#include <iterator>
#include <vector>

#include "commands/NearestName.h"
#include "messages/RecordFields.h"

namespace vcmtool {

namespace {

// In small or capital letters.
bool isSame(std::string_view name, const std::string& wanted) {
  return strcasecmp(std::string(name).c_str(), wanted.c_str()) == 0;
}

// The index of the field that is shown by this name, 0 when there is none.
std::int32_t indexOfShown(const std::string& wanted) {
  for (const RecordField& field : kRecordFields) {
    const auto* const vector = std::get_if<VectorMember>(&field.member);
    if (vector == nullptr && isSame(field.name, wanted)) {
      return field.single;
    }
    for (std::size_t i = 0; vector != nullptr && field.single != 0 && i < vector->axes.size();
         ++i) {
      if (isSame(vector->component(i), wanted)) {
        return field.single + static_cast<std::int32_t>(i);
      }
    }
  }
  return 0;
}

}  // namespace

const vcm::SingleField* fieldNamed(std::string_view nameOrIndex) {
  const std::string wanted(nameOrIndex);
  const auto found = std::find_if(
      vcm::kSingleFields.begin(), vcm::kSingleFields.end(), [&wanted](const vcm::SingleField& row) {
        return isSame(row.name, wanted) || std::to_string(row.index) == wanted;
      });
  return found == vcm::kSingleFields.end() ? vcm::findSingleField(indexOfShown(wanted)) : &*found;
}

std::string unknownField(std::string_view nameOrIndex) {
  if (fieldNamed(nameOrIndex) != nullptr) {
    return {};
  }
  std::vector<std::string_view> names(vcm::kSingleFields.size());
  std::transform(vcm::kSingleFields.begin(), vcm::kSingleFields.end(), names.begin(),
                 [](const vcm::SingleField& field) { return field.name; });
  return fmt::format("{} is no field{}", nameOrIndex, nearestName(nameOrIndex, names));
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
