// Memory for objects of one size, side by side in blocks.
//
// A search visits objects that were made at quite different times: it is faster where many of them
// share a page and nothing else lies between, and where pages are huge: blocks are, but for the first.
// All are given back when the last object is.
#ifndef VCM_VCMTYPES_BLOCKPOOL_H
#define VCM_VCMTYPES_BLOCKPOOL_H

#include <cstddef>
#include <mutex>

namespace vcm {

// May be used from any thread.
class BlockPool {
 public:
  // Objects are aligned as pointers are; their size is a multiple of that.
  explicit constexpr BlockPool(std::size_t objectSize) : objectSize_(objectSize) {}

  // Null when memory is exhausted.
  void* take();
  void giveBack(void* object);

 private:
  struct Link {
    Link* next;
  };
  // What a block begins with.
  struct Block {
    Block* before;
    int number;  // from 1
  };

  bool grow();
  void giveBackBlocks();

  std::mutex lock_;
  const std::size_t objectSize_;
  Block* blocks_ = nullptr;      // the newest
  std::byte* unused_ = nullptr;  // the rest of the newest block
  std::byte* end_ = nullptr;
  Link* free_ = nullptr;  // objects given back
  std::size_t inUse_ = 0;
};

}  // namespace vcm

#endif
