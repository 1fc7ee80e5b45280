// All fields of a message as the program shows them, by name and in order. Whatever form has named
// fields is a loop over this table.
#ifndef VCM_TOOLS_RECORDFIELDS_H
#define VCM_TOOLS_RECORDFIELDS_H

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcmtool {

using IntegerMember = std::int32_t vcm::VcmRecord::*;
using DateMember = vcm::InputDate vcm::VcmRecord::*;

// In the unit of its name.
struct RealMember {
  double (*get)(const vcm::VcmRecord& record);
  void (*set)(vcm::VcmRecord& record, double value);
};

struct VectorMember {
  vcm::Vector3 vcm::VcmRecord::*member;
  std::string_view quantity;
  std::string_view axes;
  std::string_view unit;
  // Name of a component where it stands alone.
  std::string component(std::size_t index) const;
};

struct TextMember {
  std::size_t width;
  // Without the blanks at its end.
  std::string_view (*get)(const vcm::VcmRecord& record);
  void (*set)(vcm::VcmRecord& record, std::string_view text);
};

struct RecordField {
  std::string_view name;
  std::variant<IntegerMember, RealMember, DateMember, VectorMember, TextMember> member;
  // Index of the single field, of a vector's first component; 0 where there is none.
  std::int32_t single = 0;
  bool required = false;  // no message is without it
};

extern const std::span<const RecordField> kRecordFields;

// ---- what is not one member -------------------------------------------------------------------

inline constexpr std::string_view kCovarianceName = "covariance";
inline constexpr std::string_view kCovarianceElementsName = "elements";
inline constexpr std::string_view kCovarianceMatrixName = "matrix";
// Elements in the order of a message.
inline constexpr std::array<std::string_view, vcm::kCovarianceDimension> kCovarianceLabels = {
    "af", "ag", "L", "n", "chi", "psi", "B", "Bdot", "AGOM"};
// Rows and columns of a record's covariance, 0 when there is none.
std::size_t covarianceSize(const vcm::VcmRecord& record);
// Name of an element where it stands alone.
std::string covarianceElement(std::size_t row, std::size_t column);
// Where an element stands in a triangle, which goes row by row; either half of the matrix may be
// asked for.
constexpr std::size_t triangleIndex(std::size_t row, std::size_t column) {
  const auto [low, high] = row < column ? std::pair(row, column) : std::pair(column, row);
  return high * (high + 1) / 2 + low;
}

inline constexpr std::string_view kManeuverCardsName = "maneuver_cards";

// Calls one of several functions, whichever takes the member.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

}  // namespace vcmtool

#endif
