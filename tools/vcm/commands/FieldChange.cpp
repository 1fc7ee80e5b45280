#include "commands/FieldChange.h"

#include <fmt/format.h>

#include "VCM/VcmFormats/FieldDate.h"
#include "VCM/VcmTypes/FixedText.h"
#include "commands/FieldNames.h"
#include "commands/GivenDate.h"
#include "messages/FieldText.h"
#include "messages/Forms.h"
#include "messages/Latin1.h"
#include "terminal/Screen.h"
#include "terminal/Trace.h"

namespace vcmtool {

namespace {

// The library takes what it cannot read as zero, with no more than an error line.
bool isNumber(std::string_view value, const vcm::SingleField& field) {
  bool good = true;
  const Trace trace([&good](bool isError, std::string_view /*line*/) { good = good && !isError; });
  vcm::VcmRecord scratch;
  return field.read(value, scratch) && good;
}

std::string wrongNumber(const std::string& text, std::string_view value,
                        const vcm::SingleField& field) {
  if (value.empty()) {
    return text + ": no value";
  }
  return isNumber(value, field)
             ? std::string()
             : text + (field.kind == vcm::FieldKind::integer ? ": no whole number" : ": no number");
}

// None for what is finer than a message's milliseconds, too.
std::optional<std::string> dateValue(std::string_view given) {
  vcm::InputDate date;
  vcm::InputDate kept;
  std::string text(vcm::kFieldDateWidth, ' ');
  const bool good = readGivenDate(given, date);
  vcm::writeFieldDate(date, text.data());
  return good && vcm::readFieldDate(text, kept) && kept == date ? std::optional(text)
                                                                : std::nullopt;
}

std::optional<std::string> messageValue(std::string_view given, const vcm::SingleField* field) {
  return field != nullptr && field->kind == vcm::FieldKind::date
             ? dateValue(vcm::withoutTrailingBlanks(given))
             : latin1OfUtf8(given);
}

}  // namespace

FieldChange::FieldChange(std::string_view given)
    : text(given),
      field(fieldNamed(given.substr(0, given.find('=')))),
      value(messageValue(given.substr(given.find('=') + 1), field)) {}

std::string wrongFieldChange(const std::string& text) {
  const std::size_t end = text.find('=');
  if (end == std::string::npos) {
    return text + " is not FIELD=VALUE";
  }
  if (std::string unknown = unknownField(text.substr(0, end)); !unknown.empty()) {
    return unknown;
  }
  const FieldChange change(text);
  if (!change.value) {
    return change.field->kind == vcm::FieldKind::date
               ? fmt::format("{}: no date to the millisecond like {}", text, kGivenDates)
               : text + ": a character that no message can hold";
  }
  const std::string_view value = vcm::withoutTrailingBlanks(*change.value);
  const auto width = static_cast<std::size_t>(change.field->width);
  if (change.field->kind == vcm::FieldKind::text && value.size() > width) {
    return fmt::format("{}: no more than {} characters", text, width);
  }
  const bool isNumeric =
      change.field->kind == vcm::FieldKind::integer || change.field->kind == vcm::FieldKind::real;
  // Fields that make up the key have no reader: the library refuses any value.
  return isNumeric && change.field->read != nullptr
             ? wrongNumber(text, vcm::withoutLeadingBlanks(value), *change.field)
             : std::string();
}

bool isHeld(const vcm::VcmRecord& record, const FieldChange& change, const std::string& form) {
  const vcm::SingleField& field = *change.field;
  const std::string before = fieldText(record, field);
  const std::string after = fieldText(asKeptBy(form, record), field);
  const bool rounded = field.kind == vcm::FieldKind::real;
  if (before != after) {
    printMessage(
        rounded ? fmt::format("vcm: {}: {} is {} in a {} message", field.name, before, after, form)
                : fmt::format("vcm: {}: a {} message cannot hold that", change.text, form));
  }
  return before == after || rounded;
}

}  // namespace vcmtool
