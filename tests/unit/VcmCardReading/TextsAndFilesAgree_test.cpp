#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "VCM/VcmCardReading/InputFile.h"
#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "support/Messages.h"
#include "support/TraceCapture.h"

using vcm::CardType;
using vcm::VcmRecord;

namespace {

VcmRecord fromFile(const Lines& message, CardType type) {
  std::string content = joined(message);
  const vcm::OpenFile stream(fmemopen(content.data(), content.size(), "r"));
  vcm::CardReader cards(stream.get());
  EXPECT_TRUE(cards.next());
  return vcm::ReadVCMFrFileUnit(cards, type);
}

// What a record holds, as text: all of it, or what the bare form has.
std::string shown(VcmRecord record, bool bare) {
  if (bare) {
    record.j2kPos = record.j2kVel = record.efgPos = record.efgVel = {};
  }
  std::array<char, 4000> area;
  vcm::Vcm2VcmLines(record, area);
  return {area.data(), area.size()};
}

// Each line with a character changed, or cut short, in every column: as text, from a file, and from a
// file in the bare form the message reads alike, or is refused at the same line.
TEST(TextsAndFiles, AgreeOnWhateverIsWrongInALine) {
  TraceCapture trace;
  const auto refusedAt = [&trace](const VcmRecord& record) {
    const Lines errors = trace.takeErrors();
    EXPECT_EQ(errors.size(), record.parseStatus == vcm::kGood ? 0U : 1U);
    return errors.empty() ? "" : errors[0].substr(errors[0].find('@'));
  };
  const Lines golden = goldenMessage();
  const Lines goldenBare = bareForm(golden);
  for (std::size_t line = 1; line < golden.size(); ++line) {
    for (std::size_t column = 3; column < 2 * golden[line].size(); ++column) {
      Lines message = golden;
      if (column < golden[line].size()) {
        message[line][column] = '#';
      } else {
        message[line].resize(std::max(column - golden[line].size(), std::size_t{3}));
      }
      const Lines bare = bareForm(message);
      const VcmRecord text = vcm::MultiLine2Vcm(views(message));
      const std::string where = refusedAt(text);
      const VcmRecord file = fromFile(message, CardType::multiLineHeader);
      ASSERT_EQ(refusedAt(file), where) << message[line];
      ASSERT_TRUE(!where.empty() || shown(file, false) == shown(text, false)) << message[line];
      if (bare != goldenBare) {
        const VcmRecord bareFile = fromFile(bare, CardType::bareFirstLine);
        ASSERT_EQ(refusedAt(bareFile), where) << message[line];
        ASSERT_TRUE(!where.empty() || shown(bareFile, true) == shown(text, true)) << message[line];
      }
    }
  }
}

}  // namespace
