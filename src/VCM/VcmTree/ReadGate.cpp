#include "VCM/VcmTree/ReadGate.h"

#include <thread>

namespace vcm {

// The flag and the count are written by one side and read by the other in opposite order, so they
// need the single total order of sequentially consistent operations.

void ReadGate::lock_shared() {
  for (;;) {
    while (isUpdating.load() != 0) {
      std::this_thread::yield();
    }
    numReads.fetch_add(1);
    if (isUpdating.load() == 0) {
      return;
    }
    numReads.fetch_sub(1);
  }
}

void ReadGate::unlock_shared() { numReads.fetch_sub(1); }

void ReadGate::lock() {
  updatenote.lock();
  isUpdating.store(1);
  while (numReads.load() > 0) {
    std::this_thread::yield();
  }
}

void ReadGate::unlock() {
  isUpdating.store(0);
  updatenote.unlock();
}

}  // namespace vcm
