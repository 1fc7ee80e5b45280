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

// Numbers and texts, and by how much each number may differ when it comes back.
std::pair<Arrays, Arrays> randomMessage(std::mt19937_64& random) {
  const auto real = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  const auto integer = [&](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  // Characters as texts may have them; marks cut a text, and blanks in front are shifted away.
  const auto word = [&](int width) {
    std::string text;
    for (int i = integer(1, width); i > 0; --i) {
      const auto any = static_cast<char>(integer(text.empty() ? '!' : ' ', '~'));
      text.push_back(any == '<' || any == '>' ? '=' : any);
    }
    return text;
  };
  Arrays arrays = Arrays::zero(), mayLose = arrays;
  const int size = integer(0, 9);
  arrays[VCM_NUM_COVMTXSIZE] = size;
  const int end = VCM_NUM_COVARIANCE + size * (size + 1) / 2;
  for (const Stretch& stretch : kStretches) {
    for (int i = stretch.first; i < std::min(stretch.first + stretch.count, end); ++i) {
      const double drawn = real(stretch.low, stretch.high);
      if (stretch.digits == 0 && stretch.decimals == 0) {
        arrays[i] = std::floor(drawn);
        continue;
      }
      arrays[i] = stretch.digits > 0 ? real(-1, 1) * std::pow(10.0, drawn) : drawn;
      // Half a unit of the field's last place, and what the last bit of a double is worth.
      const double place = stretch.digits > 0
                               ? std::ceil(std::log10(std::fabs(arrays[i]))) - stretch.digits
                               : -stretch.decimals;
      mayLose[i] = 0.5 * std::pow(10.0, place) * (1 + 1e-9) + 4e-16 * std::fabs(arrays[i]);
    }
  }
  // Whole milliseconds: a second that rounds up makes a multi-line message that does not load again.
  for (const int date : {VCM_NUM_EPOCH, VCM_NUM_LEAPSECONDTIME}) {
    arrays[date] = integer(2500, 51000) + integer(0, 86399999) / 86400e3;
    mayLose[date] = 1e-3 / 86400e3;  // what a double of days resolves
  }
  putAt(arrays.texts, VCM_CHAR_INTLDES + 1, std::to_string(integer(10, 99)) + word(6));
  int column = VCM_CHAR_GEONAME + 1;  // texts lie side by side from here on
  for (const int width : {6, 12, 3, 3, 3, 3, 6, 5, 8, 4, 3, 6}) {
    putAt(arrays.texts, column, word(width));
    column += width;
  }
  if (integer(0, 9) == 0) {
    putAt(arrays.texts, VCM_CHAR_GEONAME + 1, "2-BODY");
  }
  return {arrays, mayLose};
}

TEST(RoundTrip, ArraysToBothTextFormsAndBack) {
  constexpr std::uint64_t kSeed = 1950;
  std::mt19937_64 random(kSeed);
  for (int left = randomCount("VCM_RANDOM_MESSAGES", 20'000); left > 0; --left) {
    auto [arrays, mayLose] = randomMessage(random);
    const std::string area = arrays.lines(), line = arrays.oneLine();
    for (const std::string& text : {area, line}) {
      Arrays again = Arrays::ofText(text);
      int i = 0;
      while (i < VCM_NUM_ARRAY_LENGTH && std::fabs(again[i] - arrays[i]) <= mayLose[i]) {
        ++i;
      }
      ASSERT_EQ(i, VCM_NUM_ARRAY_LENGTH) << "seed " << kSeed << ", " << left << " left\n" << text;
      ASSERT_EQ(again.texts, arrays.texts) << text;
      arrays[VCM_NUM_LEAPSECONDTIME] = 36525.0 + 86399.999 / 86400;  // a line says so
    }
    // Between the text forms nothing more is lost.
    ASSERT_EQ(toOneLine(area), line);
  }
}

}  // namespace
