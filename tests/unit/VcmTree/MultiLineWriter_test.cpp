#include "VCM/VcmTree/MultiLineWriter.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>

#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmTree/Covariance.h"
#include "support/Messages.h"
#include "support/RandomRecords.h"

using vcm::VcmRecord;

namespace {

// The lines that a record is written as, trailing blanks cut as in a file.
Lines written(const VcmRecord& record) {
  std::array<char, 4000> area;
  std::int32_t count = 0;
  EXPECT_EQ(vcm::Vcm2VcmLines(record, area, &count), 1);
  Lines lines;
  for (std::size_t i = 0; i < 50; ++i) {
    std::string line(area.data() + i * 80, 80);
    line.erase(line.find_last_not_of(' ') + 1);
    if (i < static_cast<std::size_t>(count)) {
      lines.push_back(line);
    } else {
      EXPECT_EQ(line, "") << "line " << i + 1 << " of an area with " << count;
    }
  }
  return lines;
}

VcmRecord golden() { return vcm::MultiLine2Vcm(views(goldenMessage())); }

TEST(MultiLineWriter, GoldenMessage) { EXPECT_EQ(written(golden()), goldenMessage()); }

// One row per way that a single field can look.
TEST(MultiLineWriter, SingleFields) {
  // clang-format off
  const struct {
    const char* what;
    std::function<void(VcmRecord&)> change;
    std::size_t line;
    std::string_view text;
  } cases[] = {
      {"five digits", [](VcmRecord& r) { r.satNum = 99999; }, 4, "<> SATELLITE NUMBER: 99999                    INT. DES.: 1989-021F"},
      {"six digits", [](VcmRecord& r) { r.satNum = 100000; }, 4, "<> SATELLITE NUMBER: 100000                   INT. DES.: 1989-021F"},
      {"ten digits", [](VcmRecord& r) { r.satNum = 1234567890; }, 4, "<> SATELLITE NUMBER: 234567890                INT. DES.: 1989-021F"},
      {"negative", [](VcmRecord& r) { r.satNum = -123456; }, 4, "<> SATELLITE NUMBER: *****                    INT. DES.: 1989-021F"},
      {"no launch year", [](VcmRecord& r) { r.intlDes.assign("  067A  "); }, 4, "<> SATELLITE NUMBER:     1                    INT. DES.:"},
      {"launch year 56", [](VcmRecord& r) { r.intlDes.assign("56067ABC"); }, 4, "<> SATELLITE NUMBER:     1                    INT. DES.: 2056-067ABC"},
      {"launch year 57", [](VcmRecord& r) { r.intlDes.assign("57067A"); }, 4, "<> SATELLITE NUMBER:     1                    INT. DES.: 1957-067A"},
      {"launch year of letters", [](VcmRecord& r) { r.intlDes.assign("XY067A"); }, 4, "<> SATELLITE NUMBER:     1                    INT. DES.:   XY-067A"},
      {"seconds that round up", [](VcmRecord& r) { r.epoch.seconds = 59.9996; }, 6, "<> EPOCH TIME (UTC): 2028 206 (24 JUL) 12:04:591.000  EPOCH REV:  5513"},
      {"leap day", [](VcmRecord& r) { r.epoch.dayOfYear = 60; }, 6, "<> EPOCH TIME (UTC): 2028 060 (29 FEB) 12:04:31.384  EPOCH REV:  5513"},
      {"revolution too large", [](VcmRecord& r) { r.epochRev = 100000; }, 6, "<> EPOCH TIME (UTC): 2028 206 (24 JUL) 12:04:31.384  EPOCH REV: *****"},
      {"no date", [](VcmRecord& r) { r.leapSecondTime = {}; }, 21, "<> TIME CONST LEAP SECOND TIME (UTC):    0 000 (00 JAN) 00:00:00.000"},
      {"not a number of seconds", [](VcmRecord& r) { r.leapSecondTime.seconds = NAN; }, 21, "<> TIME CONST LEAP SECOND TIME (UTC): 2016 366 (31 DEC) 00:00:00 NaN"},
      {"position too large", [](VcmRecord& r) { r.eciPos[1] = 1.0e9; }, 9, "<> ECI POS (KM):    -11044.91823553 ****************    6221.00051833"},
      {"two-body", [](VcmRecord& r) { r.geoName.assign("2-BODY"); }, 13, "<> GEOPOTENTIAL:        70Z,70T  DRAG: JAC70/MSIS90  LUNAR/SOLAR: ON"},
      {"negative bDot", [](VcmRecord& r) { r.bDot = -0.123456e-10; }, 15, "<> BALLISTIC COEF (M2/KG):  0.112473E-02 BDOT (M2/KG-S): -.123456E-10"},
      {"TAI-UTC with a fraction", [](VcmRecord& r) { r.taiMinusUtc = 36.9; }, 19, "<> TAI-UTC (S): 36  UT1-UTC (S):  0.20345  UT1 RATE (MS/DAY):  0.308"},
      {"size of two digits", [](VcmRecord& r) { r.covMtxSize = 12; }, 27, "<> COVARIANCE MATRIX (EQUINOCTIAL ELS): (12x12) WTD RMS:  0.12828E+01"},
  };
  // clang-format on
  for (const auto& c : cases) {
    VcmRecord record = golden();
    c.change(record);
    Lines expected = goldenMessage();
    expected[c.line - 1] = c.text;
    EXPECT_EQ(written(record), expected) << c.what;
  }
}

TEST(MultiLineWriter, LineCountFollowsTheCovarianceSize) {
  const std::pair<int, std::size_t> cases[] = {
      {INT32_MIN, 27}, {-1, 27}, {0, 27}, {1, 28}, {2, 28}, {3, 29},  {4, 29},
      {5, 30},         {6, 32},  {7, 33}, {8, 35}, {9, 36}, {10, 36}, {INT32_MAX, 36}};
  for (const auto& [size, lines] : cases) {
    VcmRecord record = golden();
    record.covMtxSize = size;
    EXPECT_EQ(written(record).size(), lines) << size;
  }
}

// A record that went through its text once is stable: text, record and text again agree.
TEST(MultiLineWriter, RandomRecordsRoundTrip) {
  constexpr std::uint64_t kSeed = 7;
  RandomRecords random(kSeed);
  for (int i = 0; i < 20'000; ++i) {
    const VcmRecord record = random.next();
    const Lines once = written(record);
    const VcmRecord back = vcm::MultiLine2Vcm(views(once));
    // A fraction that rounds up to a second makes the one line that does not read back.
    if (record.epoch.seconds - std::trunc(record.epoch.seconds) >= 0.9995) {
      continue;
    }
    ASSERT_EQ(back.parseStatus, vcm::kGood) << joined(once);
    ASSERT_EQ(written(back), once) << "record " << i << " of seed " << kSeed;
  }
}

// Whatever the numbers are, the text stays within its area and its labels stay in place.
TEST(MultiLineWriter, NonsenseNumbersStayInTheirFields) {
  for (const double nonsense : {std::numeric_limits<double>::quiet_NaN(),
                                std::numeric_limits<double>::infinity(), -1e308, -5e-324}) {
    VcmRecord record = golden();
    record.epoch.seconds = record.j2kPos[0] = record.bTerm = record.taiMinusUtc = record.ut1Rate =
        record.errorControl = record.velSigmas[2] = record.wtdRms = nonsense;
    record.covMtx.fill(nonsense);
    record.epoch.dayOfYear = record.epoch.year = INT32_MIN;
    record.leapSecondTime.dayOfYear = INT32_MAX;
    const Lines lines = written(record);
    ASSERT_EQ(lines.size(), 36U);
    for (std::size_t i = 0; i < 27; ++i) {
      EXPECT_EQ(lines[i].substr(0, 12), goldenMessage()[i].substr(0, 12)) << i + 1;
      EXPECT_LE(lines[i].size(), 72U) << lines[i];
    }
  }
}

}  // namespace
