// Records as one-line messages.
#ifndef VCM_VCMTREE_ONELINEWRITER_H
#define VCM_VCMTREE_ONELINEWRITER_H

#include <span>

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

// Writes a record into a line of at least 1500 characters; what the layout leaves free, and any
// character beyond, is blank. The leap-second time has no place in this form. All 45 covariance
// values are written, whatever the covariance size.
void Vcm2Vcm1Line(const VcmRecord& record, std::span<char> line);

}  // namespace vcm

#endif
