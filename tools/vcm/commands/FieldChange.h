// A field and its new value, as the command line states them.
#ifndef VCM_TOOLS_FIELDCHANGE_H
#define VCM_TOOLS_FIELDCHANGE_H

#include <optional>
#include <string>
#include <string_view>

#include "VCM/VcmFormats/FieldTable.h"

namespace vcmtool {

// "FIELD=VALUE", where FIELD is a name or an index.
struct FieldChange {
  explicit FieldChange(std::string_view given);

  std::string text;
  const vcm::SingleField* field;  // null when there is none
  // As a message states it; none when no message can hold that.
  std::optional<std::string> value;
};

// What is wrong with such a text, or an empty one. The library would cut texts, and take
// dates as they come and what is no number as zero.
std::string wrongFieldChange(const std::string& text);

// Tells the user what a form makes of a field that was changed. False when it cannot hold the value at
// all; that it rounds a number is its way.
bool isHeld(const vcm::VcmRecord& record, const FieldChange& change, const std::string& form);

}  // namespace vcmtool

#endif
