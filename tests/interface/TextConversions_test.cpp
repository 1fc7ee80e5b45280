#include <fstream>
#include <limits>

#include "support/InterfaceStore.h"

namespace {

class TextConversions : public InterfaceStore {};

TEST_F(TextConversions, TheCatalogueInBothForms) {
  ASSERT_EQ(VcmLoadFile(VCM_SAMPLES_DIR "/catalogue.vcm"), 0);
  std::vector<std::int64_t> keys(300);
  VcmGetLoaded(VCM_ORDER_LOADED, keys.data());
  std::ifstream oneLine(VCM_SAMPLES_DIR "/catalogue.one");
  for (const std::int64_t key : keys) {
    std::string line, lines = written<VcmGetLines, VCM_TEXT_LENGTH>(0, key);
    ASSERT_TRUE(std::getline(oneLine, line));
    EXPECT_TRUE(toOneLine(line) == line) << line << "\na one-line message is written as it was";
    std::string nameless = line;
    putAt(nameless, 1465, blanks(25));
    EXPECT_TRUE(toOneLine(lines) == nameless && Arrays::ofText(lines).oneLine() == nameless)
        << line;
    putAt(lines, 20 * 80 + 39, "2049 365 (31 DEC) 23:59:59.999");
    EXPECT_EQ((written<Vcm1LineToMultiLine, VCM_TEXT_LENGTH>(0, line.c_str())), lines);
  }
  EXPECT_EQ(trace_.takeErrors(), Lines{});
}

TEST_F(TextConversions, WhatHasNoPlaceInTheOtherForm) {
  // Values past the covariance's dimension are written all the same, as zeros.
  Lines small = withText(goldenMessage(), 27, 42, " 1");
  small.resize(28);
  const std::string line = toOneLine(joined(small));
  EXPECT_EQ(line.substr(668, 46), "( 1x 1)  0.12828E+01 -0.10719E-10  0.00000E+00");
  EXPECT_EQ(line.substr(1247, 26), "  0.00000E+00  0.00000E+00");
  // A one-line message outside its limits makes no lines, which is no failure.
  EXPECT_EQ((written<Vcm1LineToMultiLine, VCM_TEXT_LENGTH>(0, "")), blanks(VCM_TEXT_LENGTH));
}

TEST_F(TextConversions, ArraysOfWhatFitsNoField) {
  using Limits = std::numeric_limits<double>;
  Arrays odd = Arrays::ofText(joined(goldenMessage()));
  odd[VCM_NUM_SATNUM] = odd[VCM_NUM_EPOCH] = odd[VCM_NUM_UT1RATE] = Limits::quiet_NaN();
  odd[VCM_NUM_F10] = 1e300;
  odd[VCM_NUM_COVMTXSIZE] = Limits::infinity();
  odd.texts.replace(8, 25, 25, 'N');  // as long as a name, where nothing is
  const std::string line = odd.oneLine();
  EXPECT_EQ(line.substr(0, 23), "    0    00000000 0.000");
  EXPECT_EQ(line.substr(465, 3) + line.substr(491, 6), "***   NaN");
  EXPECT_EQ(line.substr(668, 35), "(**x**)  0.12828E+01 -0.10719E-10  ");
  EXPECT_EQ(line.substr(1464), blanks(27) + "89-021F  ");
  EXPECT_EQ(odd.lines().find_last_not_of(' ') / 80 + 1, 36U) << "lines";
  odd[VCM_NUM_COVMTXSIZE] = -Limits::max();
  EXPECT_EQ(odd.lines().find_last_not_of(' ') / 80 + 1, 27U) << "lines";
  EXPECT_EQ(Arrays::zero().oneLine().substr(0, 29), "    0 19493650000 0.000     0");
}

}  // namespace
