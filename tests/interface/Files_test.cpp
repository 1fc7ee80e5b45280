#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "support/Messages.h"
#include "support/TraceCapture.h"
#include "vcm/Vcm.h"

namespace {

class Files : public ::testing::Test {
 protected:
  void SetUp() override { VcmRemoveAllSats(); }
  void TearDown() override { VcmRemoveAllSats(); }

  static std::string sample(const char* name) { return std::string(VCM_SAMPLES_DIR) + "/" + name; }
  static std::string saved(std::int32_t mode = 0) {
    const TemporaryFile file("before\n");
    EXPECT_EQ(VcmSaveFile(file.path().c_str(), mode), 0);
    return readFile(file.path());
  }

  TraceCapture trace_;
};

const std::string kHeading = "\n\n\n*** Orbital Elements - VCMs ***\n";

TEST_F(Files, CatalogueComesBackByteForByte) {
  const std::string path = sample("catalogue.vcm");
  EXPECT_EQ(VcmLoadFile(path.c_str()), 0);
  EXPECT_EQ(trace_.takeInfos(), (Lines{"VcmLoadFile: Reading VCMs from file \"" + path + "\".",
                                       "Total VCMs = 300, Loaded = 300, Dup = 0, Bad = 0"}));
  EXPECT_TRUE(saved() == readFile(path));
  EXPECT_TRUE(trace_.takeErrors().empty());
}

TEST_F(Files, OneLineCatalogueDiffersInWhatItDoesNotCarry) {
  ASSERT_EQ(VcmLoadFile(sample("catalogue.one").c_str()), 0);
  std::istringstream one(saved());
  std::istringstream multi(readFile(sample("catalogue.vcm")));
  std::string oneLine;
  std::string multiLine;
  int differing = 0;
  while (std::getline(multi, multiLine)) {
    ASSERT_TRUE(std::getline(one, oneLine));
    if (oneLine != multiLine) {
      ++differing;
      EXPECT_EQ(oneLine, "<> TIME CONST LEAP SECOND TIME (UTC): 2049 365 (31 DEC) 23:59:59.999");
    }
  }
  EXPECT_FALSE(std::getline(one, oneLine));
  EXPECT_EQ(differing, 95);  // messages with a leap-second time that is known
}

TEST_F(Files, SaveModes) {
  EXPECT_EQ(saved(), kHeading) << "an empty store";
  EXPECT_EQ(saved(1), "before\n" + kHeading);
  ASSERT_EQ(VcmLoadFile(sample("features.vcm").c_str()), 0);
  const std::string once = saved();
  const TemporaryFile file;
  EXPECT_EQ(VcmSaveFile(file.path().c_str(), 0), 0);
  EXPECT_EQ(VcmSaveFile(file.path().c_str(), -7), 0);
  EXPECT_TRUE(readFile(file.path()) == once + once);

  // What was saved loads again, and saves as the same bytes.
  VcmRemoveAllSats();
  ASSERT_EQ(VcmLoadFile(file.path().c_str()), 0);
  EXPECT_TRUE(saved() == once);
}

TEST_F(Files, NamesAndFailures) {
  EXPECT_EQ(VcmLoadFile("/nowhere/at/all"), ENOENT);
  EXPECT_EQ(VcmSaveFile("/nowhere/at/all", 0), ENOENT);
  EXPECT_EQ(VcmSaveFile("/tmp", 0), EISDIR);
  EXPECT_EQ(VcmLoadFile(""), ENOENT);
  // Blank padded to the full length without a terminator, and blanks in front.
  std::string name = "   " + sample("catalogue.vcm");
  name.resize(VCM_FILE_NAME_LENGTH, ' ');
  EXPECT_EQ(VcmLoadFile(name.data()), 0);
  EXPECT_EQ(VcmGetCount(), 300);
}

TEST_F(Files, EveryFeatureOfASampleLoads) {
  ASSERT_EQ(VcmLoadFile(sample("features.vcm").c_str()), 0);
  EXPECT_EQ(trace_.takeInfos().back(), "Total VCMs = 13, Loaded = 12, Dup = 1, Bad = 0");
  VcmRemoveAllSats();
  ASSERT_EQ(VcmLoadFile(sample("broken.vcm").c_str()), 0);
  EXPECT_EQ(trace_.takeInfos().back(), "Total VCMs = 7, Loaded = 2, Dup = 1, Bad = 4");
}

}  // namespace
