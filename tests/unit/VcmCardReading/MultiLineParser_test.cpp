#include "VCM/VcmCardReading/MultiLineParser.h"

#include <gtest/gtest.h>

#include <set>

#include "VCM/VcmCardReading/ConcatenatedText.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "VCM/VcmTree/Covariance.h"
#include "support/Messages.h"
#include "support/TraceCapture.h"

using vcm::VcmRecord;

namespace {

VcmRecord parsed(const Lines& lines) { return vcm::MultiLine2Vcm(views(lines)); }

VcmRecord parsedFromFile(const Lines& lines, vcm::CardType type = vcm::CardType::multiLineHeader) {
  const TemporaryFile file(joined(lines));
  vcm::OpenFile stream;
  EXPECT_EQ(vcm::openInputFile(file.path(), stream), 0);
  vcm::CardReader cards(stream.get());
  EXPECT_TRUE(cards.next());
  return vcm::ReadVCMFrFileUnit(cards, type);
}

std::string complaint(const std::string& parser, const std::string& label) {
  return parser + ": Invalid line caused read error @ '" + label + "'.";
}

TEST(MultiLineParser, EachLabelMismatchHasItsMessage) {
  // clang-format off
  const std::pair<int, const char*> labels[] = {
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
    EXPECT_EQ(parsed(broken).parseStatus, vcm::kRejected) << label;
    const bool other = underTheOtherName.contains(line);
    EXPECT_EQ(trace.takeRawErrors(),
              Lines{complaint(other ? "ReadVCMFrFileUnit" : "MultiLine2Vcm", label)});
    // A file may also end there.
    for (const Lines& file : {broken, Lines(broken.begin(), broken.begin() + line - 1)}) {
      EXPECT_EQ(parsedFromFile(file).parseStatus, vcm::kRejected) << label;
      EXPECT_EQ(trace.takeRawErrors(), Lines{complaint("ReadVCMFrFileUnit", label)});
    }
  }
}

TEST(MultiLineParser, LinesThatAreNotLookedAt) {
  Lines message = goldenMessage();
  message[0] = message[1] = message[2] = "anything";
  message[4] = "<> COMMON NAME: SOMETHING";
  const VcmRecord record = parsed(message);
  EXPECT_TRUE(record.parseStatus == vcm::kGood && record.satNum == 1);
  EXPECT_TRUE(record.commonName.isBlank());
}

// One row per rule of a field; a number that cannot be read ends its line.
TEST(MultiLineParser, Fields) {
  // clang-format off
  const struct {
    int line, column;
    std::string_view text;
    bool (*holds)(const VcmRecord&);
  } cases[] = {

      {4, 22, "123456789", [](auto& r) { return r.satNum == 123456789; }},
      {4, 22, "12X", [](auto& r) { return r.satNum == 0 && r.intlDes.isBlank(); }},
      {4, 58, "           ", [](auto& r) { return r.intlDes.isBlank(); }},
      {4, 58, "1998-067ABC", [](auto& r) { return r.intlDes.view() == "98067ABC"; }},
      {6, 22, "  28", [](auto& r) { return r.epoch.year == 28; }},
      {6, 32, "99 XXX", [](auto& r) { return r.epoch.dayOfYear == 206; }},
      {6, 46, "000031", [](auto& r) { return r.epoch.seconds == 31.0; }},
      {6, 43, "XX", [](auto& r) { return r.epoch.hour == 12 && r.epoch.seconds == 0.0 && r.epochRev == 0; }},
      {7, 37, "     3239.3X607467", [](auto& r) { return r.j2kPos == vcm::Vector3{-11044.90753274, 0.0, 0.0}; }},
      {7, 20, "     -1104490753", [](auto& r) { return r.j2kPos[0] == -11.04490753; }},
      {8, 20, "   2903593388458", [](auto& r) { return r.j2kVel[0] == 2.903593388458; }},
      {13, 18, "NONE  ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {13, 18, "      ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {13, 18, " NONE ", [](auto& r) { return r.geoName.view() == "NONE  "; }},
      {13, 40, "   JACCHIA  ", [](auto& r) { return r.dragModel.view() == "JACCHIA     "; }},
      {15, 28, "       112473", [](auto& r) { return r.bTerm == 112473e-10; }},
      {18, 21, "***", [](auto& r) { return r.f10 == 0 && r.avgF10 == 0; }},
      {19, 63, "-0.123", [](auto& r) { return r.ut1Rate == -0.123 * 0.001; }},
      {27, 45, "77", [](auto& r) { return r.covMtxSize == 9; }},
  };
  // clang-format on
  TraceCapture trace;
  for (const auto& c : cases) {
    const Lines message = withText(goldenMessage(), c.line, c.column, c.text);
    for (const VcmRecord& record : {parsed(message), parsedFromFile(message)}) {
      EXPECT_TRUE(record.parseStatus == vcm::kGood && c.holds(record)) << c.line << ": " << c.text;
    }
  }
  EXPECT_EQ(trace.takeErrors(), Lines{});
}

TEST(MultiLineParser, CovarianceSizes) {
  TraceCapture trace;
  const Lines complaints{complaint("MultiLine2Vcm", "COVARIANCE MATRIX")};
  const vcm::CovarianceTriangle all = vcm::Vcm2dTo1d(parsed(goldenMessage()).covMtx);
  const auto sized = [](int size) {
    const std::string digits = std::to_string(size);
    return withText(withText(goldenMessage(), 27, 42, "  "), 27, size < 0 || size > 9 ? 42 : 43,
                    digits);
  };
  for (int size = -1; size <= 12; ++size) {
    const VcmRecord record = parsed(sized(size));
    vcm::CovarianceTriangle expected{};
    std::copy_n(all.begin(), size > 9 ? 0 : vcm::covarianceValueCount(size), expected.begin());
    EXPECT_EQ(vcm::Vcm2dTo1d(record.covMtx), expected) << size;
    EXPECT_EQ(record.covMtxSize, size);
    EXPECT_EQ(record.parseStatus, size > 9 ? vcm::kRejected : vcm::kGood) << size;
    EXPECT_EQ(trace.takeErrors(), size > 9 ? complaints : Lines{});
  }
  EXPECT_EQ(parsed(withText(goldenMessage(), 30, 30, "Q")).parseStatus, vcm::kRejected);
  EXPECT_EQ(trace.takeErrors(), complaints);
  // The last value of a size of 6 stands alone in its row: what follows it there is not read.
  EXPECT_EQ(parsed(withText(sized(6), 32, 17, "Q")).parseStatus, vcm::kGood);

  // Rows that a text lacks are blanks; those that a file lacks are an error.
  Lines cut = goldenMessage();
  cut.resize(30);
  EXPECT_EQ(parsed(cut).parseStatus, vcm::kGood);
  EXPECT_EQ(vcm::Vcm2dTo1d(parsed(cut).covMtx)[15], 0.0);
  EXPECT_EQ(parsedFromFile(cut).parseStatus, vcm::kRejected);
  EXPECT_EQ(trace.takeRawErrors(), Lines{complaint("ReadVCMFrFileUnit", "COVARIANCE MATRIX")});
}

TEST(MultiLineParser, BareFormHasTheEciStateAlone) {
  Lines bare = bareForm(goldenMessage());
  putAt(bare[0], 1, "  satellite number:     1");
  const VcmRecord record = parsedFromFile(bare, vcm::CardType::bareFirstLine);
  const VcmRecord expected = parsed(goldenMessage());
  EXPECT_EQ(record.parseStatus, vcm::kGood);
  EXPECT_TRUE(vcm::equal(record, expected));
  EXPECT_TRUE(record.j2kPos == vcm::Vector3{} && record.efgVel == vcm::Vector3{});
  EXPECT_TRUE(record.wtdRms == expected.wtdRms && record.covMtx == expected.covMtx);
}

TEST(ConcatenatedText, IsCutInFrontOfItsMarks) {
  // clang-format off
  const std::pair<std::string, Lines> rows[] = {
      {"", {}}, {"no marks at all", {}}, {"<> A<> B", {"<> A", "<> B"}}, {"<> A   \n<> B  ", {"<> A   \n", "<> B  "}},
      {"before <> A", {"", "<> A"}}, {"<> A>B", {"<> A", ">B"}}, {" <> A", {"<", "> A"}},
      {"<> " + std::string(600, 'x'), {"<> " + std::string(509, 'x')}},
      {joined(Lines(45, "<> line")), Lines(40, "<> line\n")}};
  // clang-format on
  for (const auto& [text, expected] : rows) {
    const vcm::ConcatenatedLines cut = vcm::Concatenated2MultiLine(text);
    EXPECT_EQ(Lines(cut.lines().begin(), cut.lines().end()), expected) << text;
  }
  const VcmRecord expected = parsed(goldenMessage());
  for (const char* const lineEnd : {"", "\n", "  \r\n"}) {
    const std::string text = joined(goldenMessage(), lineEnd);
    const VcmRecord record = vcm::MultiLine2Vcm(vcm::Concatenated2MultiLine(text).lines());
    EXPECT_TRUE(vcm::equal(record, expected) && record.covMtx == expected.covMtx) << lineEnd;
  }
}

}  // namespace
