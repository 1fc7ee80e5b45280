#include <algorithm>

#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"
#include "DllExports/VCM/VcmDllVarsUtils/UnknownKey.h"
#include "VCM/VcmFormats/Field.h"
#include "VCM/VcmFormats/FieldDate.h"
#include "VCM/VcmTree/Store.h"
#include "vcm/Vcm.h"

namespace {

template <std::size_t N>
void put(const vcm::FixedText<N>& text, char* out) {
  vcm::copyPadded(text.view(), out, N);
}

}  // namespace

int32_t VcmGetAllFields(int64_t satKey, int32_t* satNum, char intlDes[VCM_INTLDES_LENGTH],
                        char epoch[VCM_DATE_LENGTH], int32_t* epochRev, double eciPos[3],
                        double eciVel[3], char geoName[VCM_GEONAME_LENGTH], int32_t* geoZonals,
                        int32_t* geoTesserals, char dragModel[VCM_DRAGMODEL_LENGTH],
                        char lunarSolar[VCM_ONOFF_LENGTH], char radPress[VCM_ONOFF_LENGTH],
                        char earthTides[VCM_ONOFF_LENGTH], char intrackThrust[VCM_ONOFF_LENGTH],
                        double* bTerm, double* agom, double* thrustAccel, double* cmOffset,
                        int32_t* f10, int32_t* avgF10, double* avgAp,
                        double timeTerms[VCM_TIME_TERMS], int32_t* nutationTerms,
                        char leapSecondTime[VCM_DATE_LENGTH], char integMode[VCM_INTEGMODE_LENGTH],
                        char partials[VCM_PARTIALS_LENGTH], char stepMode[VCM_STEPMODE_LENGTH],
                        char fixedStep[VCM_ONOFF_LENGTH],
                        char stepSelection[VCM_STEPSELECTION_LENGTH], double* initStepSize,
                        double* errorControl, double* wtdRms) VCM_NOEXCEPT {
  const vcm::BorrowedRecord found(vcm::mediaVcm, satKey);
  // What an unknown key gives: zeros and blanks, also for the dates.
  const vcm::VcmRecord none;
  const vcm::VcmRecord& r = found ? *found : none;
  const auto putDate = [&found](const vcm::InputDate& date, char* out) {
    std::fill_n(out, VCM_DATE_LENGTH, ' ');
    if (found) {
      vcm::writeFieldDate(date, out);
    }
  };
  *satNum = r.satNum;
  put(r.intlDes, intlDes);
  putDate(r.epoch, epoch);
  *epochRev = r.epochRev;
  std::copy(r.eciPos.begin(), r.eciPos.end(), eciPos);
  std::copy(r.eciVel.begin(), r.eciVel.end(), eciVel);
  put(r.geoName, geoName);
  *geoZonals = r.geoZonals;
  *geoTesserals = r.geoTesserals;
  put(r.dragModel, dragModel);
  put(r.lunarSolar, lunarSolar);
  put(r.radPress, radPress);
  put(r.earthTides, earthTides);
  put(r.intrackThrust, intrackThrust);
  *bTerm = r.bTerm;
  *agom = r.agom;
  *thrustAccel = r.thrustAccel;
  *cmOffset = r.cmOffset;
  *f10 = r.f10;
  *avgF10 = r.avgF10;
  *avgAp = r.avgAp;
  timeTerms[VCM_TIME_TAIMINUSUTC] = r.taiMinusUtc;
  timeTerms[VCM_TIME_UT1MINUSUTC] = r.ut1MinusUtc;
  timeTerms[VCM_TIME_UT1RATE] = r.ut1Rate / vcm::kSecondsPerMillisecond;
  timeTerms[VCM_TIME_POLARMOTIONX] = r.polarMotionX;
  timeTerms[VCM_TIME_POLARMOTIONY] = r.polarMotionY;
  *nutationTerms = r.nutationTerms;
  putDate(r.leapSecondTime, leapSecondTime);
  put(r.integMode, integMode);
  put(r.partials, partials);
  put(r.stepMode, stepMode);
  put(r.fixedStep, fixedStep);
  put(r.stepSelection, stepSelection);
  *initStepSize = r.initStepSize;
  *errorControl = r.errorControl;
  *wtdRms = r.wtdRms;
  if (!found) {
    vcm::logUnknownKey("VcmGetAllFields", satKey);
    return vcm::kNotFound;
  }
  return vcm::kStored;
}

int32_t VcmRetrieveAllData(int64_t satKey, char vcmCharArray[VCM_CHAR_ARRAY_LENGTH],
                           double vcmNumArray[VCM_NUM_ARRAY_LENGTH]) VCM_NOEXCEPT {
  return vcm::GetSatToFields(satKey, vcm::NumberArray(vcmNumArray, VCM_NUM_ARRAY_LENGTH),
                             vcm::CharacterArray(vcmCharArray, VCM_CHAR_ARRAY_LENGTH));
}

int32_t VcmUpdateSatFrFields(int64_t satKey, const char* vcmCharArray,
                             const double vcmNumArray[VCM_NUM_ARRAY_LENGTH]) VCM_NOEXCEPT {
  return vcm::UpdateSatFrFields(satKey, vcm::InputText<VCM_CHAR_ARRAY_LENGTH>(vcmCharArray).array(),
                                vcm::ConstNumberArray(vcmNumArray, VCM_NUM_ARRAY_LENGTH));
}
