#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>
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
  constexpr std::size_t kLines[] = {27, 28, 28, 29, 29, 30, 32, 33, 35, 36};
  for (const double size : {-1e9, -3.0, 0.9, 1.0, 2.0, 3.0, 4.0, 5.0, 6.7, 7.0, 8.0, 9.0, 1e9}) {
    arrays[VCM_NUM_COVMTXSIZE] = size;  // truncated toward zero
    EXPECT_EQ(linesOf(arrays.lines()).size(), kLines[static_cast<int>(std::clamp(size, 0.0, 9.0))])
        << size;
  }
}

// Whatever the numbers are, labels stay in their place, and what is written is text.
TEST_F(ArrayForm, AnyDoubleInAnyPosition) {
  using Limits = std::numeric_limits<double>;
  constexpr double kSpecial[] = {Limits::quiet_NaN(),
                                 Limits::infinity(),
                                 -Limits::max(),
                                 Limits::denorm_min(),
                                 -0.0,
                                 2147483648.0,
                                 -2147483649.0,
                                 1e15};
  const Arrays golden = Arrays::ofText(joined(goldenMessage()));
  const std::string goldenArea = golden.lines();
  std::mt19937_64 random(20281121);
  for (int round = 0; round < 5000; ++round) {
    Arrays arrays = golden;
    const std::size_t kept = random() % 100;  // per cent of the golden numbers
    for (double& number : arrays.numbers) {
      const double any = random() % 2 == 0 ? kSpecial[random() % std::size(kSpecial)]
                                           : std::bit_cast<double>(random());
      number = random() % 100 < kept ? number : any;
    }
    const std::string area = arrays.lines(), both = area + arrays.oneLine();
    ASSERT_TRUE(std::all_of(both.begin(), both.end(), [](char c) { return c >= ' ' && c <= '~'; }))
        << round << '\n'
        << both;
    for (std::size_t line = 0; line < std::size_t{27} * 80; line += 80) {
      ASSERT_EQ(area.substr(line, 12), goldenArea.substr(line, 12)) << round;
      ASSERT_EQ(area.substr(line + 72, 8), blanks(8)) << round << '\n' << area;
    }
    arrays.add();  // under the sanitizers
  }
}

}  // namespace
