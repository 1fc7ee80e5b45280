#include "DllExports/VCM/VcmDllVarsUtils/AddSatellites.h"

#include "DllExports/VCM/VcmDllVarsUtils/AnyText.h"
#include "VCM/VcmTree/Keys.h"
#include "VCM/VcmTree/Store.h"

namespace vcm {

std::int64_t AddSatFrLines(std::string_view text) {
  const VcmRecord record = AnyVcmStrings2Vcm(text);
  return record.parseStatus == kRejected ? kNoKey : AddVcmToMem(record);
}

std::int64_t AddSatFrFields(ConstCharacterArray characters, ConstNumberArray numbers) {
  // The store validates what it takes, with one line in the error trace for each limit broken.
  return AddVcmToMem(Array2Vcm(characters, numbers));
}

}  // namespace vcm
