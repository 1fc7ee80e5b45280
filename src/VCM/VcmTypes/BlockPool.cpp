#include "VCM/VcmTypes/BlockPool.h"

#include <sys/mman.h>

#include <new>

namespace vcm {

namespace {

constexpr std::size_t kSmallBlock = std::size_t{160} << 10;
constexpr int kSmallBlocks = 8;  // of these, so that a small store stays small
constexpr std::size_t kHugePage = std::size_t{2} << 20;

}  // namespace

void* BlockPool::take() {
  const std::lock_guard<std::mutex> guard(lock_);
  void* object = free_;
  if (object != nullptr) {
    free_ = free_->next;
  } else if (unused_ != end_ || grow()) {
    object = unused_;
    unused_ += objectSize_;
  } else {
    return nullptr;
  }
  ++inUse_;
  return object;
}

void BlockPool::giveBack(void* object) {
  const std::lock_guard<std::mutex> guard(lock_);
  free_ = ::new (object) Link{free_};
  if (--inUse_ == 0) {
    giveBackBlocks();
  }
}

bool BlockPool::grow() {
  const bool large = blocks_ != nullptr && blocks_->number >= kSmallBlocks;
  const std::size_t size = large ? kHugePage : kSmallBlock;
  void* const memory = large ? ::operator new (size, std::align_val_t{kHugePage}, std::nothrow)
                             : ::operator new(size, std::nothrow);
  if (memory == nullptr) {
    return false;
  }
#ifdef MADV_HUGEPAGE
  if (large) {
    madvise(memory, size, MADV_HUGEPAGE);  // it is only advice: refused, all is as before
  }
#endif
  blocks_ = ::new (memory) Block{blocks_, blocks_ == nullptr ? 1 : blocks_->number + 1};
  unused_ = static_cast<std::byte*>(memory) + sizeof(Block);
  end_ = unused_ + (size - sizeof(Block)) / objectSize_ * objectSize_;
  return true;
}

void BlockPool::giveBackBlocks() {
  while (blocks_ != nullptr) {
    Block* const block = blocks_;
    blocks_ = block->before;
    if (block->number > kSmallBlocks) {
      ::operator delete (block, std::align_val_t{kHugePage});
    } else {
      ::operator delete(block);
    }
  }
  unused_ = end_ = nullptr;
  free_ = nullptr;
}

}  // namespace vcm
