#include <cerrno>

#include "support/InterfaceStore.h"

namespace {

class Files : public InterfaceStore {
 protected:
  static std::string saved(std::int32_t mode = 0) {
    const TemporaryFile file("before\n");
    EXPECT_EQ(VcmSaveFile(file.path().c_str(), mode), 0);
    return readFile(file.path());
  }
};

const std::string kCatalogue = VCM_SAMPLES_DIR "/catalogue.vcm";
const std::string kHeading = "\n\n\n*** Orbital Elements - VCMs ***\n";

TEST_F(Files, CatalogueComesBackByteForByte) {
  EXPECT_EQ(VcmLoadFile(kCatalogue.c_str()), 0);
  EXPECT_EQ(trace_.takeInfos(),
            (Lines{"VcmLoadFile: Reading VCMs from file \"" + kCatalogue + "\".",
                   "Total VCMs = 300, Loaded = 300, Dup = 0, Bad = 0"}));
  EXPECT_TRUE(saved() == readFile(kCatalogue));
  EXPECT_EQ(trace_.takeErrors(), Lines{});
}

TEST_F(Files, SaveModes) {
  EXPECT_EQ(saved(), kHeading) << "an empty store";
  EXPECT_EQ(saved(1), "before\n" + kHeading);
  ASSERT_EQ(VcmLoadFile(VCM_SAMPLES_DIR "/features.vcm"), 0);
  EXPECT_EQ(trace_.takeInfos().back(), "Total VCMs = 13, Loaded = 12, Dup = 1, Bad = 0");
  const std::string once = saved();
  EXPECT_TRUE(saved(-7) == "before\n" + once);
  // What was saved loads again, and saves as the same bytes.
  VcmRemoveAllSats();
  const TemporaryFile file(once);
  ASSERT_EQ(VcmLoadFile(file.path().c_str()), 0);
  EXPECT_TRUE(saved() == once);
}

TEST_F(Files, NamesAndFailures) {
  EXPECT_EQ(VcmLoadFile("/nowhere/at/all"), ENOENT);
  EXPECT_EQ(VcmLoadFile(""), ENOENT);
  EXPECT_EQ(VcmSaveFile("/nowhere/at/all", 0), ENOENT);
  EXPECT_EQ(VcmSaveFile("/tmp", 0), EISDIR);
  // Blank padded to the full length without a terminator, and blanks in front.
  std::string name = "   " VCM_SAMPLES_DIR "/broken.vcm";
  name.resize(VCM_FILE_NAME_LENGTH, ' ');
  EXPECT_EQ(VcmLoadFile(name.data()), 0);
  EXPECT_EQ(trace_.takeInfos().back(), "Total VCMs = 7, Loaded = 2, Dup = 1, Bad = 4");
}

}  // namespace
