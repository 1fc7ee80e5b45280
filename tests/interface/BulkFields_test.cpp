#include <algorithm>
#include <cmath>

#include "support/InterfaceStore.h"

namespace {

class BulkFields : public InterfaceStore {};

// Every output of VcmGetAllFields in its order: whole numbers, other numbers, and texts, each with a mark
// behind it that must stay.
struct AllFields {
  std::vector<std::int32_t> whole = std::vector<std::int32_t>(7, -1);
  std::vector<double> real = std::vector<double>(19, -1.0);
  std::string texts = std::string(99 + 14, '|');

  int get(std::int64_t key) {
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

TEST_F(BulkFields, OfAMessage) {
  Arrays arrays = Arrays::ofText(joined(goldenMessage()));
  arrays[VCM_NUM_GEOTESSERALS] = 69;  // so that like fields differ
  arrays.texts.replace(VCM_CHAR_LUNARSOLAR, 12, "ON AUSEINNO ");
  const std::int64_t key = arrays.add();
  AllFields fields;
  EXPECT_EQ(fields.get(key), 0);
  EXPECT_EQ(fields.texts,
            "89021F  |2028206120431.384|EGM-96|JAC70/MSIS90|ON |AUS|EIN|NO |"
            "2016366000000.000|ASW   |ANALYTIC|TIME|OFF|MANUAL|");
  // The numbers are those of the single fields, which are whole, real or texts.
  constexpr std::string_view kKinds = "wttwrrrrrrtwwtttttrrrrwwrrrrrrwttttttrrr";
  std::size_t whole = 0, real = 0;
  for (int index = VCM_FIELD_SATNUM; index <= VCM_FIELD_WTDRMS; ++index) {
    if (const char kind = kKinds[static_cast<std::size_t>(index - 1)]; kind != 't') {
      const double number = kind == 'w' ? fields.whole.at(whole++) : fields.real.at(real++);
      EXPECT_NEAR(number, std::stod(field(key, index)), 1e-15) << index;
    }
  }
  arrays = Arrays::of(key);
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
            "EGM-96JAC70/MSIS90ON AUSEINNO ASW   J2000ANALYTICTIMEOFFMANUAL");
}

TEST_F(BulkFields, OfNoMessageAreBlankAndZero) {
  AllFields fields;
  EXPECT_EQ(fields.get(-1), 2);
  EXPECT_EQ(fields.whole, std::vector<std::int32_t>(7));
  EXPECT_EQ(fields.real, std::vector<double>(19));
  EXPECT_EQ(std::count(fields.texts.begin(), fields.texts.end(), ' '), 99) << fields.texts;
  const Arrays none = Arrays::of(123, 2);
  EXPECT_EQ(none.texts, blanks(VCM_CHAR_ARRAY_LENGTH));
  EXPECT_EQ(none.numbers, Arrays().numbers) << "as they were";
  EXPECT_EQ((written<VcmGetLines, VCM_TEXT_LENGTH>(2, 123)), blanks(VCM_TEXT_LENGTH));
  EXPECT_EQ((written<VcmGetField, VCM_FIELD_VALUE_LENGTH>(2, 123, VCM_FIELD_BTERM)),
            blanks(VCM_FIELD_VALUE_LENGTH));
}

TEST_F(BulkFields, UpdateReplacesAllButNumberAndEpoch) {
  const std::int64_t key = addGolden();
  Arrays arrays = Arrays::of(key);
  arrays[VCM_NUM_BTERM] = 0.5;
  arrays[VCM_NUM_ECIPOS] = 1e300;  // not held against limits
  arrays[VCM_NUM_EDR] = HUGE_VAL;
  Arrays expected = arrays;
  arrays[VCM_NUM_SATNUM] = arrays[VCM_NUM_EPOCH] = 99.0;
  arrays[VCM_NUM_COVMTXSIZE] = 0.9;
  std::fill(expected.numbers.begin() + VCM_NUM_COVARIANCE, expected.numbers.end(), 0.0);
  expected[VCM_NUM_COVMTXSIZE] = 0.0;
  arrays.texts.replace(VCM_CHAR_DRAGMODEL, 12, "NEW\tMODEL   ");
  expected.texts.replace(VCM_CHAR_DRAGMODEL, 12, "NEW MODEL   ");
  const auto update = [&] {
    return VcmUpdateSatFrFields(key, arrays.texts.data(), arrays.numbers.data());
  };
  EXPECT_EQ(update(), 0);
  EXPECT_TRUE(Arrays::of(key) == expected);
  EXPECT_EQ(field(key, VCM_FIELD_EDR), std::string(24, '*'));
  // The message that is stored now breaks a limit, and so cannot be updated any more.
  arrays[VCM_NUM_BTERM] = 0.25;
  EXPECT_EQ(update(), 2);
  EXPECT_EQ(trace_.takeErrors(),
            Lines{" ValidateVcmValues: Invalid ECI PosX = 1e+300 (valid -1E7 to 1E7)"});
  EXPECT_TRUE(Arrays::of(key) == expected);
}

}  // namespace
