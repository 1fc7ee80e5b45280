#include <algorithm>
#include <array>

#include "support/InterfaceStore.h"

namespace {

class BulkFields : public InterfaceStore {
 protected:
  // The golden message, but that neighbours differ.
  static std::int64_t addUnlike() {
    const std::int64_t key = addGolden();
    for (const auto& [index, value] :
         {std::pair(VCM_FIELD_GEOTESSERALS, "69"), std::pair(VCM_FIELD_RADPRESS, "AUS"),
          std::pair(VCM_FIELD_INTRACKTHRUST, "NO")}) {
      EXPECT_EQ(VcmSetField(key, index, value), 0);
    }
    return key;
  }
};

// Every output of VcmGetAllFields in its order: whole numbers, other numbers, and texts, each with a mark
// behind it that must stay.
struct AllFields {
  std::array<std::int32_t, 7> whole;
  std::array<double, 19> real;
  std::string texts;

  int get(std::int64_t key) {
    whole.fill(-1);
    real.fill(-1);
    texts.assign(99 + 14, '|');
    std::vector<char*> text = {texts.data()};
    for (const int width : {8, 17, 6, 12, 3, 3, 3, 3, 17, 6, 8, 4, 3}) {
      text.push_back(text.back() + width + 1);
    }
    return VcmGetAllFields(key, &whole[0], text[0], text[1], &whole[1], &real[0], &real[3], text[2],
                           &whole[2], &whole[3], text[3], text[4], text[5], text[6], text[7],
                           &real[6], &real[7], &real[8], &real[9], &whole[4], &whole[5], &real[10],
                           &real[11], &whole[6], text[8], text[9], text[10], text[11], text[12],
                           text[13], &real[16], &real[17], &real[18]);
  }
};

TEST_F(BulkFields, AllFieldsOfAMessageAndOfNone) {
  const std::int64_t key = addUnlike();
  AllFields fields;
  EXPECT_EQ(fields.get(key), 0);
  const std::string texts =
      "89021F  |2028206120431.384|EGM-96|JAC70/MSIS90|ON |AUS|OFF|NO |"
      "2016366000000.000|ASW   |ANALYTIC|TIME|OFF|MANUAL|";
  EXPECT_EQ(fields.texts, texts);
  // The numbers are those of the array form.
  Arrays arrays = Arrays::of(key);
  std::size_t i = 0;
  for (const int position :
       {VCM_NUM_SATNUM, VCM_NUM_EPOCHREV, VCM_NUM_GEOZONALS, VCM_NUM_GEOTESSERALS, VCM_NUM_F10,
        VCM_NUM_AVGF10, VCM_NUM_NUTATIONTERMS}) {
    EXPECT_EQ(fields.whole.at(i++), arrays[position]) << position;
  }
  i = 0;
  for (const int position :
       {VCM_NUM_ECIPOS, VCM_NUM_ECIPOS + 1, VCM_NUM_ECIPOS + 2, VCM_NUM_ECIVEL, VCM_NUM_ECIVEL + 1,
        VCM_NUM_ECIVEL + 2, VCM_NUM_BTERM, VCM_NUM_AGOM, VCM_NUM_THRUSTACCEL, VCM_NUM_CMOFFSET,
        VCM_NUM_AVGAP, VCM_NUM_TAIMINUSUTC, VCM_NUM_UT1MINUSUTC, VCM_NUM_UT1RATE,
        VCM_NUM_POLARMOTIONX, VCM_NUM_POLARMOTIONY, VCM_NUM_INITSTEPSIZE, VCM_NUM_ERRORCONTROL,
        VCM_NUM_WTDRMS}) {
    EXPECT_EQ(fields.real.at(i++), arrays[position]) << position;
  }
  EXPECT_EQ(fields.get(-1), 2);
  EXPECT_EQ(fields.whole, decltype(fields.whole){});
  EXPECT_EQ(fields.real, decltype(fields.real){});
  std::string blank = texts;
  std::replace_if(
      blank.begin(), blank.end(), [](char c) { return c != '|'; }, ' ');
  EXPECT_EQ(fields.texts, blank);
  EXPECT_EQ(trace_.takeErrors(), Lines{unknownKey("VcmGetAllFields", -1)});
}

TEST_F(BulkFields, ArraysOfAMessageAndOfNone) {
  Arrays arrays = Arrays::of(addUnlike());
  // clang-format off
  const double expected[] = {
      1, 28695 + 43471.384 / 86400, 5513,
      -11044.90753274, 3239.31607467, 6220.99449004, 2.903593388458, 3.053660331710, 3.565048888025,
      -11044.91823553, 3239.31921365, 6221.00051833, 2.903596202111, 3.053663290781, 3.565052342644,
      5916.69794133, 9872.99819044, 6221.00051833, 2.943864426105, -4.010549611901, 3.565052342644,
      70, 69, 0.112473e-2, 0.731905e-10, 0.358704e-2, 0.39e-3, 0, -0.559277, 76, 129, 9.3, 37, 0.20345, 0.308,
      -0.2986, 0.0534, 12, 24472, 204.651, 0.265e-13, 1.6953, 2.4569, 1.2225, 0.0001, 0.0001, 0, 9, 1.2828, 0};
  // clang-format on
  for (int i = 0; i <= VCM_NUM_WTDRMS + 1; ++i) {
    EXPECT_DOUBLE_EQ(arrays[i], expected[i]) << i;
  }
  EXPECT_EQ(arrays[VCM_NUM_COVARIANCE], -0.10719e-10);
  EXPECT_EQ(arrays[VCM_NUM_COVARIANCE + 44], -0.47250e-12);
  EXPECT_EQ(arrays.texts.substr(0, VCM_CHAR_GEONAME), "89021F  " + blanks(25));
  EXPECT_EQ(arrays.texts.substr(VCM_CHAR_GEONAME, 62),
            "EGM-96JAC70/MSIS90ON AUSOFFNO ASW   J2000ANALYTICTIMEOFFMANUAL");
  Arrays none = Arrays::of(123, 2);
  EXPECT_EQ(none.texts, blanks(VCM_CHAR_ARRAY_LENGTH));
  EXPECT_EQ(none.numbers, Arrays().numbers) << "as they were";
  EXPECT_EQ(trace_.takeErrors(), Lines{unknownKey("GetSatToFields", 123)});
}

TEST_F(BulkFields, UpdateReplacesAllButNumberAndEpoch) {
  const std::int64_t key = addGolden();
  Arrays arrays = Arrays::of(key);
  Arrays expected = arrays;
  arrays[VCM_NUM_SATNUM] = 99.0;
  arrays[VCM_NUM_EPOCH] += 1000.0;
  arrays[VCM_NUM_BTERM] = expected[VCM_NUM_BTERM] = 0.5;
  arrays[VCM_NUM_ECIPOS] = expected[VCM_NUM_ECIPOS] = 1e300;  // not held against limits
  arrays[VCM_NUM_COVMTXSIZE] = 0.9;
  std::fill(expected.numbers.begin() + VCM_NUM_COVARIANCE, expected.numbers.end(), 0.0);
  expected[VCM_NUM_COVMTXSIZE] = 0.0;
  arrays.texts.replace(VCM_CHAR_DRAGMODEL, 12, "NEW\tMODEL   ");
  expected.texts.replace(VCM_CHAR_DRAGMODEL, 12, "NEW MODEL   ");
  const auto update = [&arrays](std::int64_t satKey) {
    return VcmUpdateSatFrFields(satKey, arrays.texts.data(), arrays.numbers.data());
  };
  EXPECT_EQ(update(key), 0);
  EXPECT_TRUE(Arrays::of(key) == expected);
  // The message that is stored now breaks a limit, and so cannot be updated any more.
  arrays[VCM_NUM_BTERM] = 0.25;
  EXPECT_EQ(update(key), 2);
  EXPECT_EQ(trace_.takeErrors(),
            Lines{" ValidateVcmValues: Invalid ECI PosX = 1e+300 (valid -1E7 to 1E7)"});
  EXPECT_TRUE(Arrays::of(key) == expected);
  EXPECT_EQ(update(5), 2);
  EXPECT_EQ(trace_.takeErrors(), Lines{unknownKey("VcmUpdateSatFrFields", 5)});
}

}  // namespace
