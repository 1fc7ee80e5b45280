// Stored messages as lines of a table.
#ifndef VCM_TOOLS_SATELLITETABLE_H
#define VCM_TOOLS_SATELLITETABLE_H

#include <fmt/format.h>

#include <array>
#include <cstdint>

#include "vcm/Vcm.h"

namespace vcmtool {

// A message in the library's array form.
struct MessageArrays {
  std::array<char, VCM_CHAR_ARRAY_LENGTH> characters;
  std::array<double, VCM_NUM_ARRAY_LENGTH> numbers;
};

class SatelliteTable {
 public:
  // Columns that a line takes when a satellite has one.
  static constexpr int kLineWidth = 148;

  // With `twoLines` the state vector has a line of its own and neither is wider than 80 columns.
  explicit SatelliteTable(bool twoLines) : twoLines_(twoLines) {}

  void appendHeader(fmt::memory_buffer& out) const;
  void append(fmt::memory_buffer& out, std::int64_t satKey, const MessageArrays& message) const;

 private:
  bool twoLines_;
};

}  // namespace vcmtool

#endif
