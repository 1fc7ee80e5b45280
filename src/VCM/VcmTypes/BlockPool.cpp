#include "VCM/VcmTypes/BlockPool.h"

#include <new>

namespace vcm {

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
  constexpr std::size_t kObjectsPerBlock = 4096;
  const std::size_t size = kObjectsPerBlock * objectSize_;
  auto* const block = static_cast<std::byte*>(::operator new(sizeof(Link) + size, std::nothrow));
  if (block == nullptr) {
    return false;
  }
  blocks_ = ::new (block) Link{blocks_};
  unused_ = block + sizeof(Link);
  end_ = unused_ + size;
  return true;
}

void BlockPool::giveBackBlocks() {
  while (blocks_ != nullptr) {
    Link* const block = blocks_;
    blocks_ = block->next;
    ::operator delete(block);
  }
  unused_ = end_ = nullptr;
  free_ = nullptr;
}

}  // namespace vcm
