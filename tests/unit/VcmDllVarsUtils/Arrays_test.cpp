#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"

#include <gtest/gtest.h>

#include <array>

#include "VCM/VcmCardReading/OneLineParser.h"
#include "support/Messages.h"

namespace {

struct ArrayForm {
  std::array<double, vcm::kArrayNumbers> numbers{};
  std::array<char, vcm::kArrayCharacters> characters{};

  bool operator==(const ArrayForm&) const = default;
};

ArrayForm formOf(const vcm::VcmRecord& record) {
  ArrayForm form;
  vcm::Vcm2Array(record, form.numbers, form.characters);
  return form;
}

vcm::VcmRecord recordOf(const ArrayForm& form) {
  return vcm::Array2Vcm(form.characters, form.numbers);
}

// Whatever the form carries makes another record, and what it has no place for none.
TEST(Arrays, OneChangeMakesAnotherRecord) {
  const ArrayForm before = formOf(vcm::Vcm1Line2Vcm(goldenOneLine()));
  const vcm::VcmRecord original = recordOf(before);
  std::size_t others = 0;
  for (std::size_t i = 0; i < before.numbers.size() + before.characters.size(); ++i) {
    ArrayForm changed = before;
    if (i < before.numbers.size()) {
      changed.numbers.at(i) += 1;
    } else {
      changed.characters.at(i - before.numbers.size()) ^= 1;
    }
    const vcm::VcmRecord record = recordOf(changed);
    EXPECT_EQ(record == original, formOf(record) == before) << "position " << i;
    others += record == original ? 0 : 1;
  }
  constexpr std::size_t kNumbers = 49 + 45;
  constexpr std::size_t kCharacters = 8 + 6 + 12 + 4 * 3 + 6 + 5 + 8 + 4 + 3 + 6;
  EXPECT_EQ(others, kNumbers + kCharacters);
}

}  // namespace
