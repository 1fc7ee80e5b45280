#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

void freeVcmRecord(VcmRecord& record) { std::vector<ExtraLine>().swap(record.extraLines); }

bool equal(const VcmRecord& a, const VcmRecord& b) {
  return a.satNum == b.satNum && a.epoch == b.epoch && a.eciPos == b.eciPos &&
         a.eciVel == b.eciVel && a.bTerm == b.bTerm && a.agom == b.agom;
}

}  // namespace vcm
