#include "VCM/VcmTree/OneLineWriter.h"

#include <gtest/gtest.h>

#include "VCM/VcmCardReading/OneLineParser.h"
#include "support/Messages.h"

using vcm::VcmRecord;

namespace {

TEST(OneLineWriter, SingleFields) {
  // clang-format off
  const struct {
    int column;
    std::string_view text;
    void (*change)(VcmRecord&);
  } cases[] = {
      {1, "*****", [](auto& r) { r.satNum = 100000; }},
      {18, "59.999", [](auto& r) { r.epoch.seconds = 59.9994; }},
      {18, "60.000", [](auto& r) { r.epoch.seconds = 59.9996; }},
      {33, "****************", [](auto& r) { r.j2kPos[0] = 1.0e9; }},
      {343, "2-BODY", [](auto& r) { r.geoName.assign("2-BODY"); }},
      {400, "-0.123457E-09", [](auto& r) { r.bDot = -0.1234567e-9; }},
      {427, " -0.39E-03", [](auto& r) { r.edr = -0.39e-3; }},
      {479, " 36", [](auto& r) { r.taiMinusUtc = 36.9; }},
      {479, "  0", [](auto& r) { r.taiMinusUtc = -0.5; }},
      {492, "-1.235", [](auto& r) { r.ut1Rate = -0.0012346; }},
      {669, "( 0x 0) ", [](auto& r) { r.covMtxSize = 0; }},
      {1465, "A NAME OF 25 CHARACTERS..", [](auto& r) { r.commonName.assign("A NAME OF 25 CHARACTERS..?"); }},
      {1492, "98-067A  ", [](auto& r) { r.intlDes.assign("98067A"); }},
  };
  // clang-format on
  for (const auto& row : cases) {
    VcmRecord record = vcm::Vcm1Line2Vcm(goldenOneLine());
    row.change(record);
    std::string expected = goldenOneLine();
    putAt(expected, row.column, row.text);
    std::string line(1500, '?');
    vcm::Vcm2Vcm1Line(record, line);
    EXPECT_EQ(line, expected) << row.column;
  }
}

}  // namespace
