// A condition on one field of a message, as the command line states it.
#ifndef VCM_TOOLS_CONDITION_H
#define VCM_TOOLS_CONDITION_H

#include <compare>
#include <string>

#include "VCM/VcmFormats/FieldTable.h"

namespace vcmtool {

// "FIELD OP VALUE". Numbers and dates compare as such, texts character by character.
struct Condition {
  bool holds(const vcm::VcmRecord& record) const;

  const vcm::SingleField* field = nullptr;
  bool (*isMet)(std::partial_ordering order) = nullptr;  // of the field's value to this one
  double number = 0.0;
  std::string text;
};

// What is wrong with such a text; when that is empty, the condition has been read.
std::string readCondition(const std::string& given, Condition& condition);

// What is wrong with it, or an empty text.
std::string wrongCondition(const std::string& given);

}  // namespace vcmtool

#endif
