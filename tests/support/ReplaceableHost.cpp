#include "support/ReplaceableHost.h"

#include <dlfcn.h>

HostReplacements& hostReplacements() {
  static HostReplacements replacements;
  return replacements;
}

namespace {

// The replacement, or else the function of that name in the host's library.
template <class Function, class... Arguments>
auto call(const std::function<Function>& replaced, const char* name, Arguments... arguments) {
  return replaced ? replaced(arguments...)
                  : reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name))(arguments...);
}

}  // namespace

extern "C" std::int64_t createsatkey(const std::int32_t* satNum, const std::int32_t* elsetType,
                                     const char* epochText, const double* ds50Utc) {
  return call(hostReplacements().createsatkey, "createsatkey", satNum, elsetType, epochText,
              ds50Utc);
}

extern "C" std::int32_t fileopen(const char* name, const std::int32_t* nameLength,
                                 const std::int32_t* mode, std::FILE** stream) {
  return call(hostReplacements().fileopen, "fileopen", name, nameLength, mode, stream);
}

extern "C" std::int64_t nextsatkey(const std::int64_t* satKey) {
  return call(hostReplacements().nextsatkey, "nextsatkey", satKey);
}

extern "C" std::int32_t isdma(const std::int64_t* satKey) {
  return call(hostReplacements().isdma, "isdma", satKey);
}
