// The fields that are read and changed one by one, as the command line names them.
#ifndef VCM_TOOLS_FIELDNAMES_H
#define VCM_TOOLS_FIELDNAMES_H

#include <string>
#include <string_view>

#include "VCM/VcmFormats/FieldTable.h"

namespace vcmtool {

// The field of a name, in small or capital letters, of the longer name that messages are shown with, or
// of an index. Null when there is none.
const vcm::SingleField* fieldNamed(std::string_view nameOrIndex);

// What is wrong with a name, or an empty text.
std::string unknownField(std::string_view nameOrIndex);

// All indexes and names, in columns that fit a terminal.
std::string fieldNames();

}  // namespace vcmtool

#endif
