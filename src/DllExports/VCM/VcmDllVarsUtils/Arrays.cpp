#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"

#include <algorithm>

#include "Host/TraceLine.h"
#include "VCM/VcmTree/Covariance.h"
#include "VCM/VcmTree/Store.h"

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

std::int32_t GetSatToFields(std::int64_t satKey, NumberArray numbers, CharacterArray characters) {
  std::fill(characters.begin(), characters.end(), ' ');
  const BorrowedRecord record(mediaVcm, satKey);
  if (!record) {
    constexpr int kKeyColumns = 19;
    TraceLine()
        .text("GetSatToFields: Unable to locate satKey ")
        .number(satKey, kKeyColumns)
        .text(" in the VCM binary tree.")
        .error();
    return kNotFound;
  }
  Vcm2Array(*record, numbers, characters);
  return kStored;
}

}  // namespace vcm
