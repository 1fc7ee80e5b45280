#include "VCM/VcmCardReading/InputFileReader.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/Messages.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"

namespace {

const std::string kGolden = joined(goldenMessage());

const std::string kBroken = joined(withText(goldenMessage(), 9, 4, "#"));
std::string numbered(int satNum) {
  return joined(withText(goldenMessage(), 4, 26, std::to_string(satNum)));
}

std::string counts(int loaded, int dup, int bad) {
  return "Total VCMs = " + std::to_string(loaded + dup + bad) +
         ", Loaded = " + std::to_string(loaded) + ", Dup = " + std::to_string(dup) +
         ", Bad = " + std::to_string(bad);
}

class InputFileReader : public ::testing::Test {
 protected:
  void SetUp() override { emptyStore(); }
  void TearDown() override { emptyStore(); }

  void read(const std::string& content, const std::string& expectedCounts) {
    const TemporaryFile file(content);
    EXPECT_EQ(vcm::ReadVcmsFrFile(file.path()), 0) << content.substr(0, 5000);
    EXPECT_EQ(trace_.takeInfos(), Lines{expectedCounts}) << content.substr(0, 5000);
  }

  TraceCapture trace_;
};

TEST_F(InputFileReader, CountsWhatItFinds) {
  Lines cut = goldenMessage();
  cut.resize(10);
  std::string invalidOneLine = goldenOneLine();
  putAt(invalidOneLine, 7, "1942");
  // clang-format off
  const std::pair<std::string, std::string> rows[] = {
      {"* comment\n\n   \n*\n", counts(0, 0, 0)}, {"any text\n" + kGolden + "more text", counts(1, 0, 0)},
      {joined(goldenMessage(), "\r\n"), counts(1, 0, 0)}, {kGolden.substr(0, kGolden.size() - 1), counts(1, 0, 0)},
      {goldenOneLine() + std::string(5'000'000, 'x') + "\n", counts(1, 0, 0)},
      {joined(bareForm(goldenMessage())), counts(1, 0, 0)}, {goldenOneLine() + "\n" + kGolden, counts(1, 1, 0)},
      {joined(cut) + kGolden, counts(0, 0, 1)},  // a header in the place of a label is used up
      {joined(withText(goldenMessage(), 6, 22, "1942")), counts(0, 0, 0)},  // counted nowhere
      {invalidOneLine, counts(0, 0, 1)},
      {kGolden + kGolden + "  qz_dma_on\n", counts(2, 0, 0)},  // holds from the first message on
  };
  // clang-format on
  for (const auto& [content, expected] : rows) {
    emptyStore();
    read(content, expected);
  }
}

TEST_F(InputFileReader, ManeuverCards) {
  const auto card = [](int number) { return " maneuver card " + std::to_string(number) + "\n"; };
  const auto kept = [](std::int32_t satNum) {
    vcm::VcmRecord record;
    vcm::VcmFindRec(vcm::mediaVcm, vcm::VcmSatKeyGet(vcm::mediaVcm, satNum), record);
    std::string cards;
    for (const vcm::ExtraLine& line : record.extraLines) {
      cards.append(vcm::withoutTrailingBlanks(line.view())).append("\n");
    }
    return cards;
  };
  std::string content = numbered(1) + card(1) + card(2);  // for 1
  content += numbered(2) + numbered(1) + card(3);         // behind a duplicate: it waits
  content += kBroken + card(4);                           // behind a bad one, too
  content += numbered(3) + card(5) + numbered(4);         // all of them are for 3
  read(content + joined(Lines(120, " maneuver")), counts(4, 1, 1));
  EXPECT_EQ(kept(1), card(1) + card(2));
  EXPECT_EQ(kept(2), "");
  EXPECT_EQ(kept(3), card(3) + card(4) + card(5));
  EXPECT_EQ(kept(4), joined(Lines(100, " maneuver"))) << "no more than a hundred";
}

// A directive inside a named file is not followed.
TEST_F(InputFileReader, DirectivesComeFirst) {
  const TemporaryFile never(numbered(9)), other(numbered(3));
  const TemporaryFile named("VCMFIL " + never.path() + "\n" + numbered(2));
  read(numbered(1) + "vcmfil = \"" + named.path() + "\"\n" + numbered(1) + "  SATFIL " +
           other.path() + "\n",
       counts(3, 1, 0));
}

// A device might never end, so that whoever made the file could make its reader wait for ever.
TEST_F(InputFileReader, ADirectiveThatNamesADeviceEndsTheLoad) {
  const TemporaryFile main(numbered(1) + "VCMFIL /dev/zero\n");
  EXPECT_EQ(vcm::ReadVcmsFrFile(main.path()), EINVAL);
  EXPECT_EQ(trace_.takeErrors(), Lines{"ReadVcmsFrFileUnit: Unable to open file \"/dev/zero\", "
                                       "which a directive card names."});
  EXPECT_TRUE(storedCount() == 0 && trace_.takeInfos().empty()) << "nothing loaded or counted";
}

}  // namespace
