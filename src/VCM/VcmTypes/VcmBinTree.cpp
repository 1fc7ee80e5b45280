#include "VCM/VcmTypes/VcmBinTree.h"

#ifndef VCM_ADDRESS_SANITIZER

#include "VCM/VcmTypes/BlockPool.h"

namespace vcm {

namespace {

constinit BlockPool nodes(sizeof(VcmBinTree));

}  // namespace

void* VcmBinTree::operator new(std::size_t /*size*/, const std::nothrow_t& /*tag*/) noexcept {
  return nodes.take();
}

// NOLINTNEXTLINE(misc-new-delete-overloads)
void VcmBinTree::operator delete(void* node) noexcept {
  if (node != nullptr) {
    nodes.giveBack(node);
  }
}

}  // namespace vcm

#endif
