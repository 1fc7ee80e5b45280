#include "messages/JsonRecord.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <string_view>

#include "Host/HostOrbit.h"
#include "VCM/VcmTree/Covariance.h"
#include "messages/IsoDate.h"
#include "messages/Latin1.h"
#include "messages/RecordFields.h"

namespace vcmtool {

namespace {

using nlohmann::json;

// Each reader returns what it expected and did not find, or an empty text.
using Expected = std::string;
const Expected kGood;

Expected readInteger(const json& value, std::int32_t& number) {
  using Limits = std::numeric_limits<std::int32_t>;
  // A number without a sign may be too large for a signed one.
  const bool fits = value.is_number_unsigned()
                        ? value.get<std::uint64_t>() <= std::uint64_t{Limits::max()}
                        : value.is_number_integer() && value.get<std::int64_t>() >= Limits::min();
  if (!fits) {
    return "an integer of 32 bits expected";
  }
  number = value.get<std::int32_t>();
  return kGood;
}

bool readReal(const json& value, double& number) {
  if (value.is_null()) {
    number = std::numeric_limits<double>::quiet_NaN();
    return true;
  }
  if (value.is_number()) {
    number = value.get<double>();
  }
  return value.is_number();
}

Expected readVector(const json& value, vcm::Vector3& vector) {
  return value.is_array() && value.size() == vector.size() &&
                 std::equal(value.begin(), value.end(), vector.begin(), readReal)
             ? kGood
             : "three numbers expected";
}

template <class Set>
Expected readText(const json& value, std::size_t width, const Set& set) {
  if (!value.is_string()) {
    return "a text expected";
  }
  const auto text = latin1OfUtf8(value.get_ref<const std::string&>());
  // In a message every kind of blank is a plain one.
  const auto isOtherBlank = [](char c) { return c != ' ' && vcm::isBlank(c); };
  if (!text || std::any_of(text->begin(), text->end(), isOtherBlank)) {
    return "a character that no message can hold";
  }
  if (text->size() > width) {
    return fmt::format("no more than {} characters expected", width);
  }
  set(*text);
  return kGood;
}

Expected readDate(const json& value, vcm::InputDate& date) {
  return value.is_string() && readIsoDate(value.get_ref<const std::string&>(), date)
             ? kGood
             : "a date like 2028-206T12:04:31.384Z expected";
}

// The matrix's lower triangle. False unless it is square and symmetric.
bool readTriangle(const json& matrix, vcm::CovarianceTriangle& values) {
  if (!std::all_of(matrix.begin(), matrix.end(), [&matrix](const json& row) {
        return row.is_array() && row.size() == matrix.size();
      })) {
    return false;
  }
  for (std::size_t row = 0; row < matrix.size(); ++row) {
    for (std::size_t column = 0; column <= row; ++column) {
      if (matrix[row][column] != matrix[column][row] ||
          !readReal(matrix[row][column], values[triangleIndex(row, column)])) {
        return false;
      }
    }
  }
  return true;
}

Expected readCovariance(const json& value, vcm::VcmRecord& record) {
  if (value.is_null()) {
    record.covMtxSize = 0;
    return kGood;
  }
  if (!value.is_object() || value.size() != 2 || !value.contains(kCovarianceElementsName) ||
      !value.contains(kCovarianceMatrixName)) {
    return fmt::format("\"{}\" and \"{}\" expected", kCovarianceElementsName,
                       kCovarianceMatrixName);
  }
  const json& matrix = value.at(std::string(kCovarianceMatrixName));
  vcm::CovarianceTriangle values{};
  if (!matrix.is_array() || matrix.size() > kCovarianceLabels.size() ||
      !readTriangle(matrix, values)) {
    return fmt::format("a symmetric matrix of no more than {0} x {0} numbers expected",
                       kCovarianceLabels.size());
  }
  const json& elements = value.at(std::string(kCovarianceElementsName));
  if (!elements.is_array() || elements.size() != matrix.size() ||
      !std::equal(elements.begin(), elements.end(), kCovarianceLabels.begin())) {
    return fmt::format(
        "the elements {} expected",
        fmt::join(kCovarianceLabels.begin(), kCovarianceLabels.begin() + matrix.size(), ", "));
  }
  record.covMtxSize = static_cast<std::int32_t>(matrix.size());
  record.covMtx = vcm::Vcm1dTo2d(values);
  return kGood;
}

Expected readManeuverCards(const json& value, vcm::VcmRecord& record) {
  if (!value.is_array() || value.size() > vcm::kMaxExtraLines) {
    return fmt::format("no more than {} texts expected", vcm::kMaxExtraLines);
  }
  for (const json& card : value) {
    const auto add = [&record](std::string_view text) { record.extraLines.emplace_back(text); };
    if (Expected expected = readText(card, vcm::ExtraLine::width, add); !expected.empty()) {
      return expected;
    }
    // Any other text would be something else where the messages are written as lines.
    const std::string_view kept = record.extraLines.back().view();
    const auto length = static_cast<std::int32_t>(kept.size());
    if (ismaneuvcardtype(kept.data(), &length) == 0) {
      return "maneuver cards expected";
    }
  }
  return kGood;
}

Expected readField(const RecordField& field, const json& value, vcm::VcmRecord& record) {
  return std::visit(
      Overloaded{
          [&](IntegerMember member) { return readInteger(value, record.*member); },
          [&](const RealMember& real) -> Expected {
            double number = 0;
            if (!readReal(value, number)) {
              return "a number expected";
            }
            real.set(record, number);
            return kGood;
          },
          [&](DateMember member) { return readDate(value, record.*member); },
          [&](const VectorMember& vector) { return readVector(value, record.*(vector.member)); },
          [&](const TextMember& text) {
            return readText(value, text.width,
                            [&](std::string_view kept) { text.set(record, kept); });
          }},
      field.member);
}

Expected readNamed(const std::string& name, const json& value, vcm::VcmRecord& record) {
  if (name == kCovarianceName) {
    return readCovariance(value, record);
  }
  if (name == kManeuverCardsName) {
    return readManeuverCards(value, record);
  }
  const auto field = std::find_if(kRecordFields.begin(), kRecordFields.end(),
                                  [&name](const RecordField& row) { return row.name == name; });
  return field == kRecordFields.end() ? "no such field" : readField(*field, value, record);
}

}  // namespace

std::string readJsonRecord(const json& message, vcm::VcmRecord& record) {
  if (!message.is_object()) {
    return "an object expected";
  }
  for (const RecordField& field : kRecordFields) {
    if (field.required && !message.contains(field.name)) {
      return fmt::format("{}: missing", field.name);
    }
  }
  for (const auto& [name, value] : message.items()) {
    if (const Expected expected = readNamed(name, value, record); !expected.empty()) {
      return fmt::format("{}: {}", name, expected);
    }
  }
  return {};
}

}  // namespace vcmtool
