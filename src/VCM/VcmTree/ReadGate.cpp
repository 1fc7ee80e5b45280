#include "VCM/VcmTree/ReadGate.h"

namespace vcm {

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
