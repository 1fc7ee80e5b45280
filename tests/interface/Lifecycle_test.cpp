#include "support/InterfaceStore.h"

namespace {

class Lifecycle : public InterfaceStore {};

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
  EXPECT_TRUE(VcmGetSatKeyML(5, &key) == -1 && key == -1);
  EXPECT_EQ(trace_.takeErrors(), Lines{"GetSatKey: Unable to locate satellite number         5 in "
                                       "the VCM binary tree."});
}

TEST_F(Lifecycle, KeysAreFoundAndMade) {
  const std::int64_t stored = addGolden();
  std::int64_t key = 4711;
  EXPECT_TRUE(VcmGetSatKeyML(1, &key) == stored && key == stored);
  // Both forms of the message's epoch, 2028 day 206 12:04:31.384.
  for (const char* const epoch :
       {"2028206120431.384", "  2028206120431.384 ", "28206.503141018519  "}) {
    EXPECT_EQ(VcmFieldsToSatKey(1, epoch), stored) << epoch;
    VcmFieldsToSatKeyML(1, epoch, &(key = 4711));
    EXPECT_EQ(key, stored) << epoch;
  }
  EXPECT_EQ(VcmFieldsToSatKey(1, ""), -1);
}

}  // namespace
