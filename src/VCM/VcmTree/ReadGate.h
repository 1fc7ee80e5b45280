// A readers/writer gate made of two integers and a lock.
//
// A writer takes the lock, raises `isUpdating` and waits until no reader is inside; a reader waits
// while `isUpdating` is up and then counts itself in. Because a reader looks at the flag again
// after counting itself, and backs out when it is up, no reader ever overlaps a writer, and a
// waiting writer keeps new readers out. Waiting threads yield the processor.
//
// The flag and the count are written by one side and read by the other in opposite order, so they
// need the single total order of sequentially consistent operations.
//
// One thread must not enter a gate twice: a writer that waits in between would lock both out.
#ifndef VCM_VCMTREE_READGATE_H
#define VCM_VCMTREE_READGATE_H

#include <atomic>
#include <cstdint>
#include <mutex>
#include <shared_mutex>
#include <thread>

namespace vcm {

class ReadGate {
 public:
  // The gate held for a scope.
  using Reading = std::shared_lock<ReadGate>;
  using Updating = std::unique_lock<ReadGate>;

  // Enter and leave as a reader.
  void lock_shared() {
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
  void unlock_shared() { numReads.fetch_sub(1); }
  // Enter and leave as a writer.
  void lock();
  void unlock();

 private:
  // Apart from each other, so that readers counting do not slow down those that look at the flag.
  static constexpr std::size_t kCacheLine = 64;
  alignas(kCacheLine) std::atomic<std::int32_t> numReads{0};
  alignas(kCacheLine) std::atomic<std::int32_t> isUpdating{0};
  std::mutex updatenote;
};

}  // namespace vcm

#endif
