#include <algorithm>

#include "support/InterfaceStore.h"

namespace {

using Keys = std::vector<std::int64_t>;

class Lifecycle : public InterfaceStore {
 protected:
  static Keys keys(std::int32_t order) {
    Keys all(static_cast<std::size_t>(VcmGetCount()));
    VcmGetLoaded(order, all.data());
    return all;
  }
};

TEST_F(Lifecycle, EmptyStore) {
  EXPECT_EQ(VcmInit(), 0);
  std::string info(VCM_INFO_LENGTH, '?');
  VcmGetInfo(info.data());
  EXPECT_TRUE(info.starts_with("Vcm ") && info.ends_with(' ')) << info;
  std::int64_t key = 4711;
  VcmGetLoaded(VCM_ORDER_LOADED, &key);
  EXPECT_TRUE(VcmGetCount() == 0 && key == 4711);
  EXPECT_EQ(trace_.takeInfos(),
            Lines{"Warning-VcmGetLoaded: The binary tree is empty. No satKey returns."});
  EXPECT_EQ(VcmGetSatKeyML(5, &key), -1);
  EXPECT_EQ(key, -1);
  EXPECT_EQ(trace_.takeErrors(), Lines{"GetSatKey: Unable to locate satellite number         5 in "
                                       "the VCM binary tree."});
}

TEST_F(Lifecycle, CatalogueIsListedFoundAndRemoved) {
  ASSERT_EQ(VcmLoadFile(VCM_SAMPLES_DIR "/catalogue.vcm"), 0);
  const Keys bySatellite = keys(VCM_ORDER_SATELLITE);
  EXPECT_TRUE(bySatellite.size() == 300 && std::is_sorted(bySatellite.begin(), bySatellite.end()));
  EXPECT_EQ(keys(VCM_ORDER_KEY), bySatellite);
  EXPECT_EQ(keys(VCM_ORDER_LOADED), bySatellite);  // the file is in that order
  const Keys backwards = keys(VCM_ORDER_SATELLITE_REVERSE);
  EXPECT_EQ(Keys(backwards.rbegin(), backwards.rend()), bySatellite);

  // Both forms of the first message's epoch, 2028 day 206 12:04:31.384.
  const std::int64_t key = VcmGetSatKey(1);
  EXPECT_EQ(key, bySatellite[0]);
  for (const char* const epoch :
       {"2028206120431.384", "  2028206120431.384 ", "28206.503141018519  "}) {
    EXPECT_EQ(VcmFieldsToSatKey(1, epoch), key) << epoch;
  }
  EXPECT_EQ(VcmFieldsToSatKey(1, ""), -1);

  EXPECT_EQ(VcmRemoveSat(key), 0);
  EXPECT_EQ(VcmRemoveSat(key), 2);
  EXPECT_EQ(trace_.takeErrors(),
            Lines{"RemoveNode: Unable to locate this key " + shown(key) + " in its binary tree."});
  EXPECT_EQ(VcmGetCount(), 299);
  EXPECT_EQ(VcmRemoveAllSats(), 0);
  EXPECT_EQ(VcmGetCount(), 0);
}

}  // namespace
