// What two messages do not have in common.
#ifndef VCM_TOOLS_RECORDDIFFERENCES_H
#define VCM_TOOLS_RECORDDIFFERENCES_H

#include <optional>
#include <string>
#include <vector>

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcmtool {

// A field, a component of a vector, an element of the covariance, or a maneuver card.
struct Difference {
  std::string name;
  std::optional<std::string> before;  // none where a message has no such element or card
  std::optional<std::string> after;
};

// In the order of the fields, every digit shown.
std::vector<Difference> differencesOf(const vcm::VcmRecord& before, const vcm::VcmRecord& after);

}  // namespace vcmtool

#endif
