// Key modes, and what a key alone tells: its kind, the address in it, the key after it.
//
// Ordinary keys are odd. A direct-address key is ten times an address, hence even, and both kinds
// may lie in one store.
#include <atomic>
#include <limits>

#include "Host/HostCore.h"
#include "host/HostKeyModes.h"

std::int32_t useAllKeyMode = 0;

namespace {

constexpr std::int32_t kDirectAddresses = 1;
constexpr std::int64_t kAddressFactor = 10;

std::atomic<std::int32_t> allKeyMode{0};
std::atomic<std::int32_t> elsetKeyMode{0};
// Set once and never taken back: keys made of addresses outlive a change of mode.
std::atomic<bool> directAddressesSeen{false};

void setMode(std::atomic<std::int32_t>& setting, std::int32_t mode) {
  if (mode == kDirectAddresses) {
    directAddressesSeen = true;
  }
  setting = mode;
}

}  // namespace

std::int32_t allkeymodeget() { return allKeyMode; }
void allkeymodeset(const std::int32_t* mode) { setMode(allKeyMode, *mode); }

std::int32_t elsetkeymodeget() { return elsetKeyMode; }
void elsetkeymodeset(const std::int32_t* mode) { setMode(elsetKeyMode, *mode); }

std::int32_t isdma(const std::int64_t* satKey) {
  return directAddressesSeen && (*satKey <= 0 || *satKey % 2 == 0) ? 1 : 0;
}

std::int64_t satkeytoaddr(const std::int64_t* satKey) {
  return *satKey > 0 && *satKey % kAddressFactor == 0 ? *satKey / kAddressFactor : 0;
}

void* keytocptr(const std::int64_t* satKey) {
  return reinterpret_cast<void*>(static_cast<std::uintptr_t>(satkeytoaddr(satKey)));
}

std::int64_t nextsatkey(const std::int64_t* satKey) {
  // By two, which leaves an ordinary key odd; past the last one comes the first.
  constexpr std::int64_t kStep = 2;
  constexpr std::int64_t kFirst = 1;
  return *satKey > std::numeric_limits<std::int64_t>::max() - kStep ? kFirst : *satKey + kStep;
}
