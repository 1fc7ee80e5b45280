// What a field shows of a value where that is a rule of its own; plain numbers are compared elsewhere.
#include <gtest/gtest.h>

#include <cmath>

#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmCardReading/OneLineParser.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/OneLineWriter.h"
#include "support/Messages.h"

using vcm::VcmRecord;

namespace {

TEST(MultiLineWriter, SingleFields) {
  // clang-format off
  const struct {
    int line, column;
    std::string_view text;
    void (*change)(VcmRecord&);
  } rows[] = {
      {4, 22, "99999", [](auto& r) { r.satNum = 99999; }},    {4, 22, "234567890", [](auto& r) { r.satNum = 1234567890; }},
      {4, 22, "100000", [](auto& r) { r.satNum = 100000; }},  {4, 22, "*****", [](auto& r) { r.satNum = -123456; }},
      {4, 57, "          ", [](auto& r) { r.intlDes.assign("  067A  "); }},
      {4, 58, "2056-067ABC", [](auto& r) { r.intlDes.assign("56067ABC"); }},
      {4, 58, "1957-067A", [](auto& r) { r.intlDes.assign("57067A"); }},
      {4, 58, "  XY-067A", [](auto& r) { r.intlDes.assign("XY067A"); }},
      {6, 46, "591.000  EPOCH REV:  5513", [](auto& r) { r.epoch.seconds = 59.9996; }},
      {6, 27, "060 (29 FEB)", [](auto& r) { r.epoch.dayOfYear = 60; }},
      {13, 18, "      ", [](auto& r) { r.geoName.assign("2-BODY"); }},
      {19, 16, " 36", [](auto& r) { r.taiMinusUtc = 36.9; }},
      {21, 39, "   0 000 (00 JAN) 00:00:00.000", [](auto& r) { r.leapSecondTime = {}; }},
      {21, 63, "00 NaN", [](auto& r) { r.leapSecondTime.seconds = NAN; }},
      {21, 63, "00-.500", [](auto& r) { r.leapSecondTime.seconds = -0.5; }},
      {21, 39, "**** *** (** JAN) **:**:**.000", [](auto& r) { r.leapSecondTime = {INT32_MIN, INT32_MIN, -1, 100, -1e308}; }},
      {27, 42, "12x12", [](auto& r) { r.covMtxSize = 12; }}};
  // clang-format on
  for (const auto& row : rows) {
    VcmRecord record = vcm::MultiLine2Vcm(views(goldenMessage()));
    row.change(record);
    std::string area(4000, '?'), expected;
    std::int32_t count = 0;
    EXPECT_EQ(vcm::Vcm2VcmLines(record, area, &count), 1);
    for (std::string& line : withText(goldenMessage(), row.line, row.column, row.text)) {
      expected += line.append(80 - line.size(), ' ');
    }
    EXPECT_EQ(area, expected.append(area.size() - expected.size(), ' ')) << row.text;
    EXPECT_EQ(count, 36);
  }
}

TEST(OneLineWriter, SecondsDoNotCarry) {
  VcmRecord record = vcm::Vcm1Line2Vcm(goldenOneLine());
  record.epoch.seconds = 59.9996;
  std::string line(1500, '?');
  vcm::Vcm2Vcm1Line(record, line);
  EXPECT_EQ(line.substr(17, 6), "60.000");
}

}  // namespace
