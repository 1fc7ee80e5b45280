#include "VCM/VcmCardReading/InputFileReader.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "VCM/VcmTree/Keys.h"
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

  static vcm::VcmRecord record(std::int32_t satNum) {
    vcm::VcmRecord found;
    vcm::VcmFindRec(vcm::mediaVcm, vcm::VcmSatKeyGet(vcm::mediaVcm, satNum), found);
    return found;
  }
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
  std::string zeroByte = kGolden;
  zeroByte[zeroByte.find(":     1") + 2] = '\0';
  std::string invalidOneLine = goldenOneLine();
  putAt(invalidOneLine, 7, "1942");
  // clang-format off
  const std::pair<std::string, std::string> rows[] = {
      {"", counts(0, 0, 0)}, {"* comment\n\n   \n*\n", counts(0, 0, 0)},
      {"any text\n" + kGolden + "more text", counts(1, 0, 0)}, {kGolden + kGolden, counts(1, 1, 0)},
      {joined(goldenMessage(), "\r\n"), counts(1, 0, 0)}, {kGolden.substr(0, kGolden.size() - 1), counts(1, 0, 0)},
      {goldenOneLine() + std::string(5'000'000, 'x') + "\n", counts(1, 0, 0)},
      {joined(bareForm(goldenMessage())), counts(1, 0, 0)}, {goldenOneLine() + "\n" + kGolden, counts(1, 1, 0)},
      {kBroken + kGolden, counts(1, 0, 1)},
      {joined(cut) + kGolden, counts(0, 0, 1)},  // a header in the place of a label is used up
      {joined(withText(goldenMessage(), 6, 22, "1942")), counts(0, 0, 0)},  // counted nowhere
      {invalidOneLine, counts(0, 0, 1)}, {zeroByte, counts(1, 0, 0)},
  };
  // clang-format on
  for (const auto& [content, expected] : rows) {
    emptyStore();
    read(content, expected);
  }
}

TEST_F(InputFileReader, ManeuverCards) {
  const auto cards = [](std::initializer_list<int> numbers) {
    Lines lines;
    for (const int number : numbers) {
      lines.push_back(" maneuver card " + std::to_string(number));
    }
    return lines;
  };
  std::string content = numbered(1) + joined(cards({1, 2}));  // for 1
  content += numbered(2) + numbered(1) + joined(cards({3}));  // behind a duplicate: they wait
  content += kBroken + joined(cards({4}));                    // behind a bad one, too
  content += numbered(3) + joined(cards({5})) + numbered(4);  // all of them are for 3
  content += joined(Lines(120, " maneuver card"));            // no more than a hundred
  read(content, counts(4, 1, 1));
  const auto kept = [](std::int32_t satNum) {
    Lines lines;
    for (const vcm::ExtraLine& line : record(satNum).extraLines) {
      lines.emplace_back(vcm::withoutTrailingBlanks(line.view()));
    }
    return lines;
  };
  EXPECT_EQ(kept(1), cards({1, 2}));
  EXPECT_EQ(kept(2), Lines{});
  EXPECT_EQ(kept(3), cards({3, 4, 5}));
  EXPECT_EQ(kept(4), Lines(100, " maneuver card"));
}

TEST_F(InputFileReader, DirectivesComeFirst) {
  // A directive inside a named file is not followed.
  const TemporaryFile never(numbered(9));
  const TemporaryFile named("VCMFIL " + never.path() + "\n" + numbered(2));
  const TemporaryFile other(numbered(3));
  read(numbered(1) + "vcmfil = \"" + named.path() + "\"\n" + numbered(1) + "  SATFIL " +
           other.path() + "\n",
       counts(3, 1, 0));
  std::int32_t count = 0;
  std::array<std::int64_t, 3> keys{};
  vcm::VcmGetTreeKeys(vcm::mediaVcm, count, keys.data(), vcm::kAsLoaded);
  const auto keyOf = [](int satNum) { return vcm::createSatKeyFrVcm(record(satNum)); };
  EXPECT_EQ(keys, (std::array{keyOf(2), keyOf(3), keyOf(1)}));
}

// A device might never end, so that whoever made the file could make its reader wait for ever.
TEST_F(InputFileReader, ADirectiveThatNamesNoFileEndsTheLoad) {
  for (const auto& [name, code] : {std::pair("/nowhere/at/all", ENOENT), std::pair("/tmp", EISDIR),
                                   std::pair("/dev/zero", EINVAL)}) {
    const TemporaryFile main(numbered(1) + "VCMFIL " + name + "\n");
    EXPECT_EQ(vcm::ReadVcmsFrFile(main.path()), code);
    EXPECT_EQ(trace_.takeErrors(), Lines{std::string("ReadVcmsFrFileUnit: Unable to open file \"") +
                                         name + "\", which a directive card names."});
    EXPECT_EQ(storedCount(), 0) << "nothing of the file is loaded";
    EXPECT_EQ(trace_.takeInfos(), Lines{}) << "and no counts are given";
  }
}

TEST_F(InputFileReader, KeyModeCardTakesEffectBeforeTheFirstMessage) {
  // Records at addresses of their own are never duplicates.
  read(numbered(1) + numbered(1) + "  qz_dma_on\n" + numbered(2) + "MANEUVER 1\n", counts(3, 0, 0));
  EXPECT_TRUE(vcm::isDirectAddress(vcm::VcmSatKeyGet(vcm::mediaVcm, 1)));
  EXPECT_EQ(record(2).extraLineCount(), 1);
}

}  // namespace
