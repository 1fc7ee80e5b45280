#include "support/AllocationFailure.h"

#include <array>
#include <new>

namespace {

constexpr int kUnlimited = -1;
thread_local std::array<int, 2> requestsLeft{kUnlimited, kUnlimited};  // of each kind

// Both kinds go on to the throwing form, so that memory is given back to where it came from, be it
// the standard library's heap or a sanitizer's.
template <class Allocate>
void* grant(AllocationFailure::Kind kind, Allocate allocate) {
  int& left = requestsLeft[kind];
  if (left == 0) {
    return nullptr;
  }
  left -= left > 0 ? 1 : 0;
  try {
    return allocate();
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace

AllocationFailure::AllocationFailure(Kind kind, int granted) : kind_(kind) {
  requestsLeft[kind] = granted;
}

AllocationFailure::~AllocationFailure() { requestsLeft[kind_] = kUnlimited; }

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return grant(AllocationFailure::ofObjects, [size] { return ::operator new(size); });
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return grant(AllocationFailure::ofArrays, [size] { return ::operator new[](size); });
}
