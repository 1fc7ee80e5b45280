// What every function says of a key that no stored message has.
#ifndef VCM_VCMDLLVARSUTILS_UNKNOWNKEY_H
#define VCM_VCMDLLVARSUTILS_UNKNOWNKEY_H

#include <cstdint>
#include <string_view>

#include "Host/TraceLine.h"

namespace vcm {

inline void logUnknownKey(std::string_view function, std::int64_t satKey) {
  TraceLine()
      .text(function)
      .text(": Unable to locate satKey ")
      .key(satKey)
      .text(" in the VCM binary tree.")
      .error();
}

}  // namespace vcm

#endif
