// Satellite keys: how records are addressed.
#ifndef VCM_VCMTREE_KEYS_H
#define VCM_VCMTREE_KEYS_H

#include <cstdint>
#include <span>
#include <string_view>

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

inline constexpr std::int64_t kNoKey = -1;
inline constexpr std::int32_t kVcmElsetType = 5;

bool VcmElsetType(std::int32_t type);

// The host's key mode in force: true when keys are addresses of objects.
bool usesDirectAddresses();

// True when this key stands for an address.
bool isDirectAddress(std::int64_t satKey);

// The key of a record's satellite number and epoch; kNoKey on failure.
std::int64_t createSatKeyFrVcm(const VcmRecord& record);

// The key of a satellite number and an epoch text of 20 characters, as the host makes it; kNoKey on
// failure. The store is not asked.
inline constexpr int kEpochTextLength = 20;
std::int64_t FieldsToSatKey(std::int32_t satNum, std::span<const char, kEpochTextLength> epoch);

// A text that sorts by satellite number, then by epoch.
inline constexpr int kSortTextLength = 32;
void FieldsToStr(const VcmRecord& record, char* text);

}  // namespace vcm

#endif
