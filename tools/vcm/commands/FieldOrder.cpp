#include "commands/FieldOrder.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>
#include <variant>

#include "VCM/VcmTree/Store.h"
#include "commands/FieldNames.h"

namespace vcmtool {

namespace {

using Row = std::pair<vcm::FieldValue, std::int64_t>;

std::string_view nameOf(std::string_view given) {
  return given.substr(given.starts_with('-') ? 1 : 0);
}

// What is no number comes behind all that are.
bool isLess(const Row& a, const Row& b) {
  const double* const left = std::get_if<double>(&a.first);
  const double* const right = std::get_if<double>(&b.first);
  if (left != nullptr && right != nullptr && (std::isnan(*left) || std::isnan(*right))) {
    return !std::isnan(*left);
  }
  return a.first < b.first;
}

void sortBy(std::vector<std::int64_t>& keys, const vcm::SingleField& field, bool descending) {
  std::vector<Row> rows;
  rows.reserve(keys.size());
  for (const std::int64_t key : keys) {
    // A text stays valid when its record is given back: nothing changes the store meanwhile.
    const vcm::BorrowedRecord record(vcm::mediaVcm, key);
    rows.emplace_back(field.value(*record), key);
  }
  std::stable_sort(rows.begin(), rows.end(), [descending](const Row& a, const Row& b) {
    return descending ? isLess(b, a) : isLess(a, b);
  });
  std::transform(rows.begin(), rows.end(), keys.begin(), [](const Row& row) { return row.second; });
}

}  // namespace

std::string wrongFieldOrder(const std::string& given) { return unknownField(nameOf(given)); }

void sortByFields(std::vector<std::int64_t>& keys, const std::vector<std::string>& fields) {
  for (auto field = fields.rbegin(); field != fields.rend(); ++field) {
    sortBy(keys, *fieldNamed(nameOf(*field)), field->starts_with('-'));
  }
}

}  // namespace vcmtool
