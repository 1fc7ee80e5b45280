#include <gtest/gtest.h>

#include <algorithm>

#include "support/Messages.h"
#include "support/TraceCapture.h"
#include "vcm/Vcm.h"

namespace {

using Keys = std::vector<std::int64_t>;

class Lifecycle : public ::testing::Test {
 protected:
  void SetUp() override {
    VcmInit();
    VcmRemoveAllSats();
  }
  void TearDown() override { VcmRemoveAllSats(); }

  static Keys keys(std::int32_t order) {
    Keys all(static_cast<std::size_t>(VcmGetCount()));
    VcmGetLoaded(order, all.data());
    return all;
  }

  TraceCapture trace_;
};

TEST_F(Lifecycle, EmptyStore) {
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

TEST_F(Lifecycle, CatalogueIsListedFoundReadAndRemoved) {
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

  std::vector<double> numbers(VCM_NUM_ARRAY_LENGTH, 4711.0);
  std::string texts(VCM_CHAR_ARRAY_LENGTH, '?');
  EXPECT_EQ(VcmRetrieveAllData(123, texts.data(), numbers.data()), 2);
  EXPECT_EQ(texts, std::string(VCM_CHAR_ARRAY_LENGTH, ' '));
  EXPECT_EQ(numbers, std::vector<double>(VCM_NUM_ARRAY_LENGTH, 4711.0));
  EXPECT_EQ(trace_.takeErrors(), Lines{"GetSatToFields: Unable to locate satKey "
                                       "                123 in the VCM binary tree."});
  ASSERT_EQ(VcmRetrieveAllData(key, texts.data(), numbers.data()), 0);
  EXPECT_NEAR(numbers[VCM_NUM_EPOCH], 28695.503141018519, 1e-9);
  EXPECT_DOUBLE_EQ(numbers[VCM_NUM_UT1RATE], 0.308);
  // clang-format off
  const std::pair<int, double> expected[] = {
      {VCM_NUM_SATNUM, 1.0}, {VCM_NUM_ECIPOS + 2, 6221.00051833}, {VCM_NUM_VELSIGMAS, 0.0001}, {VCM_NUM_COVMTXSIZE, 9.0},
      {VCM_NUM_WTDRMS, 1.2828}, {49, 0.0}, {VCM_NUM_COVARIANCE, -0.10719e-10}, {VCM_NUM_COVARIANCE + 44, -0.47250e-12}};
  // clang-format on
  for (const auto& [index, number] : expected) {
    EXPECT_EQ(numbers[static_cast<std::size_t>(index)], number) << index;
  }
  EXPECT_EQ(texts.substr(VCM_CHAR_INTLDES, 33), "89021F  " + std::string(25, ' '));
  EXPECT_EQ(texts.substr(VCM_CHAR_GEONAME, 62),
            "EGM-96JAC70/MSIS90ON ON OFFOFFASW   J2000ANALYTICTIMEOFFMANUAL");

  EXPECT_EQ(VcmRemoveSat(key), 0);
  EXPECT_EQ(VcmRemoveSat(key), 2);
  EXPECT_EQ(trace_.takeErrors(),
            Lines{"RemoveNode: Unable to locate this key      22550596187185 in "
                  "its binary tree."});
  EXPECT_EQ(VcmGetCount(), 299);
  EXPECT_EQ(VcmRemoveAllSats(), 0);
  EXPECT_EQ(VcmGetCount(), 0);
}

}  // namespace
