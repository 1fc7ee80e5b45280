#include "messages/FieldColumns.h"

#include <fmt/compile.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "messages/FieldText.h"

namespace vcmtool {

namespace {

std::string_view nameOf(const vcm::SingleField* field) {
  return field == kKeyColumn ? kKeyColumnName : field->name;
}

// An empty text shows as "-", so that no column looks left out.
std::string cellText(std::int64_t satKey, const vcm::VcmRecord& record,
                     const vcm::SingleField* field) {
  std::string text = field == kKeyColumn ? fmt::to_string(satKey) : fieldText(record, *field);
  return text.empty() ? "-" : text;
}

// Texts stand on the left of their column, numbers on the right.
template <class Columns, class Text>
void appendLine(fmt::memory_buffer& out, const Columns& columns, const Text& text) {
  std::string line;
  std::string_view separator;
  for (const auto& column : columns) {
    line += separator;
    separator = "  ";
    if (column.field != kKeyColumn && column.field->kind == vcm::FieldKind::text) {
      fmt::format_to(std::back_inserter(line), FMT_COMPILE("{:<{}}"), text(column.field),
                     column.width);
    } else {
      fmt::format_to(std::back_inserter(line), FMT_COMPILE("{:>{}}"), text(column.field),
                     column.width);
    }
  }
  out.append(vcm::withoutTrailingBlanks(line));
  out.push_back('\n');
}

}  // namespace

FieldColumns::FieldColumns(const std::vector<const vcm::SingleField*>& fields) {
  for (const vcm::SingleField* const field : fields) {
    columns_.push_back({field, nameOf(field).size()});
  }
}

void FieldColumns::measure(std::int64_t satKey, const vcm::VcmRecord& record) {
  for (Column& column : columns_) {
    column.width = std::max(column.width, cellText(satKey, record, column.field).size());
  }
}

void FieldColumns::appendHeader(fmt::memory_buffer& out) const {
  appendLine(out, columns_, nameOf);
}

void FieldColumns::append(fmt::memory_buffer& out, std::int64_t satKey,
                          const vcm::VcmRecord& record) const {
  appendLine(out, columns_,
             [&](const vcm::SingleField* field) { return cellText(satKey, record, field); });
}

}  // namespace vcmtool
