#include "support/ReplaceableHost.h"

#include <dlfcn.h>

#include "Host/HostCalendar.h"
#include "Host/HostCore.h"

HostReplacements& hostReplacements() {
  static HostReplacements replacements;
  return replacements;
}

namespace {

// The function of that name in the host's library.
template <class Function>
Function* bundled(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void setMode(std::int32_t mode) { elsetkeymodeset(&mode); }

}  // namespace

void useOrdinaryKeys() { setMode(0); }
void useDirectAddresses() { setMode(1); }

extern "C" std::int32_t fileopen(const char* name, const std::int32_t* nameLength,
                                 const std::int32_t* mode, std::FILE** stream) {
  static const auto host = bundled<decltype(fileopen)>("fileopen");
  const auto& replaced = hostReplacements().fileopen;
  return replaced ? replaced(name, nameLength, mode, stream) : host(name, nameLength, mode, stream);
}

extern "C" std::int64_t createsatkey(const std::int32_t* satNum, const std::int32_t* elsetType,
                                     const char* epochText, const double* ds50Utc) {
  static const auto host = bundled<decltype(createsatkey)>("createsatkey");
  const auto& replaced = hostReplacements().createsatkey;
  return replaced ? replaced(satNum, elsetType, epochText, ds50Utc)
                  : host(satNum, elsetType, epochText, ds50Utc);
}

extern "C" std::int64_t nextsatkey(const std::int64_t* satKey) {
  static const auto host = bundled<decltype(nextsatkey)>("nextsatkey");
  const auto& replaced = hostReplacements().nextsatkey;
  return replaced ? replaced(satKey) : host(satKey);
}
