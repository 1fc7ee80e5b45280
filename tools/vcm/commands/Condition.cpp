#include "commands/Condition.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <variant>

#include "VCM/VcmFormats/NumberReading.h"
#include "commands/FieldNames.h"
#include "commands/GivenDate.h"
#include "messages/Designator.h"
#include "messages/Latin1.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

struct Operator {
  std::string_view text;
  bool (*isMet)(std::partial_ordering order);
};

// What is no number is unequal to every number, and nothing else.
constexpr std::array kOperators = std::to_array<Operator>({
    {"=", [](std::partial_ordering order) { return std::is_eq(order); }},
    {"!=", [](std::partial_ordering order) { return std::is_neq(order); }},
    {"<", [](std::partial_ordering order) { return std::is_lt(order); }},
    {"<=", [](std::partial_ordering order) { return std::is_lteq(order); }},
    {">", [](std::partial_ordering order) { return std::is_gt(order); }},
    {">=", [](std::partial_ordering order) { return std::is_gteq(order); }},
});
constexpr std::string_view kOperatorNames = "= != < <= > >=";

std::string_view take(std::string_view& text, std::size_t count) {
  const std::string_view taken = text.substr(0, count);
  text.remove_prefix(taken.size());
  text = vcm::withoutLeadingBlanks(text);
  return taken;
}

// What stands where an operator should: signs, or else a word.
std::string_view takeOperator(std::string_view& text) {
  const std::size_t signs = text.find_first_not_of("=!<>~");
  return take(text, signs == 0 ? text.find(' ') : signs);
}

// The number that the field would have, were it set to this: it may be kept in another unit.
bool readNumber(std::string_view value, const vcm::SingleField& field, double& number) {
  if (value.empty() || !vcm::readReal(value, 0, number)) {
    return false;
  }
  if (field.kind == vcm::FieldKind::real) {
    vcm::VcmRecord scratch;
    field.read(value, scratch);
    number = std::get<double>(field.value(scratch));
  }
  return true;
}

bool readDate(std::string_view value, double& days) {
  vcm::InputDate date;
  const bool read = readGivenDate(value, date);
  days = vcm::inputDateToDs50(date);
  return read;
}

std::string readValue(std::string_view value, Condition& condition) {
  switch (condition.field->kind) {
    case vcm::FieldKind::integer:
    case vcm::FieldKind::real:
      return readNumber(value, *condition.field, condition.number)
                 ? std::string()
                 : fmt::format("\"{}\" is no number", value);
    case vcm::FieldKind::date:
      return readDate(value, condition.number)
                 ? std::string()
                 : fmt::format("\"{}\" is no date like {}", value, kGivenDates);
    case vcm::FieldKind::text:
      break;
  }
  const bool isDesignator = condition.field->index == VCM_FIELD_INTLDES;
  const auto text = latin1OfUtf8(isDesignator ? shortDesignator(value) : value);
  condition.text = text.value_or("");
  return text ? std::string() : fmt::format("{}: a character that no message can hold", value);
}

}  // namespace

bool Condition::holds(const vcm::VcmRecord& record) const {
  const vcm::FieldValue value = field->value(record);
  const double* const shown = std::get_if<double>(&value);
  return isMet(shown != nullptr ? *shown <=> number : std::get<std::string_view>(value) <=> text);
}

std::string readCondition(const std::string& given, Condition& condition) {
  std::string_view rest = vcm::withoutLeadingBlanks(vcm::withoutTrailingBlanks(given));
  const std::string_view field = take(rest, rest.find_first_of("=!<>~ "));
  const std::string_view sign = takeOperator(rest);
  if (std::string unknown = unknownField(field); !unknown.empty()) {
    return unknown;
  }
  if (sign.empty()) {
    return fmt::format("{} is not FIELD OP VALUE, where OP is one of {}", given, kOperatorNames);
  }
  const auto* const found = std::find_if(kOperators.begin(), kOperators.end(),
                                         [sign](const Operator& row) { return row.text == sign; });
  if (found == kOperators.end()) {
    return fmt::format("{} is no operator; there are {}", sign, kOperatorNames);
  }
  condition.field = fieldNamed(field);
  condition.isMet = found->isMet;
  return readValue(rest, condition);
}

std::string wrongCondition(const std::string& given) {
  Condition condition;
  return readCondition(given, condition);
}

}  // namespace vcmtool
