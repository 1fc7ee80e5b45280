// A readers/writer gate made of two integers and a lock.
//
// A writer takes the lock, raises `isUpdating` and waits until no reader is inside; a reader waits
// while `isUpdating` is up and then counts itself in. Because a reader looks at the flag again
// after counting itself, and backs out when it is up, no reader ever overlaps a writer, and a
// waiting writer keeps new readers out. Waiting threads yield the processor.
//
// One thread must not enter a gate twice: a writer that waits in between would lock both out.
#ifndef VCM_VCMTREE_READGATE_H
#define VCM_VCMTREE_READGATE_H

#include <atomic>
#include <cstdint>
#include <mutex>

namespace vcm {

class ReadGate {
 public:
  void beginRead();
  void endRead();
  void beginUpdate();
  void endUpdate();

  // The gate held for a scope.
  class Reading;
  class Updating;

 private:
  // Apart from each other, so that readers counting do not slow down those that look at the flag.
  static constexpr std::size_t kCacheLine = 64;
  alignas(kCacheLine) std::atomic<std::int32_t> numReads{0};
  alignas(kCacheLine) std::atomic<std::int32_t> isUpdating{0};
  std::mutex updatenote;
};

class ReadGate::Reading {
 public:
  explicit Reading(ReadGate& gate) : gate_(gate) { gate_.beginRead(); }
  ~Reading() { gate_.endRead(); }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

 private:
  ReadGate& gate_;
};

class ReadGate::Updating {
 public:
  explicit Updating(ReadGate& gate) : gate_(gate) { gate_.beginUpdate(); }
  ~Updating() { gate_.endUpdate(); }
  Updating(const Updating&) = delete;
  Updating& operator=(const Updating&) = delete;

 private:
  ReadGate& gate_;
};

}  // namespace vcm

#endif
