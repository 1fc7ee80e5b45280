#include "VCM/VcmTree/Keys.h"

#include <array>

#include "Host/HostCalendar.h"
#include "Host/HostCore.h"
#include "VCM/VcmFormats/ColumnWriting.h"

namespace vcm {

bool VcmElsetType(std::int32_t type) { return type == kVcmElsetType; }

bool usesDirectAddresses() {
  constexpr std::int32_t kDirectAddressMode = 1;
  return (useAllKeyMode != 0 ? allkeymodeget() : elsetkeymodeget()) == kDirectAddressMode;
}

bool isDirectAddress(std::int64_t satKey) { return isdma(&satKey) != 0; }

std::int64_t createSatKeyFrVcm(const VcmRecord& record) {
  const double epoch = inputDateToDs50(record.epoch);
  return createsatkey(&record.satNum, &kVcmElsetType, nullptr, &epoch);
}

std::int64_t FieldsToSatKey(std::int32_t satNum, std::span<const char, kEpochTextLength> epoch) {
  std::array<char, kEpochTextLength> text;
  copyPadded(withoutLeadingBlanks({epoch.data(), epoch.size()}), text.data(), text.size());
  // The first two characters are a year or its century and stay as they are.
  constexpr std::int32_t kYearDigits = 2;
  constexpr std::int32_t kRest = kEpochTextLength - kYearDigits;
  blanktozerochar(text.data() + kYearDigits, &kRest);
  return createsatkey(&satNum, &kVcmElsetType, text.data(), nullptr);
}

void FieldsToStr(const VcmRecord& record, char* text) {
  constexpr int kNumberWidth = 9;
  constexpr int kEpochWidth = 16;
  constexpr int kUsed = kNumberWidth + kEpochWidth;
  writeZeroFilled<kNumberWidth>(text, record.satNum);
  writeFixed<kEpochWidth, 9>(text + kNumberWidth, inputDateToDs50(record.epoch));
  copyPadded("", text + kUsed, kSortTextLength - kUsed);
}

}  // namespace vcm
