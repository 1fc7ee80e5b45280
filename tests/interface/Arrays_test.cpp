#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "support/InterfaceStore.h"

namespace {

class ArrayForm : public InterfaceStore {
 protected:
  static Arrays fromText(const std::string& text, int result = 0) {
    Arrays arrays;
    EXPECT_EQ(VcmStringToArray(text.c_str(), arrays.numbers.data(), arrays.texts.data()), result);
    return arrays;
  }
  static std::string oneLine(const Arrays& arrays) {
    std::string line(VCM_ONE_LINE_LENGTH, '?');
    EXPECT_EQ(VcmArrayToVcm1Line(arrays.numbers.data(), arrays.texts.data(), line.data()), 0);
    return line;
  }
  static std::string lines(const Arrays& arrays) {
    std::string area(VCM_TEXT_LENGTH, '?');
    EXPECT_EQ(VcmArrayToVcmLines(arrays.numbers.data(), arrays.texts.data(), area.data()), 0);
    return area;
  }
};

TEST_F(ArrayForm, FromTextAndBack) {
  const Lines golden = goldenMessage();
  const Arrays arrays = fromText(joined(golden));
  EXPECT_TRUE(arrays == Arrays::of(addGolden()));
  EXPECT_EQ(linesOf(lines(arrays)), golden);  // its common name is blank
  const std::string one = goldenOneLine();
  std::string nameless = one;
  putAt(nameless, 1465, std::string(25, ' '));
  EXPECT_EQ(oneLine(fromText(one)), nameless);

  EXPECT_TRUE(fromText("no message", 2) == Arrays::zero());
  EXPECT_TRUE(fromText(joined(Lines(golden.begin(), golden.begin() + 26)), 2) == Arrays::zero());
  std::string invalid = one;
  putAt(invalid, 7, "1942");
  EXPECT_TRUE(fromText(invalid, 2) == Arrays::zero());
  EXPECT_EQ(trace_.takeErrors(),
            (Lines{"AnyVcmStrings2Vcm: Invalid concatenated vcm string.",
                   "AnyVcmStrings2Vcm: Number of vcm records needs to be at least 27.",
                   " ValidateVcmValues: Invalid Year of Epoch =         1942 (valid >=1956)"}));
  // Lines outside limits are no failure here.
  EXPECT_EQ(fromText(joined(withText(golden, 6, 22, "1942"))).numbers[VCM_NUM_EPOCHREV], 5513.0);
}

TEST_F(ArrayForm, CovarianceAndGap) {
  Arrays arrays = fromText(joined(goldenMessage()));
  const auto rows = [&](double size) {
    arrays.numbers[VCM_NUM_COVMTXSIZE] = size;
    return linesOf(lines(arrays)).size() - 27;
  };
  EXPECT_EQ(rows(0.9), 0U);
  EXPECT_EQ(rows(-3.0), 0U);
  EXPECT_EQ(rows(6.7), 5U);
  EXPECT_EQ(rows(9.0), 9U);
  EXPECT_EQ(rows(1e9), 9U);
  EXPECT_EQ(oneLine(arrays).substr(668, 8), "(**x**) ");
  EXPECT_TRUE(fromText(lines(Arrays::zero())).numbers[VCM_NUM_COVARIANCE] == 0.0);
  EXPECT_EQ(oneLine(Arrays::zero()).substr(0, 29), "    0 19493650000 0.000     0");
  const std::string before = lines(arrays);
  arrays.texts.replace(8, 25, 25, 'N');
  EXPECT_EQ(lines(arrays), before);
}

TEST_F(ArrayForm, AnyDoubleInAnyPosition) {
  using Limits = std::numeric_limits<double>;
  const auto isPrintable = [](const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
  };
  const Arrays golden = fromText(joined(goldenMessage()));
  for (const double value :
       {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(), -Limits::max(),
        Limits::denorm_min(), -0.0, 2147483648.0, -2147483649.0, 1e15}) {
    for (std::size_t i = 0; i < VCM_NUM_COVARIANCE + 45; ++i) {
      Arrays arrays = golden;
      arrays.numbers[i] = value;
      EXPECT_TRUE(isPrintable(lines(arrays) + oneLine(arrays))) << i << ' ' << value;
    }
    Arrays all = golden;
    std::fill(all.numbers.begin(), all.numbers.end(), value);
    EXPECT_TRUE(isPrintable(lines(all) + oneLine(all))) << value;
    VcmAddSatFrFields(all.texts.data(), all.numbers.data());
  }
  Arrays odd = golden;
  odd.numbers[VCM_NUM_SATNUM] = odd.numbers[VCM_NUM_EPOCH] = odd.numbers[VCM_NUM_ECIPOS] =
      odd.numbers[VCM_NUM_UT1RATE] = Limits::quiet_NaN();
  odd.numbers[VCM_NUM_WTDRMS] = Limits::infinity();
  odd.numbers[VCM_NUM_F10] = 1e300;
  const std::string line = oneLine(odd);
  EXPECT_EQ(line.substr(0, 23), "    0    00000000 0.000");
  EXPECT_EQ(line.substr(136, 16), "             NaN");
  EXPECT_EQ(line.substr(491, 6), "   NaN");
  EXPECT_EQ(line.substr(676, 12), "************");
  EXPECT_EQ(line.substr(465, 3), "***");

  std::mt19937_64 random(20281121);
  for (int i = 0; i < 3000; ++i) {
    Arrays arrays = golden;
    for (double& number : arrays.numbers) {
      number = std::bit_cast<double>(random());
    }
    EXPECT_TRUE(isPrintable(lines(arrays) + oneLine(arrays))) << i;
    VcmAddSatFrFields(arrays.texts.data(), arrays.numbers.data());
  }
}

}  // namespace
