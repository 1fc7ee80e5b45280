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

TEST_F(Files, LoadedAndSaved) {
  const std::string heading = "\n\n\n*** Orbital Elements - VCMs ***\n";
  EXPECT_EQ(saved(), heading) << "an empty store";
  EXPECT_EQ(saved(1), "before\n" + heading);
  const std::string catalogue = VCM_SAMPLES_DIR "/catalogue.vcm";
  EXPECT_EQ(VcmLoadFile(catalogue.c_str()), 0);
  EXPECT_EQ(trace_.takeInfos(), (Lines{"VcmLoadFile: Reading VCMs from file \"" + catalogue + "\".",
                                       "Total VCMs = 300, Loaded = 300, Dup = 0, Bad = 0"}));
  EXPECT_TRUE(saved() == readFile(catalogue));
  EXPECT_TRUE(saved(-7) == "before\n" + readFile(catalogue));
  // Blanks in front of a name, and behind it up to the full length without a terminator.
  std::string name = "   " VCM_SAMPLES_DIR "/broken.vcm";
  name.resize(VCM_FILE_NAME_LENGTH, ' ');
  EXPECT_EQ(VcmLoadFile(std::vector(name.begin(), name.end()).data()), 0);
  EXPECT_EQ(trace_.takeInfos().back(), "Total VCMs = 7, Loaded = 1, Dup = 2, Bad = 4");
  EXPECT_TRUE(VcmLoadFile("  ") == ENOENT && VcmSaveFile("", 0) == ENOENT);
}

// A file is put together in a buffer, which is handed over when a line does not fit any more.
TEST_F(Files, MoreThanABufferHolds) {
  EXPECT_EQ(VcmLoadFile(VCM_SAMPLES_DIR "/catalogue.vcm"), 0);
  std::vector<std::int64_t> keys(300);
  VcmGetLoaded(VCM_ORDER_KEY, keys.data());
  for (const std::int64_t key : keys) {
    Arrays arrays = Arrays::of(key);
    arrays[VCM_NUM_SATNUM] += 1000;
    EXPECT_GT(VcmAddSatFrFields(arrays.texts.data(), arrays.numbers.data()), 0);
  }
  const TemporaryFile all(saved());
  VcmRemoveAllSats();
  EXPECT_EQ(VcmLoadFile(all.path().c_str()), 0);
  EXPECT_EQ(trace_.takeInfos().back(), "Total VCMs = 600, Loaded = 600, Dup = 0, Bad = 0");
  EXPECT_TRUE(saved() == readFile(all.path()));
}

}  // namespace
