#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"

#include <algorithm>

#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "DllExports/VCM/VcmDllExports/MessageText.h"
#include "DllExports/VCM/VcmDllVarsUtils/AnyText.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/OneLineWriter.h"
#include "vcm/Vcm.h"

namespace {

vcm::VcmRecord recordOf(const double* vcmNumArray, const char* vcmCharArray) {
  return vcm::Array2Vcm(vcm::InputText<VCM_CHAR_ARRAY_LENGTH>(vcmCharArray).array(),
                        vcm::ConstNumberArray(vcmNumArray, VCM_NUM_ARRAY_LENGTH));
}

}  // namespace

int32_t VcmStringToArray(const char* vcmText, double vcmNumArray[VCM_NUM_ARRAY_LENGTH],
                         char vcmCharArray[VCM_CHAR_ARRAY_LENGTH]) VCM_NOEXCEPT {
  const vcm::VcmRecord record = vcm::AnyVcmStrings2Vcm(vcm::MessageText(vcmText).view());
  if (record.parseStatus == vcm::kRejected) {
    std::fill_n(vcmNumArray, VCM_NUM_ARRAY_LENGTH, 0.0);
    std::fill_n(vcmCharArray, VCM_CHAR_ARRAY_LENGTH, ' ');
    return vcm::kRejected;
  }
  vcm::Vcm2Array(record, vcm::NumberArray(vcmNumArray, VCM_NUM_ARRAY_LENGTH),
                 vcm::CharacterArray(vcmCharArray, VCM_CHAR_ARRAY_LENGTH));
  return vcm::kGood;
}

int32_t VcmArrayToVcm1Line(const double vcmNumArray[VCM_NUM_ARRAY_LENGTH], const char* vcmCharArray,
                           char vcm1Line[VCM_ONE_LINE_LENGTH]) VCM_NOEXCEPT {
  vcm::Vcm2Vcm1Line(recordOf(vcmNumArray, vcmCharArray), {vcm1Line, VCM_ONE_LINE_LENGTH});
  return vcm::kGood;
}

int32_t VcmArrayToVcmLines(const double vcmNumArray[VCM_NUM_ARRAY_LENGTH], const char* vcmCharArray,
                           char vcmText[VCM_TEXT_LENGTH]) VCM_NOEXCEPT {
  vcm::Vcm2VcmLines(recordOf(vcmNumArray, vcmCharArray), {vcmText, VCM_TEXT_LENGTH});
  return vcm::kGood;
}
