// Any text as a message: converted, added, read back, taken out again.
#include <algorithm>

#include "support/ArrayForm.h"
#include "support/Fuzzing.h"

using fuzz::ArrayForm;
using fuzz::require;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view given(reinterpret_cast<const char*>(data), size);
  const std::vector<char> text = fuzz::argument(given, VCM_TEXT_LENGTH);

  ArrayForm parsed;
  const std::int32_t status =
      VcmStringToArray(text.data(), parsed.numbers.data(), parsed.texts.data());
  require(status == 0 || (status == 2 && parsed == ArrayForm{}), "a refused text leaves nothing");
  std::vector<char> oneLine(VCM_ONE_LINE_LENGTH);
  require(VcmMultiLineTo1Line(text.data(), oneLine.data()) == status, "both conversions agree");
  require(status == 0 || std::count(oneLine.begin(), oneLine.end(), ' ') == VCM_ONE_LINE_LENGTH,
          "a refused text makes no line");

  const std::int64_t satKey = VcmAddSatFrLines(text.data());
  require(status == 0 ? satKey == -1 || satKey > 0 : satKey == -1, "only what is read is added");
  require(VcmGetCount() == (satKey > 0 ? 1 : 0), "the count follows");
  if (satKey > 0) {
    require(ArrayForm::of(satKey) == parsed, "what is stored is what was read");
    require(VcmAddSatFrLines(text.data()) == 0, "the same message is a duplicate");
    std::vector<char> lines(VCM_TEXT_LENGTH);
    require(VcmGetLines(satKey, lines.data()) == 0, "what is stored can be had as lines");
    require(VcmRemoveSat(satKey) == 0, "what is stored can be removed");
  }
  if (status == 0) {
    fuzz::requireStable(parsed);
  }

  const std::int64_t made =
      VcmFieldsToSatKey(5, fuzz::argument(given, VCM_EPOCH_TEXT_LENGTH).data());
  require(made == -1 || (made > 0 && made % 2 == 1), "an epoch makes an ordinary key, or none");
  return 0;
}
