#include "support/ArrayForm.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "support/Fuzzing.h"

namespace fuzz {

namespace {

using Writer = decltype(&VcmArrayToVcmLines);

// A date may be written with more seconds than a minute has, and is a whole one only when it was read. Of
// centuries far from ours a double of days does not resolve what seconds are rounded by.
bool sameDates(double a, double b) {
  constexpr double kFar = 1e5;
  constexpr double kLoss = 1e-10;
  return std::fabs(a) > kFar || std::fabs(a - b) <= kLoss;
}

void requireSameNumbers(const std::vector<double>& once, const std::vector<double>& twice) {
  for (std::size_t i = 0; i < once.size(); ++i) {
    const bool isDate = i == VCM_NUM_EPOCH || i == VCM_NUM_LEAPSECONDTIME;
    if (isDate ? !sameDates(once[i], twice[i]) : !equalBits(once[i], twice[i])) {
      std::fprintf(stderr, "position %zu: %.17g, then %.17g\n", i, once[i], twice[i]);
      require(false, "numbers that were text stay as they are");
    }
  }
}

// Numbers that do not fit say so; marks and controls in texts cut lines, or the whole text.
bool tellsOfLoss(const std::vector<char>& text) {
  const std::string_view view(text.data(), text.size());
  const auto marks =
      std::count(view.begin(), view.end(), '<') + std::count(view.begin(), view.end(), '>');
  const auto leads = (view.size() - 1) / 80 + 1;
  return view.find('*') != view.npos || view.find("NaN") != view.npos ||
         marks > static_cast<std::ptrdiff_t>(2 * leads) ||
         std::any_of(view.begin(), view.end(), [](char c) { return c >= '\0' && c < ' '; });
}

// The message as it comes out of its own text. False when that text is not one to read.
bool readBack(Writer write, std::size_t length, const ArrayForm& message, ArrayForm& read) {
  std::vector<char> text(length);
  require(write(message.numbers.data(), message.texts.data(), text.data()) == 0,
          "arrays can be written");
  return !tellsOfLoss(text) &&
         VcmStringToArray(text.data(), read.numbers.data(), read.texts.data()) == 0;
}

}  // namespace

ArrayForm ArrayForm::of(std::int64_t satKey) {
  ArrayForm form;
  require(VcmRetrieveAllData(satKey, form.texts.data(), form.numbers.data()) == 0,
          "a stored message is there");
  return form;
}

bool ArrayForm::operator==(const ArrayForm& other) const {
  return std::equal(numbers.begin(), numbers.end(), other.numbers.begin(), equalBits) &&
         texts == other.texts;
}

void requireStable(const ArrayForm& message) {
  constexpr std::pair<Writer, std::size_t> kForms[] = {{VcmArrayToVcmLines, VCM_TEXT_LENGTH},
                                                       {VcmArrayToVcm1Line, VCM_ONE_LINE_LENGTH}};
  for (const auto& [write, length] : kForms) {
    ArrayForm once;
    ArrayForm twice;
    if (readBack(write, length, message, once)) {
      require(readBack(write, length, once, twice), "what was read can be written and read");
      requireSameNumbers(once.numbers, twice.numbers);
    }
  }
}

}  // namespace fuzz
