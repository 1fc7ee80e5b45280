// How many random cases a test goes through: an environment variable makes it another number.
#ifndef SUPPORT_RANDOMCOUNT_H
#define SUPPORT_RANDOMCOUNT_H

#include <cstdlib>

// False where sanitizers or a debug build make everything ten times as slow.
#if defined(__OPTIMIZE__) && !defined(VCM_ADDRESS_SANITIZER)
inline constexpr bool kFastBuild = true;
#else
inline constexpr bool kFastBuild = false;
#endif

inline int randomCount(const char* variable, int usual) {
  const char* const wanted = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): never set
  return wanted == nullptr ? usual : std::atoi(wanted);
}

#endif
