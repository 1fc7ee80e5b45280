#include "VCM/VcmTree/MultiLineWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

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
  for (std::size_t i = 0; i < area.size(); i += 80) {
    lines.emplace_back(vcm::withoutTrailingBlanks({area.data() + i, 80}));
  }
  const auto end = lines.begin() + count;
  EXPECT_TRUE(std::all_of(end, lines.end(), [](auto& line) { return line.empty(); })) << count;
  return {lines.begin(), end};
}

VcmRecord golden() { return vcm::MultiLine2Vcm(views(goldenMessage())); }

TEST(MultiLineWriter, GoldenMessage) { EXPECT_EQ(written(golden()), goldenMessage()); }

TEST(MultiLineWriter, SingleFields) {
  // clang-format off
  const struct {
    int line, column;
    std::string_view text;
    void (*change)(VcmRecord&);
  } cases[] = {

      {4, 22, "99999", [](auto& r) { r.satNum = 99999; }},    {4, 22, "234567890", [](auto& r) { r.satNum = 1234567890; }},
      {4, 22, "100000", [](auto& r) { r.satNum = 100000; }},  {4, 22, "*****", [](auto& r) { r.satNum = -123456; }},
      {4, 57, "          ", [](auto& r) { r.intlDes.assign("  067A  "); }},
      {4, 58, "2056-067ABC", [](auto& r) { r.intlDes.assign("56067ABC"); }},
      {4, 58, "1957-067A", [](auto& r) { r.intlDes.assign("57067A"); }},
      {4, 58, "  XY-067A", [](auto& r) { r.intlDes.assign("XY067A"); }},
      {6, 46, "591.000  EPOCH REV:  5513", [](auto& r) { r.epoch.seconds = 59.9996; }},
      {6, 27, "060 (29 FEB)", [](auto& r) { r.epoch.dayOfYear = 60; }},
      {6, 65, "*****", [](auto& r) { r.epochRev = 100000; }},
      {9, 37, "****************", [](auto& r) { r.eciPos[1] = 1.0e9; }},
      {13, 18, "      ", [](auto& r) { r.geoName.assign("2-BODY"); }},
      {15, 58, "-.123456E-10", [](auto& r) { r.bDot = -0.123456e-10; }},
      {19, 16, " 36", [](auto& r) { r.taiMinusUtc = 36.9; }},
      {21, 39, "   0 000 (00 JAN) 00:00:00.000", [](auto& r) { r.leapSecondTime = {}; }},
      {21, 63, "00 NaN", [](auto& r) { r.leapSecondTime.seconds = NAN; }},
      {21, 63, "00-.500", [](auto& r) { r.leapSecondTime.seconds = -0.5; }},
      {27, 42, "12x12", [](auto& r) { r.covMtxSize = 12; }},
  };
  // clang-format on
  for (const auto& c : cases) {
    VcmRecord record = golden();
    c.change(record);
    Lines expected = withText(goldenMessage(), c.line, c.column, c.text);
    for (std::string& line : expected) {
      line = vcm::withoutTrailingBlanks(line);
    }
    EXPECT_EQ(written(record), expected);
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
  RandomRecords random(7);
  for (int i = 0; i < 20'000; ++i) {
    const Lines once = written(random.next());
    const VcmRecord back = vcm::MultiLine2Vcm(views(once));
    ASSERT_EQ(back.parseStatus, vcm::kGood) << joined(once);
    ASSERT_EQ(written(back), once) << "record " << i;
  }
}

// Whatever the numbers are, the text stays within its area and its labels stay in place.
TEST(MultiLineWriter, NonsenseNumbersStayInTheirFields) {
  for (const double nonsense : {double{NAN}, HUGE_VAL, -1e308, -5e-324}) {
    VcmRecord record = golden();
    record.epoch = record.leapSecondTime = {INT32_MIN, INT32_MAX, -1, 100, nonsense};
    record.j2kPos[0] = record.bTerm = record.taiMinusUtc = record.wtdRms = nonsense;
    record.covMtx.fill(nonsense);
    const Lines lines = written(record);
    for (std::size_t i = 0; i < 27; ++i) {
      EXPECT_EQ(lines.at(i).substr(0, 12), goldenMessage()[i].substr(0, 12));
      EXPECT_LE(lines[i].size(), 72U) << lines[i];
    }
  }
}

}  // namespace
