#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "DllExports/VCM/VcmDllVarsUtils/SingleFields.h"
#include "vcm/Vcm.h"

int32_t VcmGetField(int64_t satKey, int32_t fieldIndex,
                    char valueStr[VCM_FIELD_VALUE_LENGTH]) VCM_NOEXCEPT {
  return vcm::GetField(satKey, fieldIndex, {valueStr, VCM_FIELD_VALUE_LENGTH});
}

int32_t VcmSetField(int64_t satKey, int32_t fieldIndex, const char* valueStr) VCM_NOEXCEPT {
  return vcm::SetField(satKey, fieldIndex, vcm::InputText<VCM_FIELD_VALUE_LENGTH>(valueStr).view());
}
