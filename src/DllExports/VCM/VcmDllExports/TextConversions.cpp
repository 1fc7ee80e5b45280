#include <algorithm>

#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "DllExports/VCM/VcmDllExports/MessageText.h"
#include "DllExports/VCM/VcmDllVarsUtils/AnyText.h"
#include "DllExports/VCM/VcmDllVarsUtils/UnknownKey.h"
#include "VCM/VcmCardReading/OneLineParser.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/OneLineWriter.h"
#include "VCM/VcmTree/Store.h"
#include "vcm/Vcm.h"

int32_t VcmMultiLineTo1Line(const char* vcmText, char vcm1Line[VCM_ONE_LINE_LENGTH]) VCM_NOEXCEPT {
  const vcm::VcmRecord record = vcm::AnyVcmStrings2Vcm(vcm::MessageText(vcmText).view());
  if (record.parseStatus != vcm::kGood) {
    std::fill_n(vcm1Line, VCM_ONE_LINE_LENGTH, ' ');
    return vcm::kRejected;
  }
  vcm::Vcm2Vcm1Line(record, {vcm1Line, VCM_ONE_LINE_LENGTH});
  return vcm::kGood;
}

int32_t Vcm1LineToMultiLine(const char* vcm1Line, char vcmText[VCM_TEXT_LENGTH]) VCM_NOEXCEPT {
  return vcm::Vcm1Line2VcmLines(vcm::InputText<VCM_ONE_LINE_LENGTH>(vcm1Line).view(),
                                {vcmText, VCM_TEXT_LENGTH});
}

int32_t VcmGetLines(int64_t satKey, char vcmText[VCM_TEXT_LENGTH]) VCM_NOEXCEPT {
  if (const vcm::BorrowedRecord record(vcm::mediaVcm, satKey); record) {
    if (vcm::Vcm2VcmLines(*record, {vcmText, VCM_TEXT_LENGTH}) == vcm::kWritten) {
      return vcm::kGood;
    }
  } else {
    vcm::logUnknownKey("VcmGetLines", satKey);
  }
  std::fill_n(vcmText, VCM_TEXT_LENGTH, ' ');
  return vcm::kRejected;
}
