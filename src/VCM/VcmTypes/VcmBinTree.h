// The node of the store's tree and the handle of a store.
#ifndef VCM_VCMTYPES_VCMBINTREE_H
#define VCM_VCMTYPES_VCMBINTREE_H

#include <cstdint>
#include <new>

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

struct VcmBinTree {
  std::int64_t satKey = 0;
  std::int32_t seqNum = 0;      // order of loading, from 1; given when the node is linked in
  std::int32_t balance = 0;     // -1 left side higher, 0, +1 right side higher
  VcmBinTree* left = nullptr;   // smaller keys
  VcmBinTree* right = nullptr;  // larger keys
  VcmRecord* rec = nullptr;     // owned; null when the key is a direct address

#ifndef VCM_ADDRESS_SANITIZER
  // Nodes lie side by side, apart from their records. The address sanitizer sees them one by one.
  static void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept;
  static void operator delete(void* node) noexcept;  // NOLINT(misc-new-delete-overloads): as above
#endif
};

// Releases a node and the record it owns.
inline void freeVcmBinTree(VcmBinTree* node) {
  if (node != nullptr) {
    delete node->rec;
    delete node;
  }
}

// A store: the root of its tree, null when it is empty.
struct VcmMedia {
  VcmBinTree* root = nullptr;
};

}  // namespace vcm

#endif
