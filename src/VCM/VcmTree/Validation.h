#ifndef VCM_VCMTREE_VALIDATION_H
#define VCM_VCMTREE_VALIDATION_H

#include <cstdint>

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

// The gate that every record passes before it is stored. Checks identity, epoch, revolution and ECI
// state; each limit broken logs one error line. All checks run. Returns kGood or kRejected.
std::int32_t ValidateVcmValues(const VcmRecord& record);

}  // namespace vcm

#endif
