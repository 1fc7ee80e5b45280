// A table with a line for each message and a column for each of some fields.
#ifndef VCM_TOOLS_FIELDCOLUMNS_H
#define VCM_TOOLS_FIELDCOLUMNS_H

#include <fmt/format.h>

#include <cstdint>
#include <string_view>
#include <vector>

#include "VCM/VcmFormats/FieldTable.h"

namespace vcmtool {

// In place of a field: the message's key.
inline constexpr const vcm::SingleField* kKeyColumn = nullptr;
inline constexpr std::string_view kKeyColumnName = "key";

// Columns are as wide as they have to be: first every message is measured, then every one appended.
class FieldColumns {
 public:
  explicit FieldColumns(const std::vector<const vcm::SingleField*>& fields);

  void measure(std::int64_t satKey, const vcm::VcmRecord& record);
  void appendHeader(fmt::memory_buffer& out) const;
  void append(fmt::memory_buffer& out, std::int64_t satKey, const vcm::VcmRecord& record) const;

 private:
  struct Column {
    const vcm::SingleField* field;
    std::size_t width;
  };

  std::vector<Column> columns_;
};

}  // namespace vcmtool

#endif
