// Single fields of a message for people.
#ifndef VCM_TOOLS_FIELDTEXT_H
#define VCM_TOOLS_FIELDTEXT_H

#include <array>
#include <string>

#include "VCM/VcmFormats/FieldTable.h"
#include "messages/PrintableText.h"

namespace vcmtool {

// The field's value without blanks around it.
inline std::string fieldText(const vcm::VcmRecord& record, const vcm::SingleField& field) {
  std::array<char, vcm::kMaxFieldWidth> text;
  field.write(record, text.data());
  const std::string_view written(text.data(), static_cast<std::size_t>(field.width));
  return printable(vcm::withoutLeadingBlanks(vcm::withoutTrailingBlanks(written)));
}

}  // namespace vcmtool

#endif
