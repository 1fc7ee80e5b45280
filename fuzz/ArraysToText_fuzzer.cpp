// Arrays of anything: written as both texts, added, used as an update.
#include <algorithm>

#include "support/ArrayForm.h"
#include "support/Fuzzing.h"
#include "support/Messages.h"

using fuzz::ArrayForm;
using fuzz::require;

namespace {

// The reals that the record keeps as they stand.
bool realsAreKept(const ArrayForm& given, const ArrayForm& stored) {
  return std::equal(given.numbers.begin() + VCM_NUM_J2KPOS,
                    given.numbers.begin() + VCM_NUM_GEOZONALS,
                    stored.numbers.begin() + VCM_NUM_J2KPOS, fuzz::equalBits);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ArrayForm given;
  fuzz::Input input(data, size);
  // Beginning with the texts, which are short; positions that are not used take no input.
  const std::string_view texts = input.takeText(VCM_CHAR_STEPSELECTION + VCM_STEPSELECTION_LENGTH);
  std::copy(texts.begin(), texts.end(), given.texts.begin());
  for (std::size_t i = 0; i < given.numbers.size() && !input.empty(); ++i) {
    if (i <= VCM_NUM_WTDRMS || i >= VCM_NUM_COVARIANCE) {
      given.numbers[i] = input.take<double>();
    }
  }
  fuzz::requireStable(given);

  const std::int64_t satKey = VcmAddSatFrFields(given.texts.data(), given.numbers.data());
  require(satKey == -1 || satKey > 0, "an empty store has no duplicate");
  if (satKey > 0) {
    require(realsAreKept(given, ArrayForm::of(satKey)), "numbers are stored as they stand");
    std::vector<char> lines(VCM_TEXT_LENGTH);
    require(VcmGetLines(satKey, lines.data()) == 0, "what is stored can be had as lines");
  }
  // Anything may be an update: new values are not held against limits.
  static const std::string golden = joined(goldenMessage());
  const std::int64_t goldenKey = VcmAddSatFrLines(golden.c_str());
  if (goldenKey > 0) {
    const ArrayForm before = ArrayForm::of(goldenKey);
    require(VcmUpdateSatFrFields(goldenKey, given.texts.data(), given.numbers.data()) == 0,
            "a good message takes any update");
    const ArrayForm after = ArrayForm::of(goldenKey);
    require(after.numbers[VCM_NUM_SATNUM] == before.numbers[VCM_NUM_SATNUM] &&
                after.numbers[VCM_NUM_EPOCH] == before.numbers[VCM_NUM_EPOCH] &&
                realsAreKept(given, after),
            "all but the key's fields is replaced");
  }
  VcmRemoveAllSats();
  return 0;
}
