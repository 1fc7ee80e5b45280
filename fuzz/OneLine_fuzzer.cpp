// A line of any length and content through the one-line parser, as files and callers give it.
#include <cstring>
#include <string>

#include "DllExports/VCM/VcmDllVarsUtils/Arrays.h"
#include "VCM/VcmCardReading/OneLineParser.h"
#include "VCM/VcmTree/Validation.h"
#include "support/ArrayForm.h"
#include "support/Fuzzing.h"

using fuzz::require;
using vcm::VcmRecord;

namespace {

constexpr std::size_t kWidth = VCM_ONE_LINE_LENGTH;

// The same text with blanks where they count as such, to the full width.
std::string blanked(std::string_view line) {
  std::string text(line.substr(0, kWidth));
  for (char& c : text) {
    c = c == '\t' || c == '\r' || c == '\n' || c == '\0' ? ' ' : c;
  }
  text.resize(kWidth, ' ');
  return text;
}

fuzz::ArrayForm arraysOf(const VcmRecord& record) {
  fuzz::ArrayForm form;
  vcm::Vcm2Array(record, vcm::NumberArray(form.numbers), vcm::CharacterArray(form.texts));
  return form;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<char> exact(data, data + size);
  const VcmRecord record = vcm::Vcm1Line2Vcm({exact.data(), exact.size()});
  require(record.covMtxSize >= -9 && record.covMtxSize <= 9, "no matrix is larger than 9 x 9");
  require(record.parseStatus == vcm::ValidateVcmValues(record), "the status is the validation's");

  const std::string line = blanked({exact.data(), exact.size()});
  const VcmRecord same = vcm::Vcm1Line2Vcm(line);
  require(arraysOf(same) == arraysOf(record) && same.commonName == record.commonName &&
              same.parseStatus == record.parseStatus,
          "a line that ends early ends in blanks");

  std::vector<char> lines(VCM_TEXT_LENGTH);
  require(Vcm1LineToMultiLine(line.c_str(), lines.data()) == 0, "any line is converted or refused");
  require(
      (record.parseStatus == vcm::kGood) == (std::memcmp(lines.data(), "<> SP VECTOR", 12) == 0),
      "a good line makes a message");
  return 0;
}
