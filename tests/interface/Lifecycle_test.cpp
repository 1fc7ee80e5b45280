#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/Messages.h"
#include "support/TraceCapture.h"
#include "vcm/Vcm.h"

namespace {

class Lifecycle : public ::testing::Test {
 protected:
  void SetUp() override {
    VcmInit();
    VcmRemoveAllSats();
  }
  void TearDown() override { VcmRemoveAllSats(); }

  static std::vector<std::int64_t> keys(std::int32_t order) {
    std::vector<std::int64_t> all(static_cast<std::size_t>(VcmGetCount()));
    VcmGetLoaded(order, all.data());
    return all;
  }
  static void load(const char* sample) {
    ASSERT_EQ(VcmLoadFile((std::string(VCM_SAMPLES_DIR) + "/" + sample).c_str()), 0);
  }

  TraceCapture trace_;
};

TEST_F(Lifecycle, Info) {
  std::string info(VCM_INFO_LENGTH, '?');
  VcmGetInfo(info.data());
  EXPECT_EQ(info.substr(0, 4), "Vcm ");
  EXPECT_EQ(info.back(), ' ');
}

TEST_F(Lifecycle, EmptyStore) {
  EXPECT_EQ(VcmGetCount(), 0);
  std::int64_t key = 4711;
  VcmGetLoaded(VCM_ORDER_LOADED, &key);
  EXPECT_EQ(key, 4711);
  EXPECT_EQ(trace_.takeInfos(),
            Lines{"Warning-VcmGetLoaded: The binary tree is empty. No satKey returns."});
  EXPECT_EQ(VcmRemoveAllSats(), 0);
  EXPECT_EQ(VcmGetSatKey(5), -1);
  EXPECT_EQ(VcmGetSatKeyML(5, &key), -1);
  EXPECT_EQ(key, -1);
  const std::string message =
      "GetSatKey: Unable to locate satellite number         5 in the VCM binary tree.";
  EXPECT_EQ(trace_.takeErrors(), (Lines{message, message}));
}

TEST_F(Lifecycle, CatalogueIsListedFoundAndRemoved) {
  load("catalogue.vcm");
  EXPECT_EQ(VcmGetCount(), 300);
  const auto bySatellite = keys(VCM_ORDER_SATELLITE);
  EXPECT_TRUE(std::is_sorted(bySatellite.begin(), bySatellite.end()));
  EXPECT_EQ(keys(VCM_ORDER_KEY), bySatellite);
  EXPECT_EQ(keys(VCM_ORDER_LOADED), bySatellite);  // the file is in that order
  auto backwards = keys(VCM_ORDER_SATELLITE_REVERSE);
  std::reverse(backwards.begin(), backwards.end());
  EXPECT_EQ(backwards, bySatellite);

  const std::int64_t key = VcmGetSatKey(17);
  EXPECT_EQ(key, bySatellite[16]);
  EXPECT_EQ(VcmRemoveSat(key), 0);
  EXPECT_EQ(VcmRemoveSat(key), 2);
  std::string digits = std::to_string(key);
  digits.insert(0, 19 - digits.size(), ' ');
  EXPECT_EQ(trace_.takeErrors(),
            Lines{"RemoveNode: Unable to locate this key " + digits + " in its binary tree."});
  EXPECT_EQ(VcmGetCount(), 299);
  EXPECT_EQ(VcmRemoveAllSats(), 0);
  EXPECT_EQ(VcmGetCount(), 0);
}

TEST_F(Lifecycle, KeysFromFields) {
  load("catalogue.vcm");
  // Both forms of the first message's epoch, 2028 day 206 12:04:31.384.
  const std::int64_t key = VcmGetSatKey(1);
  EXPECT_EQ(VcmFieldsToSatKey(1, "2028206120431.384"), key);
  EXPECT_EQ(VcmFieldsToSatKey(1, "  2028206120431.384 "), key);
  EXPECT_EQ(VcmFieldsToSatKey(1, "28206.503141018519  "), key);
  std::int64_t out = 0;
  VcmFieldsToSatKeyML(1, "2028206120431.384   ", &out);
  EXPECT_EQ(out, key);
  for (const char* const epoch : {"", "nonsense", "2028", "2028206999999.999"}) {
    EXPECT_EQ(VcmFieldsToSatKey(1, epoch), -1) << epoch;
  }
  EXPECT_EQ(VcmFieldsToSatKey(-1, "2028206120431.384"), -1);
}

TEST_F(Lifecycle, AllDataOfOneMessage) {
  load("catalogue.vcm");
  std::vector<double> numbers(VCM_NUM_ARRAY_LENGTH, 4711.0);
  std::string texts(VCM_CHAR_ARRAY_LENGTH, '?');
  EXPECT_EQ(VcmRetrieveAllData(123, texts.data(), numbers.data()), 2);
  EXPECT_EQ(texts, std::string(VCM_CHAR_ARRAY_LENGTH, ' '));
  EXPECT_EQ(numbers, std::vector<double>(VCM_NUM_ARRAY_LENGTH, 4711.0));
  EXPECT_EQ(trace_.takeErrors(), Lines{"GetSatToFields: Unable to locate satKey "
                                       "                123 in the VCM binary tree."});

  ASSERT_EQ(VcmRetrieveAllData(VcmGetSatKey(1), texts.data(), numbers.data()), 0);
  EXPECT_EQ(numbers[VCM_NUM_SATNUM], 1.0);
  EXPECT_NEAR(numbers[VCM_NUM_EPOCH], 28695.503141018519, 1e-9);
  EXPECT_EQ(numbers[VCM_NUM_ECIPOS + 2], 6221.00051833);
  EXPECT_DOUBLE_EQ(numbers[VCM_NUM_UT1RATE], 0.308);
  EXPECT_EQ(numbers[VCM_NUM_VELSIGMAS], 0.0001);
  EXPECT_EQ(numbers[VCM_NUM_COVMTXSIZE], 9.0);
  EXPECT_EQ(numbers[VCM_NUM_WTDRMS], 1.2828);
  EXPECT_EQ(numbers[49], 0.0);
  EXPECT_EQ(numbers[VCM_NUM_COVARIANCE], -0.10719e-10);
  EXPECT_EQ(numbers[VCM_NUM_COVARIANCE + 44], -0.47250e-12);
  EXPECT_EQ(texts.substr(VCM_CHAR_INTLDES, 33), "89021F  " + std::string(25, ' '));
  EXPECT_EQ(texts.substr(VCM_CHAR_GEONAME, 62),
            "EGM-96JAC70/MSIS90ON ON OFFOFFASW   J2000ANALYTICTIMEOFFMANUAL");
}

}  // namespace
