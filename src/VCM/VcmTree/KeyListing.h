// Counting and listing what is stored, and finding satellites by number.
#ifndef VCM_VCMTREE_KEYLISTING_H
#define VCM_VCMTREE_KEYLISTING_H

#include <cstdint>

#include "VCM/VcmTypes/VcmBinTree.h"

namespace vcm {

std::int32_t VcmGetNumOfTreeNodes(const VcmMedia& media);

// The orders of a listing; any other value lists ascending by key.
enum KeyOrder : std::int32_t {
  kBySatellite = 0,         // ascending by satellite number, then by epoch
  kBySatelliteReverse = 1,  // the same list backwards
  kAsLoaded = 2,
  kByKey = 3
};

// Writes the keys of a store behind the first `count` of the array and raises `count` by their
// number, which is that of the store at one moment. The gate: orders 0 to 2 enter it themselves;
// for the order by key the caller is inside it.
void VcmGetTreeKeys(const VcmMedia& media, std::int32_t& count, std::int64_t* keys,
                    std::int32_t order);

// True for the orders that enter the gate themselves.
constexpr bool listingEntersGate(std::int32_t order) {
  return order >= kBySatellite && order <= kAsLoaded;
}

// The key of a record of this satellite number: the first that a walk meets which goes through a
// node before its smaller keys and those before the larger ones, not necessarily the earliest
// epoch. kNoKey when there is none.
std::int64_t VcmSatKeyGet(const VcmMedia& media, std::int32_t satNum);

// The same in mediaVcm; logs an error line when there is none.
std::int64_t GetSatKey(std::int32_t satNum);

}  // namespace vcm

#endif
