#include "DllExports/VCM/VcmDllVarsUtils/SingleFields.h"

#include <algorithm>
#include <array>

#include "DllExports/VCM/VcmDllVarsUtils/UnknownKey.h"
#include "VCM/VcmFormats/FieldTable.h"
#include "VCM/VcmTree/Store.h"
#include "VCM/VcmTree/Validation.h"

namespace vcm {

namespace {

bool change(const SingleField& field, std::string_view value, VcmRecord& record) {
  if (field.read(value, record)) {
    return true;
  }
  const FixedText<kMaxFieldWidth> shown(value);
  TraceLine()
      .text("VcmSetField: Cannot read \"")
      .text(withoutTrailingBlanks(shown.view()))
      .text("\" as field ")
      .text(field.name)
      .text(".")
      .error();
  return false;
}

}  // namespace

std::int32_t GetField(std::int64_t satKey, std::int32_t fieldIndex, std::span<char> value) {
  std::array<char, kMaxFieldWidth> text;
  std::ptrdiff_t width = 0;
  if (const BorrowedRecord record(mediaVcm, satKey); !record) {
    copyPadded({}, value.data(), value.size());
    logUnknownKey("VcmGetField", satKey);
    return kNotFound;
  } else if (const SingleField* const field = findSingleField(fieldIndex)) {
    field->write(*record, text.data());
    width = field->width;
  }
  // What was written holds no blanks but real ones.
  const auto end = text.begin() + width;
  const auto first = std::find_if(text.begin(), end, [](char c) { return c != ' '; });
  std::fill(std::copy(first, end, value.begin()), value.end(), ' ');
  return kStored;
}

std::int32_t SetField(std::int64_t satKey, std::int32_t fieldIndex, std::string_view value) {
  const SingleField* const field = findSingleField(fieldIndex);
  if (field != nullptr && field->read == nullptr) {
    TraceLine()
        .text("VcmSetField: Update to ")
        .text(field->refusedAs)
        .text(" is not allowed")
        .error();
    return kNotFound;
  }
  VcmRecord record;
  VcmFindRec(mediaVcm, satKey, record);
  if (record.satNum == kNoSatellite) {
    logUnknownKey("VcmSetField", satKey);
    return kNotFound;
  }
  if (field != nullptr && !change(*field, withoutLeadingBlanks(value), record)) {
    return kRejected;
  }
  if (ValidateVcmValues(record) != kGood) {
    return kRejected;
  }
  std::int32_t status = kStored;
  VcmUpdateRec(mediaVcm, satKey, record, status);
  return status;
}

}  // namespace vcm
