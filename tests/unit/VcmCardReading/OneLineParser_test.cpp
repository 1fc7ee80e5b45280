#include "VCM/VcmCardReading/OneLineParser.h"

#include <gtest/gtest.h>

#include "support/Messages.h"
#include "support/TraceCapture.h"

using vcm::VcmRecord;

namespace {

// One row per rule that this form has for itself; an unreadable number is 0.
TEST(OneLineParser, Fields) {
  // clang-format off
  const struct {
    int column;
    std::string_view text;
    bool (*holds)(const VcmRecord&);
  } cases[] = {
      {18, " 5.123", [](auto& r) { return r.epoch.seconds == 5.123; }},
      {18, " 05123", [](auto& r) { return r.epoch.seconds == 5123.0; }},
      {343, "NONE  ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {343, " NONE ", [](auto& r) { return r.geoName.view() == "NONE  "; }},
      {400, "     15      ", [](auto& r) { return r.bDot == 15.0; }},
      {400, "          NaN", [](auto& r) { return r.bDot == 0.0; }},
      {414, "       358704", [](auto& r) { return r.agom == 358704e-10; }},
      {479, "3.5", [](auto& r) { return r.taiMinusUtc == 3.5; }},
      {492, "-0.123", [](auto& r) { return r.ut1Rate == -0.123 * 0.001; }},
      {670, "10", [](auto& r) { return r.covMtxSize == 0 && r.covMtx == vcm::CovarianceMatrix{}; }},
      {673, " 3", [](auto& r) { return r.covMtxSize == 9; }},
      {1492, "98?067A  ", [](auto& r) { return r.intlDes.view() == "98067A  "; }},
  };
  // clang-format on
  TraceCapture trace;
  for (const auto& c : cases) {
    std::string line = goldenOneLine();
    putAt(line, c.column, c.text);
    const VcmRecord record = vcm::Vcm1Line2Vcm(line);
    EXPECT_TRUE(record.parseStatus == vcm::kGood && c.holds(record)) << c.column << ": " << c.text;
  }
  EXPECT_EQ(trace.takeErrors(), Lines{});
}

}  // namespace
