#include "DllExports/VCM/VcmDllVarsUtils/AddSatellites.h"

#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "DllExports/VCM/VcmDllExports/MessageText.h"
#include "vcm/Vcm.h"

int64_t VcmAddSatFrLines(const char* vcmText) VCM_NOEXCEPT {
  return vcm::AddSatFrLines(vcm::MessageText(vcmText).view());
}

void VcmAddSatFrLinesML(const char* vcmText, int64_t* satKey) VCM_NOEXCEPT {
  *satKey = VcmAddSatFrLines(vcmText);
}

int64_t VcmAddSatFrFields(const char* vcmCharArray,
                          const double vcmNumArray[VCM_NUM_ARRAY_LENGTH]) VCM_NOEXCEPT {
  return vcm::AddSatFrFields(vcm::InputText<VCM_CHAR_ARRAY_LENGTH>(vcmCharArray).array(),
                             vcm::ConstNumberArray(vcmNumArray, VCM_NUM_ARRAY_LENGTH));
}

void VcmAddSatFrFieldsML(const char* vcmCharArray, const double vcmNumArray[VCM_NUM_ARRAY_LENGTH],
                         int64_t* satKey) VCM_NOEXCEPT {
  *satKey = VcmAddSatFrFields(vcmCharArray, vcmNumArray);
}
