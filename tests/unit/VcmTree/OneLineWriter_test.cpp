#include "VCM/VcmTree/OneLineWriter.h"

#include <gtest/gtest.h>

#include <array>

#include "DllExports/VCM/VcmDllVarsUtils/AnyText.h"
#include "VCM/VcmCardReading/OneLineParser.h"
#include "support/Messages.h"
#include "support/RandomRecords.h"

using vcm::VcmRecord;

namespace {

std::string written(const VcmRecord& record) {
  std::string line(1500, '?');
  vcm::Vcm2Vcm1Line(record, line);
  return line;
}

TEST(OneLineWriter, SingleFields) {
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
      {1465, "A NAME OF 25 CHARACTERS...",
       [](auto& r) { r.commonName.assign("A NAME OF 25 CHARACTERS..?"); }},
      {1492, "98-067A  ", [](auto& r) { r.intlDes.assign("98067A"); }},
  };
  for (const auto& row : cases) {
    VcmRecord record = vcm::Vcm1Line2Vcm(goldenOneLine());
    row.change(record);
    std::string expected = goldenOneLine();
    putAt(expected, row.column, row.text.substr(0, 25));
    EXPECT_EQ(written(record), expected) << row.column;
  }
}

TEST(OneLineWriter, RandomRecordsComeBack) {
  RandomRecords records(20261121);
  for (int i = 0; i < 2000; ++i) {
    VcmRecord record = records.next();
    record.commonName.assign("NAME " + std::to_string(i));
    const std::string line = written(record);
    const VcmRecord again = vcm::Vcm1Line2Vcm(line);
    ASSERT_EQ(again.parseStatus, vcm::kGood) << line;
    ASSERT_TRUE(again.commonName == record.commonName && again.intlDes == record.intlDes) << line;
    ASSERT_EQ(written(again), line);
    // To multi-line, which drops the name, and back.
    std::array<char, 4000> area;
    ASSERT_EQ(vcm::Vcm1Line2VcmLines(line, area), 0);
    record = vcm::AnyVcmStrings2Vcm({area.data(), area.size()});
    record.commonName = again.commonName;
    ASSERT_EQ(written(record), line);
  }
}

}  // namespace
