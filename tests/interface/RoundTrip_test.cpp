// Random messages from arrays to both text forms and back: every difference must be what the width
// of a field explains. VCM_RANDOM_MESSAGES sets their number.
#include <algorithm>
#include <cmath>
#include <random>

#include "support/InterfaceStore.h"
#include "support/RandomCount.h"

namespace {

// A stretch of the number array: what it holds, and how well a field of either form keeps it.
struct Stretch {
  int first, count;
  double low, high;  // of a scientific field, those of the exponent
  int decimals;      // of a fixed field; whole numbers have 0
  int digits;        // of a scientific field, instead
};

// clang-format off
constexpr Stretch kStretches[] = {
    {VCM_NUM_SATNUM, 1, 0, 99999, 0, 0},                   {VCM_NUM_EPOCHREV, 1, 0, 99999, 0, 0},
    {VCM_NUM_J2KPOS, 3, -999999, 9999999, 8, 0},           {VCM_NUM_J2KVEL, 3, -99, 999, 12, 0},
    {VCM_NUM_ECIPOS, 3, -999999, 9999999, 8, 0},           {VCM_NUM_ECIVEL, 3, -99, 999, 12, 0},
    {VCM_NUM_EFGPOS, 3, -999999, 9999999, 8, 0},           {VCM_NUM_EFGVEL, 3, -99, 999, 12, 0},
    {VCM_NUM_GEOZONALS, 2, -9, 99, 0, 0},                  {VCM_NUM_BTERM, 3, -90, 90, 0, 6},
    {VCM_NUM_EDR, 1, -90, 90, 0, 2},                       {VCM_NUM_THRUSTACCEL, 2, -90, 90, 0, 6},
    {VCM_NUM_F10, 2, -99, 999, 0, 0},                      {VCM_NUM_AVGAP, 1, -99, 999, 1, 0},
    {VCM_NUM_TAIMINUSUTC, 1, -99, 999, 0, 0},              {VCM_NUM_UT1MINUSUTC, 1, -9, 99, 5, 0},
    {VCM_NUM_UT1RATE, 1, -9, 99, 3, 0},                    {VCM_NUM_POLARMOTIONX, 2, -9, 99, 4, 0},
    {VCM_NUM_NUTATIONTERMS, 1, -99, 999, 0, 0},            {VCM_NUM_INITSTEPSIZE, 1, -999, 9999, 3, 0},
    {VCM_NUM_ERRORCONTROL, 1, -90, 90, 0, 3},              {VCM_NUM_POSSIGMAS, 3, -9999, 99999, 4, 0},
    {VCM_NUM_VELSIGMAS, 3, -99, 999, 4, 0},                {VCM_NUM_WTDRMS, 1, -90, 90, 0, 5},
    {VCM_NUM_COVARIANCE, 45, -90, 90, 0, 5}};
// clang-format on

constexpr double kDaysPerMillisecond = 1.0 / 86400e3;

class RandomArrays {
 public:
  explicit RandomArrays(std::uint64_t seed) : random_(seed) {}

  Arrays next() {
    Arrays arrays = Arrays::zero();
    for (const Stretch& stretch : kStretches) {
      for (int i = stretch.first; i < stretch.first + stretch.count; ++i) {
        const double drawn = real(stretch.low, stretch.high);
        arrays[i] = stretch.digits > 0      ? real(-1, 1) * std::pow(10.0, drawn)
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
    putAt(arrays.texts, VCM_CHAR_INTLDES + 1, std::to_string(integer(10, 99)) + word(6));
    int position = VCM_CHAR_GEONAME;  // texts lie side by side from here on
    for (const int width : {6, 12, 3, 3, 3, 3, 6, 5, 8, 4, 3, 6}) {
      putAt(arrays.texts, position + 1, word(width));
      position += width;
    }
    if (integer(0, 9) == 0) {
      arrays.texts.replace(VCM_CHAR_GEONAME, VCM_GEONAME_LENGTH, "2-BODY");
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
int unexplained(Arrays before, Arrays after, double leapSecondTime) {
  Arrays allowed = Arrays::zero();
  // What a double of days resolves.
  allowed[VCM_NUM_EPOCH] = allowed[VCM_NUM_LEAPSECONDTIME] = 1e-3 * kDaysPerMillisecond;
  before[VCM_NUM_LEAPSECONDTIME] = leapSecondTime;
  for (const Stretch& stretch : kStretches) {
    for (int i = stretch.first; i < stretch.first + stretch.count; ++i) {
      allowed[i] = loss(stretch, before[i]);
    }
  }
  int i = 0;
  while (i < VCM_NUM_ARRAY_LENGTH && std::fabs(after[i] - before[i]) <= allowed[i]) {
    ++i;
  }
  return i < VCM_NUM_ARRAY_LENGTH ? i : -1;
}

TEST(RoundTrip, ArraysToBothTextFormsAndBack) {
  const int count = randomCount("VCM_RANDOM_MESSAGES", 20'000);
  constexpr std::uint64_t kSeed = 1950;
  const double unknownLeapSecond = 36525.0 + 86399.999 / 86400;  // 2049, day 365
  RandomArrays random(kSeed);
  for (int i = 0; i < count; ++i) {
    Arrays arrays = random.next();
    const std::string area = arrays.lines(), line = arrays.oneLine();
    for (const auto& [text, leapSecondTime] :
         {std::pair(area, arrays[VCM_NUM_LEAPSECONDTIME]), std::pair(line, unknownLeapSecond)}) {
      const Arrays again = Arrays::ofText(text);
      ASSERT_EQ(unexplained(arrays, again, leapSecondTime), -1)
          << "seed " << kSeed << ", message " << i << '\n'
          << text;
      ASSERT_EQ(again.texts, arrays.texts) << text;
    }
    // Between the text forms nothing more is lost.
    ASSERT_EQ(toOneLine(area), line);
  }
}

}  // namespace
