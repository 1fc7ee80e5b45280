// The process-wide store, as tests use it: one call, one result.
#ifndef SUPPORT_STOREACCESS_H
#define SUPPORT_STOREACCESS_H

#include <string>

#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"
#include "VCM/VcmTree/KeyListing.h"
#include "VCM/VcmTree/Store.h"
#include "support/ReplaceableHost.h"

// The key mode: what keys the records that are added next will have.
inline void useKeyMode(std::int32_t mode) { elsetkeymodeset(&mode); }
inline void useOrdinaryKeys() { useKeyMode(0); }
inline void useDirectAddresses() { useKeyMode(1); }

// A text with a key in 19 columns in the place of its #.
inline std::string withKey(std::string text, std::int64_t key) {
  const std::size_t place = text.find('#');
  std::string digits = std::to_string(key);
  digits.insert(0, digits.size() < 19 ? 19 - digits.size() : 0, ' ');
  return place == std::string::npos ? text : text.replace(place, 1, digits);
}

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

// All that is stored, bit for bit.
inline std::string storeImage() {
  std::string image;
  const auto append = [&image](const auto* first, std::size_t count) {
    image.append(reinterpret_cast<const char*>(first), count * sizeof(*first));
  };
  const vcm::StoreReading reading;
  vcm::StoreTree::walkUp(vcm::mediaVcm.root, [&](const vcm::VcmBinTree& node) {
    if (const vcm::VcmRecord* const record = vcm::recordOf(node)) {
      std::array<double, vcm::kArrayNumbers> numbers;
      std::array<char, vcm::kArrayCharacters> texts;
      vcm::Vcm2Array(*record, numbers, texts);
      append(&node.satKey, 1);
      append(numbers.data(), numbers.size());
      append(texts.data(), texts.size());
      append(&record->commonName, 1);
      append(record->extraLines.data(), record->extraLines.size());
    }
  });
  return image;
}

#endif
