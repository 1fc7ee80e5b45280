// Fields of a stored message set to anything: each line of an input is a field's index, as one byte, and
// a value.
#include <functional>
#include <numeric>
#include <string>

#include "support/ArrayForm.h"
#include "support/Fuzzing.h"
#include "support/Messages.h"

using fuzz::ArrayForm;
using fuzz::require;

namespace {

std::string valueOf(std::int64_t satKey, std::int32_t index) {
  std::string value(VCM_FIELD_VALUE_LENGTH, '?');
  require(VcmGetField(satKey, index, value.data()) == 0, "every field can be read");
  return value;
}

template <class Elements>
std::ptrdiff_t countChanged(const Elements& before, const Elements& after) {
  return std::inner_product(before.begin(), before.end(), after.begin(), std::ptrdiff_t{0},
                            std::plus<>(), [](auto a, auto b) { return !fuzz::equalBits(a, b); });
}

void setField(std::int64_t satKey, std::int32_t index, std::string_view given) {
  constexpr std::ptrdiff_t kWidestText = VCM_DRAGMODEL_LENGTH;
  const ArrayForm before = ArrayForm::of(satKey);
  const std::vector<char> value = fuzz::argument(given, VCM_FIELD_VALUE_LENGTH);
  const std::int32_t status = VcmSetField(satKey, index, value.data());
  const ArrayForm after = ArrayForm::of(satKey);
  const bool isField = index >= VCM_FIELD_SATNUM && index <= VCM_FIELD_EDR;
  require(status == 0 || status == 2, "no other code");
  require((status == 0 && isField) || after == before, "a refusal changes nothing");
  const std::ptrdiff_t numbers = countChanged(before.numbers, after.numbers);
  const std::ptrdiff_t characters = countChanged(before.texts, after.texts);
  require(numbers + (characters > 0 ? 1 : 0) <= 1 && characters <= kWidestText,
          "one field changes");
  require(before.numbers[VCM_NUM_SATNUM] == after.numbers[VCM_NUM_SATNUM] &&
              before.numbers[VCM_NUM_EPOCH] == after.numbers[VCM_NUM_EPOCH],
          "what makes up the key stays");

  // What a field says of itself, it takes; a rate is multiplied and divided on its way.
  const std::string shown = valueOf(satKey, index);
  if (status == 0 && index != VCM_FIELD_UT1RATE && shown.find('*') == shown.npos) {
    require(VcmSetField(satKey, index, shown.c_str()) == 0, "a field takes what it shows");
    require(valueOf(satKey, index) == shown, "and shows what it took");
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string golden = joined(goldenMessage());
  const std::int64_t satKey = VcmAddSatFrLines(golden.c_str());
  require(satKey > 0, "the golden message is good");
  for (fuzz::Input input(data, size); !input.empty();) {
    constexpr int kIndexes = VCM_FIELD_EDR + 3;  // some that are none
    const std::int32_t index = input.takeBelow(kIndexes);
    setField(satKey, index, input.takeLine());
  }
  fuzz::requireStable(ArrayForm::of(satKey));
  VcmRemoveAllSats();
  return 0;
}
