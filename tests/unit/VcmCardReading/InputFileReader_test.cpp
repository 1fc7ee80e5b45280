#include "VCM/VcmCardReading/InputFileReader.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <string>
#include <thread>

#include "VCM/VcmTree/Keys.h"
#include "support/Messages.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"

namespace {

using OpenStream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

class InputFileReader : public ::testing::Test {
 protected:
  void SetUp() override { emptyStore(); }
  void TearDown() override { emptyStore(); }

  static vcm::VcmRecord record(std::int32_t satNum) {
    vcm::VcmRecord found;
    vcm::VcmFindRec(vcm::mediaVcm, vcm::VcmSatKeyGet(vcm::mediaVcm, satNum), found);
    return found;
  }
  // Reads a content as a file and expects its line of counts.
  void expectCounts(const std::string& content, const std::string& counts, const char* what) {
    emptyStore();
    const TemporaryFile file(content);
    EXPECT_EQ(vcm::ReadVcmsFrFile(file.path(), nullptr), 0) << what;
    EXPECT_EQ(trace_.takeInfos(), Lines{counts}) << what;
  }

  TraceCapture trace_;
};

std::string numbered(int satNum) {
  std::string digits = std::to_string(satNum);
  digits.insert(0, 5 - digits.size(), ' ');
  return joined(withText(goldenMessage(), 4, 22, digits));
}

std::string counts(int loaded, int dup, int bad) {
  return "Total VCMs = " + std::to_string(loaded + dup + bad) +
         ", Loaded = " + std::to_string(loaded) + ", Dup = " + std::to_string(dup) +
         ", Bad = " + std::to_string(bad);
}

TEST_F(InputFileReader, CountsWhatItFinds) {
  const std::string good = joined(goldenMessage());
  const std::string badLabel = joined(withText(goldenMessage(), 9, 4, "#"));
  Lines cut = goldenMessage();
  cut.resize(10);
  std::string crlf = joined(goldenMessage(), "\r\n");
  std::string overlong = goldenOneLine() + std::string(5'000'000, 'x') + "\n";
  expectCounts("", counts(0, 0, 0), "empty");
  expectCounts("* comment\n\n   \n*\n", counts(0, 0, 0), "comments and blank lines");
  expectCounts("any text\n" + good + "more text", counts(1, 0, 0), "other text around it");
  expectCounts(good + good, counts(1, 1, 0), "twice");
  expectCounts(crlf, counts(1, 0, 0), "CR LF");
  expectCounts(good.substr(0, good.size() - 1), counts(1, 0, 0), "no final newline");
  expectCounts(overlong, counts(1, 0, 0), "a line of megabytes");
  expectCounts(joined(bareForm(goldenMessage())), counts(1, 0, 0), "bare form");
  expectCounts(goldenOneLine(), counts(1, 0, 0), "one line");
  expectCounts(goldenOneLine() + "\n" + good, counts(1, 1, 0), "the same in both forms");
  expectCounts(badLabel + good, counts(1, 0, 1), "a broken label");
  expectCounts(joined(cut) + good, counts(0, 0, 1), "a header in the place of a label is used up");
  expectCounts(joined(cut), counts(0, 0, 1), "the end of the file inside");
  expectCounts(joined(withText(goldenMessage(), 6, 22, "1942")), counts(0, 0, 0),
               "an invalid multi-line message is counted nowhere");
  std::string invalid = goldenOneLine();
  putAt(invalid, 7, "1942");
  expectCounts(invalid, counts(0, 0, 1), "an invalid one-line message is bad");
  std::string zeroByte = good;
  zeroByte[zeroByte.find("<> SATELLITE NUMBER:     1") + 22] = '\0';
  expectCounts(zeroByte, counts(1, 0, 0), "a NUL is a blank");
}

// Cuts a file of messages after every byte of the first: nothing but the cut message is lost.
TEST_F(InputFileReader, TruncatedFiles) {
  const std::string first = numbered(7);
  for (std::size_t length = 0; length <= first.size(); length += 3) {
    emptyStore();
    const TemporaryFile file(numbered(3) + first.substr(0, length));
    ASSERT_EQ(vcm::ReadVcmsFrFile(file.path()), 0) << length;
    ASSERT_EQ(record(3).satNum, 3) << length;
    ASSERT_LE(storedCount(), 2) << length;
  }
}

TEST_F(InputFileReader, ManeuverCards) {
  const auto maneuver = [](int n) { return " maneuver card " + std::to_string(n) + "\n"; };
  const std::string broken = joined(withText(goldenMessage(), 9, 4, "#"));
  std::string content = numbered(1) + maneuver(1) + maneuver(2);  // for 1
  content += numbered(2) + numbered(1) + maneuver(3);             // behind a duplicate: they wait
  content += broken + maneuver(4);                                // behind a bad one, too
  content += numbered(3) + maneuver(5);                           // all of them are for 3
  content += numbered(4);
  for (int i = 0; i < 120; ++i) {
    content += maneuver(i);  // no more than a hundred, at the end of the file
  }
  const TemporaryFile file(content);
  ASSERT_EQ(vcm::ReadVcmsFrFile(file.path()), 0);
  const auto lines = [](std::int32_t satNum) {
    Lines texts;
    for (const vcm::ExtraLine& line : record(satNum).extraLines) {
      texts.emplace_back(vcm::withoutTrailingBlanks(line.view()));
    }
    return texts;
  };
  EXPECT_EQ(lines(1), (Lines{" maneuver card 1", " maneuver card 2"}));
  EXPECT_EQ(lines(2), Lines{});
  EXPECT_EQ(lines(3), (Lines{" maneuver card 3", " maneuver card 4", " maneuver card 5"}));
  EXPECT_EQ(lines(4).size(), 100U);
}

TEST_F(InputFileReader, DirectivesComeFirst) {
  // A directive inside a named file is not followed.
  const TemporaryFile never(numbered(9));
  const TemporaryFile named("VCMFIL " + never.path() + "\n" + numbered(2));
  const TemporaryFile other(numbered(3));
  const TemporaryFile main(numbered(1) + "vcmfil = \"" + named.path() + "\"\n" + numbered(1) +
                           "  SATFIL " + other.path() + "\n");
  ASSERT_EQ(vcm::ReadVcmsFrFile(main.path()), 0);
  EXPECT_EQ(trace_.takeInfos(), Lines{counts(3, 1, 0)});
  std::int32_t count = 0;
  std::int64_t keys[3];
  vcm::VcmGetTreeKeys(vcm::mediaVcm, count, keys, vcm::kAsLoaded);
  EXPECT_EQ(keys[0], vcm::createSatKeyFrVcm(record(2)));
  EXPECT_EQ(keys[1], vcm::createSatKeyFrVcm(record(3)));
  EXPECT_EQ(keys[2], vcm::createSatKeyFrVcm(record(1)));
}

TEST_F(InputFileReader, OpenFailures) {
  EXPECT_EQ(vcm::ReadVcmsFrFile("/nowhere/at/all"), ENOENT);
  EXPECT_EQ(vcm::ReadVcmsFrFile("/tmp"), EISDIR);
  const TemporaryFile main(numbered(1) + "VCMFIL /nowhere/at/all\n");
  EXPECT_EQ(vcm::ReadVcmsFrFile(main.path()), ENOENT);
  EXPECT_EQ(storedCount(), 0) << "nothing of the file is loaded";
  EXPECT_TRUE(trace_.takeInfos().empty()) << "and no counts are given";
}

// A pipe cannot be rewound, and yet both passes see all of it.
TEST_F(InputFileReader, PipesAreReadTwice) {
  const TemporaryFile named(numbered(2));
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  std::thread writer([&] {
    const OpenStream stream(fdopen(ends[1], "wb"), &std::fclose);
    for (int i = 0; i < 1000; ++i) {
      std::fputs(numbered(1).c_str(), stream.get());
    }
    std::fputs(("VCMFIL " + named.path()).c_str(), stream.get());
  });
  EXPECT_EQ(vcm::ReadVcmsFrFile("/dev/fd/" + std::to_string(ends[0])), 0);
  writer.join();
  close(ends[0]);
  EXPECT_EQ(trace_.takeInfos(), Lines{counts(2, 999, 0)});
}

TEST_F(InputFileReader, KeyModeCardTakesEffectBeforeTheFirstMessage) {
  const TemporaryFile file(numbered(1) + numbered(1) + "  qz_dma_on\n" + numbered(2) +
                           "MANEUVER 1\n");
  ASSERT_EQ(vcm::ReadVcmsFrFile(file.path()), 0);
  // Records at addresses of their own are never duplicates.
  EXPECT_EQ(trace_.takeInfos(), Lines{counts(3, 0, 0)});
  EXPECT_TRUE(vcm::isDirectAddress(vcm::VcmSatKeyGet(vcm::mediaVcm, 1)));
  EXPECT_EQ(record(2).extraLineCount(), 1);
}

// What a watcher of a file is told: where each message is, what could not be read, how it ended.
TEST_F(InputFileReader, ObserverHearsOfEveryMessage) {
  class Notes : public vcm::ReadingObserver {
   public:
    Lines lines;
    void file(std::string_view /*name*/) override { lines.emplace_back("file"); }
    void message(std::int64_t line) override { note("message", line); }
    void unreadable(std::int64_t line, std::string_view field) override {
      note("unreadable " + std::string(field), line);
    }
    void outcome(std::int64_t line, vcm::MessageOutcome outcome) override {
      note("outcome " + std::to_string(static_cast<int>(outcome)), line);
    }

   private:
    void note(const std::string& what, std::int64_t line) {
      lines.push_back(what + " " + std::to_string(line));
    }
  };
  std::string one = goldenOneLine();
  putAt(one, 50, "  x");
  const TemporaryFile file("* comment\n" + joined(withText(goldenMessage(), 7, 37, "x")) +
                           joined(withText(goldenMessage(), 9, 4, "#")) + one + "\n");
  Notes notes;
  ASSERT_EQ(vcm::ReadVcmsFrFile(file.path(), &notes), 0);
  EXPECT_EQ(notes.lines,
            (Lines{"file", "message 2", "unreadable j2kPos y 8", "outcome 0 37", "message 38",
                   "outcome 2 46", "message 74", "unreadable j2kPos y 74", "outcome 1 74"}));
}

}  // namespace
