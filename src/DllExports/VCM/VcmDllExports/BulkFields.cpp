#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"
#include "vcm/Vcm.h"

int32_t VcmRetrieveAllData(int64_t satKey, char vcmCharArray[VCM_CHAR_ARRAY_LENGTH],
                           double vcmNumArray[VCM_NUM_ARRAY_LENGTH]) VCM_NOEXCEPT {
  return vcm::GetSatToFields(satKey, vcm::NumberArray(vcmNumArray, VCM_NUM_ARRAY_LENGTH),
                             vcm::CharacterArray(vcmCharArray, VCM_CHAR_ARRAY_LENGTH));
}
