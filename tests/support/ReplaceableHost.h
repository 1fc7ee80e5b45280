// Host functions that a test can replace, one line each:
//
//   ReplacedHost<&HostReplacements::createsatkey> replaced([](auto...) { return -1; });
//
// The test program defines these functions itself, in front of the host's libraries; without a
// replacement each call goes on to the bundled host.
#ifndef SUPPORT_REPLACEABLEHOST_H
#define SUPPORT_REPLACEABLEHOST_H

#include <functional>

#include "Host/HostCalendar.h"
#include "Host/HostCore.h"

struct HostReplacements {
  std::function<decltype(::createsatkey)> createsatkey;
  std::function<decltype(::fileopen)> fileopen;
  std::function<decltype(::isdma)> isdma;
  std::function<decltype(::nextsatkey)> nextsatkey;
};

HostReplacements& hostReplacements();

// Replaces one function for a scope.
template <auto Function>
class ReplacedHost {
 public:
  template <class Replacement>
  explicit ReplacedHost(Replacement replacement) {
    hostReplacements().*Function = replacement;
  }
  ~ReplacedHost() { hostReplacements().*Function = nullptr; }
  ReplacedHost(const ReplacedHost&) = delete;
  ReplacedHost& operator=(const ReplacedHost&) = delete;
};

#endif
