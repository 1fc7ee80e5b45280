// A message as a JSON object, read.
#ifndef VCM_TOOLS_JSONRECORD_H
#define VCM_TOOLS_JSONRECORD_H

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcmtool {

// Sets what the object states; what it leaves out keeps its value. Returns what is wrong with the
// first field that cannot be taken, or an empty text.
std::string readJsonRecord(const nlohmann::json& message, vcm::VcmRecord& record);

}  // namespace vcmtool

#endif
