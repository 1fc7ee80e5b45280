#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "Host/HostCore.h"
#include "Host/TraceLine.h"
#include "VCM/VcmTree/KeyListing.h"
#include "VCM/VcmTree/Keys.h"
#include "VCM/VcmTree/Store.h"
#include "vcm/Vcm.h"

int32_t VcmInit(void) VCM_NOEXCEPT { return 0; }

void VcmGetInfo(char info[VCM_INFO_LENGTH]) VCM_NOEXCEPT {
  constexpr std::string_view kName = "Vcm";
  constexpr std::int32_t kNameLength = kName.size();
  constexpr std::int32_t kInfoLength = VCM_INFO_LENGTH;
  getsoftwareinfo(kName.data(), &kNameLength, info, &kInfoLength);
}

int32_t VcmGetCount(void) VCM_NOEXCEPT { return vcm::VcmGetNumOfTreeNodes(vcm::mediaVcm); }

void VcmGetLoaded(int32_t order, int64_t* satKeys) VCM_NOEXCEPT {
  std::int32_t count = 0;
  if (vcm::listingEntersGate(order)) {
    vcm::VcmGetTreeKeys(vcm::mediaVcm, count, satKeys, order);
  } else {
    const vcm::StoreReading reading;
    vcm::VcmGetTreeKeys(vcm::mediaVcm, count, satKeys, order);
  }
  if (count == 0) {
    vcm::logInfo("Warning-VcmGetLoaded: The binary tree is empty. No satKey returns.");
  }
}

int32_t VcmRemoveSat(int64_t satKey) VCM_NOEXCEPT {
  std::int32_t status = 0;
  vcm::VcmRemoveNode(vcm::mediaVcm, satKey, status);
  return status;
}

int32_t VcmRemoveAllSats(void) VCM_NOEXCEPT {
  std::int32_t status = 0;
  vcm::VcmEmptyTree(vcm::mediaVcm, status);
  return status;
}

int64_t VcmGetSatKey(int32_t satNum) VCM_NOEXCEPT { return vcm::GetSatKey(satNum); }

int64_t VcmGetSatKeyML(int32_t satNum, int64_t* satKey) VCM_NOEXCEPT {
  return *satKey = vcm::GetSatKey(satNum);
}

int64_t VcmFieldsToSatKey(int32_t satNum, const char* epoch) VCM_NOEXCEPT {
  return vcm::FieldsToSatKey(satNum, vcm::InputText<VCM_EPOCH_TEXT_LENGTH>(epoch).array());
}

void VcmFieldsToSatKeyML(int32_t satNum, const char* epoch, int64_t* satKey) VCM_NOEXCEPT {
  *satKey = VcmFieldsToSatKey(satNum, epoch);
}
