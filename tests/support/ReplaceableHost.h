// Host functions that a test can replace, one line each:
//
//   ReplacedHost<&HostReplacements::createsatkey> replaced([](auto...) { return -1; });
//
// The test program defines these functions itself, in front of the host's libraries; without a
// replacement each call goes on to the bundled host.
#ifndef SUPPORT_REPLACEABLEHOST_H
#define SUPPORT_REPLACEABLEHOST_H

#include <cstdint>
#include <cstdio>
#include <functional>
#include <utility>

struct HostReplacements {
  std::function<std::int32_t(const char* name, const std::int32_t* nameLength,
                             const std::int32_t* mode, std::FILE** stream)>
      fileopen;
  std::function<std::int64_t(const std::int32_t* satNum, const std::int32_t* elsetType,
                             const char* epochText, const double* ds50Utc)>
      createsatkey;
  std::function<std::int64_t(const std::int64_t* satKey)> nextsatkey;
};

HostReplacements& hostReplacements();

// Replaces one function for a scope.
template <auto Function>
class ReplacedHost {
 public:
  template <class Replacement>
  explicit ReplacedHost(Replacement replacement) {
    hostReplacements().*Function = std::move(replacement);
  }
  ~ReplacedHost() { hostReplacements().*Function = nullptr; }
  ReplacedHost(const ReplacedHost&) = delete;
  ReplacedHost& operator=(const ReplacedHost&) = delete;
};

// Puts the key mode back to ordinary keys.
void useOrdinaryKeys();
void useDirectAddresses();

#endif
