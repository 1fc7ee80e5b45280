// Random messages from arrays to both text forms and back: every difference must be what the width
// of a field explains. VCM_RANDOM_MESSAGES sets their number.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>

#include "support/InterfaceStore.h"
#include "support/RandomCount.h"

namespace {

// A stretch of the number array: what it holds, and how well a field of either form keeps it.
struct Stretch {
  int first, count;
  double low, high;
  int decimals;  // of a fixed field; whole numbers have 0
  int digits;    // of a scientific field, instead
};

constexpr Stretch fixedPoint(int first, int count, double low, double high, int decimals) {
  return {first, count, low, high, decimals, 0};
}
constexpr Stretch scientific(int first, int digits, int count = 1) {
  return {first, count, -90.0, 90.0, 0, digits};  // the exponents
}

constexpr Stretch kStretches[] = {
    fixedPoint(VCM_NUM_SATNUM, 1, 0, 99999, 0),
    fixedPoint(VCM_NUM_EPOCHREV, 1, 0, 99999, 0),
    fixedPoint(VCM_NUM_J2KPOS, 3, -999999, 9999999, 8),
    fixedPoint(VCM_NUM_J2KVEL, 3, -99, 999, 12),
    fixedPoint(VCM_NUM_ECIPOS, 3, -999999, 9999999, 8),
    fixedPoint(VCM_NUM_ECIVEL, 3, -99, 999, 12),
    fixedPoint(VCM_NUM_EFGPOS, 3, -999999, 9999999, 8),
    fixedPoint(VCM_NUM_EFGVEL, 3, -99, 999, 12),
    fixedPoint(VCM_NUM_GEOZONALS, 1, -9, 99, 0),
    fixedPoint(VCM_NUM_GEOTESSERALS, 1, -9, 99, 0),
    scientific(VCM_NUM_BTERM, 6),
    scientific(VCM_NUM_BDOT, 6),
    scientific(VCM_NUM_AGOM, 6),
    scientific(VCM_NUM_EDR, 2),
    scientific(VCM_NUM_THRUSTACCEL, 6),
    scientific(VCM_NUM_CMOFFSET, 6),
    fixedPoint(VCM_NUM_F10, 1, -99, 999, 0),
    fixedPoint(VCM_NUM_AVGF10, 1, -99, 999, 0),
    fixedPoint(VCM_NUM_AVGAP, 1, -99, 999, 1),
    fixedPoint(VCM_NUM_TAIMINUSUTC, 1, -99, 999, 0),
    fixedPoint(VCM_NUM_UT1MINUSUTC, 1, -9, 99, 5),
    fixedPoint(VCM_NUM_UT1RATE, 1, -9, 99, 3),
    fixedPoint(VCM_NUM_POLARMOTIONX, 1, -9, 99, 4),
    fixedPoint(VCM_NUM_POLARMOTIONY, 1, -9, 99, 4),
    fixedPoint(VCM_NUM_NUTATIONTERMS, 1, -99, 999, 0),
    fixedPoint(VCM_NUM_INITSTEPSIZE, 1, -999, 9999, 3),
    scientific(VCM_NUM_ERRORCONTROL, 3),
    fixedPoint(VCM_NUM_POSSIGMAS, 3, -9999, 99999, 4),
    fixedPoint(VCM_NUM_VELSIGMAS, 3, -99, 999, 4),
    scientific(VCM_NUM_WTDRMS, 5),
    scientific(VCM_NUM_COVARIANCE, 5, 45),
};

constexpr double kDaysPerMillisecond = 1.0 / 86400e3;

class RandomArrays {
 public:
  explicit RandomArrays(std::uint64_t seed) : random_(seed) {}

  Arrays next() {
    Arrays arrays = Arrays::zero();
    for (const Stretch& stretch : kStretches) {
      for (int i = stretch.first; i < stretch.first + stretch.count; ++i) {
        const double drawn = real(stretch.low, stretch.high);
        arrays.numbers[static_cast<std::size_t>(i)] = stretch.digits > 0
                                                          ? real(-1, 1) * std::pow(10.0, drawn)
                                                      : stretch.decimals == 0 ? std::floor(drawn)
                                                                              : drawn;
      }
    }
    const int size = integer(0, 9);
    arrays.numbers[VCM_NUM_COVMTXSIZE] = size;
    std::fill(arrays.numbers.begin() + VCM_NUM_COVARIANCE + size * (size + 1) / 2,
              arrays.numbers.end(), 0.0);
    // Whole milliseconds: a second that rounds up makes a multi-line message that does not load again.
    arrays.numbers[VCM_NUM_EPOCH] = day();
    arrays.numbers[VCM_NUM_LEAPSECONDTIME] = day();
    put(arrays, VCM_CHAR_INTLDES, std::to_string(integer(10, 99)) + word(6));
    for (const auto& [position, width] :
         {std::pair(VCM_CHAR_GEONAME, 6), std::pair(VCM_CHAR_DRAGMODEL, 12),
          std::pair(VCM_CHAR_LUNARSOLAR, 3), std::pair(VCM_CHAR_RADPRESS, 3),
          std::pair(VCM_CHAR_EARTHTIDES, 3), std::pair(VCM_CHAR_INTRACKTHRUST, 3),
          std::pair(VCM_CHAR_INTEGMODE, 6), std::pair(VCM_CHAR_COORDSYS, 5),
          std::pair(VCM_CHAR_PARTIALS, 8), std::pair(VCM_CHAR_STEPMODE, 4),
          std::pair(VCM_CHAR_FIXEDSTEP, 3), std::pair(VCM_CHAR_STEPSELECTION, 6)}) {
      put(arrays, position,
          integer(0, 9) == 0 && position == VCM_CHAR_GEONAME ? "2-BODY" : word(width));
    }
    return arrays;
  }

 private:
  double real(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  int integer(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
  double day() { return integer(2500, 51000) + integer(0, 86399999) * kDaysPerMillisecond; }
  // Characters as texts may have them; marks cut a text, and blanks in front are shifted away.
  std::string word(int width) {
    std::string text;
    for (int i = integer(1, width); i > 0; --i) {
      text.push_back(static_cast<char>(integer(text.empty() ? '!' : ' ', '~')));
    }
    std::replace(text.begin(), text.end(), '<', 'L');
    std::replace(text.begin(), text.end(), '>', 'G');
    return text;
  }
  static void put(Arrays& arrays, int position, const std::string& text) {
    arrays.texts.replace(static_cast<std::size_t>(position), text.size(), text);
  }

  std::mt19937_64 random_;
};

// What may be lost: half a unit of the field's last place, and what the last bit of a double is worth.
double loss(const Stretch& stretch, double value) {
  const double unit = stretch.digits > 0
                          ? std::pow(10.0, std::ceil(std::log10(std::fabs(value))) - stretch.digits)
                          : std::pow(10.0, -stretch.decimals);
  const bool whole = stretch.digits == 0 && stretch.decimals == 0;
  return whole ? 0.0 : 0.5 * unit * (1 + 1e-9) + 4e-16 * std::fabs(value);
}

// The first position that differs by more than its field's width explains; -1 when there is none.
int unexplained(const Arrays& before, const Arrays& after, double leapSecondTime) {
  constexpr double kDateLoss = 1e-3 * kDaysPerMillisecond;  // what a double of days resolves
  std::vector<double> expected = before.numbers;
  expected[VCM_NUM_LEAPSECONDTIME] = leapSecondTime;
  std::vector<double> allowed(VCM_NUM_ARRAY_LENGTH, 0.0);
  allowed[VCM_NUM_EPOCH] = allowed[VCM_NUM_LEAPSECONDTIME] = kDateLoss;
  for (const Stretch& stretch : kStretches) {
    for (int i = stretch.first; i < stretch.first + stretch.count; ++i) {
      const auto at = static_cast<std::size_t>(i);
      allowed[at] = loss(stretch, expected[at]);
    }
  }
  for (std::size_t i = 0; i < allowed.size(); ++i) {
    if (!(std::fabs(after.numbers[i] - expected[i]) <= allowed[i])) {
      return static_cast<int>(i);
    }
  }
  return -1;
}

TEST(RoundTrip, ArraysToBothTextFormsAndBack) {
  const int count = randomCount("VCM_RANDOM_MESSAGES", 20'000);
  constexpr std::uint64_t kSeed = 1950;
  const double unknownLeapSecond = 36525.0 + 86399.999 / 86400;  // 2049, day 365
  RandomArrays random(kSeed);
  std::string area(VCM_TEXT_LENGTH, ' '), line(VCM_ONE_LINE_LENGTH, ' ');
  for (int i = 0; i < count; ++i) {
    const Arrays arrays = random.next();
    Arrays again;
    const auto expectExplained = [&](const std::string& text, double leapSecondTime) {
      ASSERT_EQ(VcmStringToArray(text.c_str(), again.numbers.data(), again.texts.data()), 0)
          << "seed " << kSeed << ", message " << i << '\n'
          << text;
      ASSERT_EQ(unexplained(arrays, again, leapSecondTime), -1)
          << "seed " << kSeed << ", message " << i << '\n'
          << text;
      ASSERT_EQ(again.texts, arrays.texts) << text;
    };
    VcmArrayToVcmLines(arrays.numbers.data(), arrays.texts.data(), area.data());
    ASSERT_NO_FATAL_FAILURE(expectExplained(area, arrays.numbers[VCM_NUM_LEAPSECONDTIME]));
    VcmArrayToVcm1Line(arrays.numbers.data(), arrays.texts.data(), line.data());
    ASSERT_NO_FATAL_FAILURE(expectExplained(line, unknownLeapSecond));
    // Between the text forms nothing more is lost.
    std::string converted(VCM_ONE_LINE_LENGTH, ' ');
    ASSERT_EQ(VcmMultiLineTo1Line(area.c_str(), converted.data()), 0);
    ASSERT_EQ(converted, line);
  }
}

}  // namespace
