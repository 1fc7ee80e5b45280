#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "support/InterfaceStore.h"

namespace {

class ArrayForm : public InterfaceStore {};

TEST_F(ArrayForm, FromTextAndBack) {
  Arrays arrays = Arrays::ofText(joined(goldenMessage()));
  EXPECT_TRUE(arrays == Arrays::of(addGolden()));
  EXPECT_EQ(linesOf(arrays.lines()), goldenMessage());
  std::string nameless = goldenOneLine();
  putAt(nameless, 1465, blanks(25));
  EXPECT_EQ(Arrays::ofText(goldenOneLine()).oneLine(), nameless);
  arrays.texts.replace(8, 25, 25, 'N');
  EXPECT_EQ(linesOf(arrays.lines()), goldenMessage()) << "the gap of the characters holds nothing";
}

TEST_F(ArrayForm, NumbersThatFitNoField) {
  using Limits = std::numeric_limits<double>;
  Arrays odd = Arrays::ofText(joined(goldenMessage()));
  odd[VCM_NUM_SATNUM] = odd[VCM_NUM_EPOCH] = odd[VCM_NUM_ECIPOS] = odd[VCM_NUM_UT1RATE] =
      Limits::quiet_NaN();
  odd[VCM_NUM_WTDRMS] = Limits::infinity();
  odd[VCM_NUM_F10] = 1e300;
  odd[VCM_NUM_COVMTXSIZE] = 1e9;
  const std::string line = odd.oneLine();
  for (const auto& [column, text] :
       {std::pair(1, "    0    00000000 0.000"), std::pair(137, "             NaN"),
        std::pair(466, "***"), std::pair(492, "   NaN"), std::pair(669, "(**x**) ************")}) {
    const std::string expected = text;
    EXPECT_EQ(line.substr(static_cast<std::size_t>(column - 1), expected.size()), expected);
  }
  EXPECT_EQ(Arrays::zero().oneLine().substr(0, 29), "    0 19493650000 0.000     0");
}

TEST_F(ArrayForm, LineCountFollowsTheCovarianceSize) {
  Arrays arrays = Arrays::ofText(joined(goldenMessage()));
  for (const auto& [size, lines] :  // integers are truncated toward zero
       {std::pair(-1e9, 27U),
        {-3.0, 27U},
        {0.9, 27U},
        {1.0, 28U},
        {2.0, 28U},
        {3.0, 29U},
        {4.0, 29U},
        {5.0, 30U},
        {6.7, 32U},
        {7.0, 33U},
        {8.0, 35U},
        {9.0, 36U},
        {10.0, 36U},
        {1e9, 36U}}) {
    arrays[VCM_NUM_COVMTXSIZE] = size;
    EXPECT_EQ(linesOf(arrays.lines()).size(), lines) << size;
  }
}

// Whatever the numbers are, labels stay in their place, and what is written is text.
TEST_F(ArrayForm, AnyDoubleInAnyPosition) {
  using Limits = std::numeric_limits<double>;
  const Arrays golden = Arrays::ofText(joined(goldenMessage()));
  const std::string goldenArea = golden.lines();
  const auto check = [&](const Arrays& arrays, double value, std::size_t position) {
    const std::string area = arrays.lines(), both = area + arrays.oneLine();
    EXPECT_TRUE(std::all_of(both.begin(), both.end(), [](char c) { return c >= ' ' && c <= '~'; }))
        << position << ' ' << value << '\n'
        << both;
    for (std::size_t line = 0; line < std::size_t{27} * 80; line += 80) {
      EXPECT_EQ(area.substr(line, 12), goldenArea.substr(line, 12)) << position << ' ' << value;
      EXPECT_EQ(area.substr(line + 72, 8), blanks(8)) << position << ' ' << value;
    }
    arrays.add();  // under the sanitizers
  };
  for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::max(),
                             Limits::denorm_min(), -0.0, 2147483648.0, -2147483649.0, 1e15}) {
    Arrays all = golden;
    for (std::size_t i = 0; i < VCM_NUM_COVARIANCE + 45; ++i) {
      Arrays arrays = golden;
      arrays.numbers[i] = all.numbers[i] = value;
      check(arrays, value, i);
    }
    check(all, value, 999);
  }
  std::mt19937_64 random(20281121);
  for (std::size_t i = 0; i < 3000; ++i) {
    Arrays arrays = golden;
    std::generate(arrays.numbers.begin(), arrays.numbers.end(),
                  [&] { return std::bit_cast<double>(random()); });
    check(arrays, arrays[VCM_NUM_SATNUM], i);
  }
}

}  // namespace
