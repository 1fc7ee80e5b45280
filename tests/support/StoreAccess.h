// The process-wide store, as tests use it: one call, one result.
#ifndef SUPPORT_STOREACCESS_H
#define SUPPORT_STOREACCESS_H

#include "VCM/VcmTree/KeyListing.h"
#include "VCM/VcmTree/Store.h"
#include "support/ReplaceableHost.h"

// The key mode: what keys the records that are added next will have.
inline void useKeyMode(std::int32_t mode) { elsetkeymodeset(&mode); }
inline void useOrdinaryKeys() { useKeyMode(0); }
inline void useDirectAddresses() { useKeyMode(1); }

inline std::int32_t storedCount() { return vcm::VcmGetNumOfTreeNodes(vcm::mediaVcm); }

// Nothing stored, ordinary keys. Returns the status.
inline std::int32_t emptyStore() {
  useOrdinaryKeys();
  std::int32_t status = vcm::kStored;
  vcm::VcmEmptyTree(vcm::mediaVcm, status);
  return status;
}

inline std::int32_t updateStored(std::int64_t key, const vcm::VcmRecord& record) {
  std::int32_t status = -1;
  vcm::VcmUpdateRec(vcm::mediaVcm, key, record, status);
  return status;
}

inline std::int32_t removeStored(std::int64_t key) {
  std::int32_t status = -1;
  vcm::VcmRemoveNode(vcm::mediaVcm, key, status);
  return status;
}

inline vcm::VcmRecord satelliteAt(std::int32_t satNum, double eciPosX = 7000.0) {
  vcm::VcmRecord record;
  record.satNum = satNum;
  record.epoch = {2024, 100, 12, 0, 0.0};
  record.eciPos[0] = eciPosX;
  return record;
}

#endif
