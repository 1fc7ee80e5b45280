#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"

#include <algorithm>

#include "DllExports/VCM/VcmDllVarsUtils/UnknownKey.h"
#include "VCM/VcmTree/Covariance.h"
#include "VCM/VcmTree/Store.h"
#include "VCM/VcmTree/Validation.h"

namespace vcm {

void Vcm2Array(const VcmRecord& record, NumberArray numbers, CharacterArray characters) {
  std::fill(numbers.begin(), numbers.end(), 0.0);
  std::fill(characters.begin(), characters.end(), ' ');
  for (const ArrayNumber& number : kArrayNumberLayout) {
    numbers[number.position] = number.get(record);
  }
  for (const ArrayText& text : kArrayTextLayout) {
    const std::string_view value = text.get(record);
    std::copy(value.begin(), value.end(), characters.data() + text.position);
  }
  if (record.covMtxSize >= 1) {
    const CovarianceTriangle values = Vcm2dTo1d(record.covMtx);
    std::copy(values.begin(), values.end(), numbers.data() + kArrayCovariance);
  }
}

VcmRecord Array2Vcm(ConstCharacterArray characters, ConstNumberArray numbers) {
  VcmRecord record;
  for (const ArrayNumber& number : kArrayNumberLayout) {
    number.set(record, numbers[number.position]);
  }
  for (const ArrayText& text : kArrayTextLayout) {
    text.set(record, {characters.data() + text.position, text.width});
  }
  if (record.covMtxSize >= 1) {
    CovarianceTriangle values;
    std::copy_n(numbers.data() + kArrayCovariance, values.size(), values.begin());
    record.covMtx = Vcm1dTo2d(values);
  }
  return record;
}

std::int32_t GetSatToFields(std::int64_t satKey, NumberArray numbers, CharacterArray characters) {
  std::fill(characters.begin(), characters.end(), ' ');
  const BorrowedRecord record(mediaVcm, satKey);
  if (!record) {
    logUnknownKey("GetSatToFields", satKey);
    return kNotFound;
  }
  Vcm2Array(*record, numbers, characters);
  return kStored;
}

std::int32_t UpdateSatFrFields(std::int64_t satKey, ConstCharacterArray characters,
                               ConstNumberArray numbers) {
  VcmRecord stored;
  VcmFindRec(mediaVcm, satKey, stored);
  if (stored.satNum == kNoSatellite) {
    logUnknownKey("VcmUpdateSatFrFields", satKey);
    return kNotFound;
  }
  VcmRecord record = Array2Vcm(characters, numbers);
  record.satNum = stored.satNum;
  record.epoch = stored.epoch;
  if (ValidateVcmValues(stored) != kGood) {
    return kRejected;
  }
  std::int32_t status = kStored;
  VcmUpdateRec(mediaVcm, satKey, record, status);
  return status;
}

}  // namespace vcm
