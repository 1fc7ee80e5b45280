#include "VCM/VcmCardReading/MultiLineParser.h"

#include <gtest/gtest.h>

#include <set>

#include "VCM/VcmCardReading/ConcatenatedText.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "support/Messages.h"
#include "support/TraceCapture.h"

using vcm::VcmRecord;

namespace {

VcmRecord parsed(const Lines& lines) { return vcm::MultiLine2Vcm(views(lines)); }

VcmRecord parsedFromFile(const Lines& lines) {
  std::string content = joined(lines);
  const vcm::OpenFile stream(fmemopen(content.data(), content.size(), "r"));
  vcm::CardReader cards(stream.get());
  EXPECT_TRUE(cards.next());
  return vcm::ReadVCMFrFileUnit(cards, vcm::CardType::multiLineHeader);
}

TEST(MultiLineParser, EachLabelMismatchHasItsMessage) {
  // clang-format off
  const std::pair<int, std::string> labels[] = {
      {4, "SATELLITE NUMBER"}, {6, "EPOCH REV"}, {7, "J2K POS"}, {8, "J2K VEL"}, {9, "ECI POS"}, {10, "ECI VEL"},
      {11, "EFG POS"}, {12, "EFG VEL"}, {13, "GEOPOTENTIAL"}, {14, "SOLAR RAD PRESS"}, {15, "BALLISTIC COEF"},
      {16, "SOLAR RAD PRESS COEF"}, {17, "THRUST ACCEL"}, {18, "SOLAR FLUX"}, {19, "TAI-UTC"}, {20, "POLAR MOT"},
      {21, "LEAP SECOND ENTRY"}, {22, "INTEGRATOR"}, {23, "STEP MODE"}, {24, "INITIAL STEP SIZE"},
      {25, "VECTOR U,V,W SIGMAS (KM)"}, {26, "VECTOR UD,VD,WD SIGMAS (KM/S)"}, {27, "COVARIANCE MATRIX"}};
  // clang-format on
  const std::set<int> underTheOtherName{7, 8, 11, 12, 25, 26};  // by the text parser
  TraceCapture trace;
  for (const auto& [line, label] : labels) {
    const Lines broken = withText(goldenMessage(), line, line == 6 ? 54 : 4, "#");
    const std::string rest = ": Invalid line caused read error @ '" + label + "'.";
    const std::string fromFile = "ReadVCMFrFileUnit" + rest;
    EXPECT_EQ(parsed(broken).parseStatus, vcm::kRejected) << label;
    EXPECT_EQ(parsedFromFile(broken).parseStatus, vcm::kRejected) << label;
    // A file may also end there.
    parsedFromFile(Lines(broken.begin(), broken.begin() + line - 1));
    EXPECT_EQ(trace.takeRawErrors(),
              (Lines{underTheOtherName.contains(line) ? fromFile : "MultiLine2Vcm" + rest, fromFile,
                     fromFile}));
  }
}

// One row per rule of a field.
TEST(MultiLineParser, Fields) {
  // clang-format off
  const struct {
    int line, column;
    std::string_view text;
    bool (*holds)(const VcmRecord&);
  } cases[] = {
      {4, 22, "123456789", [](auto& r) { return r.satNum == 123456789; }},
      {4, 58, "1998-067ABC", [](auto& r) { return r.intlDes.view() == "98067ABC"; }},
      {6, 22, "  28", [](auto& r) { return r.epoch.year == 28; }},
      {6, 32, "99 XXX", [](auto& r) { return r.epoch.dayOfYear == 206; }},
      {6, 46, "000031", [](auto& r) { return r.epoch.seconds == 31.0; }},
      {7, 20, "     -1104490753", [](auto& r) { return r.j2kPos[0] == -11.04490753; }},
      {8, 20, "   2903593388458", [](auto& r) { return r.j2kVel[0] == 2.903593388458; }},
      {13, 18, "NONE  ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {13, 18, "      ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {13, 18, " NONE ", [](auto& r) { return r.geoName.view() == "NONE  "; }},
      {13, 40, "   JACCHIA  ", [](auto& r) { return r.dragModel.view() == "JACCHIA     "; }},
      {15, 28, "       112473", [](auto& r) { return r.bTerm == 112473e-10; }},
      {19, 63, "-0.123", [](auto& r) { return r.ut1Rate == -0.123 * 0.001; }},
      {27, 45, "77", [](auto& r) { return r.covMtxSize == 9; }},
  };
  // clang-format on
  for (const auto& c : cases) {
    const Lines message = withText(goldenMessage(), c.line, c.column, c.text);
    for (const VcmRecord& record : {parsed(message), parsedFromFile(message)}) {
      EXPECT_TRUE(record.parseStatus == vcm::kGood && c.holds(record)) << c.line << ": " << c.text;
    }
  }
}

TEST(ConcatenatedText, IsCutTo40LinesOf512Characters) {
  const std::string line = "<> " + std::string(600, 'x');
  const std::string text = joined(Lines(45, line), "");
  const vcm::ConcatenatedLines cut = vcm::Concatenated2MultiLine(text);
  EXPECT_EQ(Lines(cut.lines().begin(), cut.lines().end()), Lines(40, line.substr(0, 512)));
}

}  // namespace
