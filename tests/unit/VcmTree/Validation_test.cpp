#include "VCM/VcmTree/Validation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/StoreAccess.h"
#include "support/TraceCapture.h"

using vcm::VcmRecord;

namespace {

struct Row {
  const char* message;  // what follows the common lead; empty for what passes
  void (*change)(VcmRecord&);
};
// clang-format off
const Row kRows[] = {
    {"satellite number =           -1 (valid = 1-999999999)", [](auto& r) { r.satNum = -1; }},
    {"Year of Epoch =         1952 (valid >=1956)", [](auto& r) { r.epoch.year = 1952; }},
    {"Day of Epoch =          367 (valid 1-366)", [](auto& r) { r.epoch.dayOfYear = 367; }},
    {"Epoch Revolution =       100000 (valid 0-99999)", [](auto& r) { r.epochRev = 100000; }},
    {"ECI PosX = 10000000.5 (valid -1E7 to 1E7)", [](auto& r) { r.eciPos[0] = 10000000.5; }},
    {"ECI PosY = -1e+300 (valid -1E7 to 1E7)", [](auto& r) { r.eciPos[1] = -1e300; }},
    {"ECI PosZ = inf (valid -1E7 to 1E7)", [](auto& r) { r.eciPos[2] = HUGE_VAL; }},
    {"ECI VelX = 1000.000000000001 (valid -1E3 to 1E3)", [](auto& r) { r.eciVel[0] = 1000.000000000001; }},
    {"ECI VelY = -1000.25 (valid -1E3 to 1E3)", [](auto& r) { r.eciVel[1] = -1000.25; }},
    {"ECI VelZ = 10000 (valid -1E3 to 1E3)", [](auto& r) { r.eciVel[2] = 1e4; }},
    {"Day of Epoch =          366 (valid 1-365)", [](auto& r) { r.epoch.year = 2023, r.epoch.dayOfYear = 366; }},
    {"Day of Epoch =          366 (valid 1-365)", [](auto& r) { r.epoch.year = 2100, r.epoch.dayOfYear = 366; }},
    {"Epoch Revolution =           -1 (valid 0-99999)", [](auto& r) { r.epochRev = -1; }},
    {"", [](auto& r) { r.satNum = 0, r.epoch.year = 1956, r.epoch.dayOfYear = 1; }},  // although the message says 1
    {"", [](auto& r) { r.satNum = 999999999, r.epochRev = 99999, r.epoch.dayOfYear = 366; }},
    {"", [](auto& r) { r.eciPos = {1e7, -1e7, -0.0}, r.eciVel = {1e3, -1e3, -0.0}; }},
    {"", [](auto& r) { r.eciPos.fill(std::nan("")), r.eciVel.fill(std::nan("")); }},
    {"", [](auto& r) { r.epoch.hour = 99, r.epoch.seconds = -1, r.j2kPos[0] = r.efgVel[0] = 1e9; }}};
// clang-format on

TEST(Validation, EachLimit) {
  TraceCapture trace;
  for (const Row& row : kRows) {
    std::vector<std::string> expected;
    if (*row.message != '\0') {
      expected.push_back(std::string(" ValidateVcmValues: Invalid ") + row.message);
      expected.back().resize(128, ' ');
    }
    VcmRecord record = satelliteAt(5);
    row.change(record);
    EXPECT_EQ(vcm::ValidateVcmValues(record), expected.empty() ? vcm::kGood : vcm::kRejected);
    EXPECT_EQ(trace.takeRawErrors(), expected) << "row " << &row - kRows;
  }
}

}  // namespace
