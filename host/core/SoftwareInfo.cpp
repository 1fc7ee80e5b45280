// The line by which a library of the framework introduces itself.
#include <string>

#include "Host/HostCore.h"
#include "Text.h"

void getsoftwareinfo(const char* name, const std::int32_t* nameLength, char* info,
                     const std::int32_t* infoLength) {
  using namespace hostcore;
  const std::string_view library =
      withoutTrailing(withoutLeading(upToNul(viewOf(name, nameLength)), kBlanks), kBlanks);
  copyPadded(std::string(library) + " " VCM_VERSION ", bundled host", info, sizeOf(infoLength));
}
