#include "VCM/VcmCardReading/MultiLineParser.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "VCM/VcmCardReading/ConcatenatedText.h"
#include "VCM/VcmTree/Covariance.h"
#include "support/Messages.h"
#include "support/TraceCapture.h"

using vcm::VcmRecord;

namespace {

VcmRecord parsed(const Lines& lines) { return vcm::MultiLine2Vcm(views(lines)); }

// The message as a file: the golden lines from the first card on.
VcmRecord parsedFromFile(const Lines& lines, vcm::CardType type) {
  const TemporaryFile file(joined(lines));
  std::FILE* const stream = std::fopen(file.path().c_str(), "rb");
  VcmRecord record;
  {
    vcm::CardReader cards(stream);
    EXPECT_TRUE(cards.next());
    record = vcm::ReadVCMFrFileUnit(cards, type);
  }
  std::fclose(stream);
  return record;
}

// Each line that has a label, with the message of the text parser.
struct LabelCase {
  int line;
  int column;
  const char* message;
};
constexpr LabelCase kLabels[] = {
    {4, 4, "MultiLine2Vcm: Invalid line caused read error @ 'SATELLITE NUMBER'."},
    {6, 54, "MultiLine2Vcm: Invalid line caused read error @ 'EPOCH REV'."},
    {7, 4, "ReadVCMFrFileUnit: Invalid line caused read error @ 'J2K POS'."},
    {8, 4, "ReadVCMFrFileUnit: Invalid line caused read error @ 'J2K VEL'."},
    {9, 4, "MultiLine2Vcm: Invalid line caused read error @ 'ECI POS'."},
    {10, 4, "MultiLine2Vcm: Invalid line caused read error @ 'ECI VEL'."},
    {11, 4, "ReadVCMFrFileUnit: Invalid line caused read error @ 'EFG POS'."},
    {12, 4, "ReadVCMFrFileUnit: Invalid line caused read error @ 'EFG VEL'."},
    {13, 4, "MultiLine2Vcm: Invalid line caused read error @ 'GEOPOTENTIAL'."},
    {14, 4, "MultiLine2Vcm: Invalid line caused read error @ 'SOLAR RAD PRESS'."},
    {15, 4, "MultiLine2Vcm: Invalid line caused read error @ 'BALLISTIC COEF'."},
    {16, 4, "MultiLine2Vcm: Invalid line caused read error @ 'SOLAR RAD PRESS COEF'."},
    {17, 4, "MultiLine2Vcm: Invalid line caused read error @ 'THRUST ACCEL'."},
    {18, 4, "MultiLine2Vcm: Invalid line caused read error @ 'SOLAR FLUX'."},
    {19, 4, "MultiLine2Vcm: Invalid line caused read error @ 'TAI-UTC'."},
    {20, 4, "MultiLine2Vcm: Invalid line caused read error @ 'POLAR MOT'."},
    {21, 4, "MultiLine2Vcm: Invalid line caused read error @ 'LEAP SECOND ENTRY'."},
    {22, 4, "MultiLine2Vcm: Invalid line caused read error @ 'INTEGRATOR'."},
    {23, 4, "MultiLine2Vcm: Invalid line caused read error @ 'STEP MODE'."},
    {24, 4, "MultiLine2Vcm: Invalid line caused read error @ 'INITIAL STEP SIZE'."},
    {25, 4, "ReadVCMFrFileUnit: Invalid line caused read error @ 'VECTOR U,V,W SIGMAS (KM)'."},
    {26, 4, "ReadVCMFrFileUnit: Invalid line caused read error @ 'VECTOR UD,VD,WD SIGMAS (KM/S)'."},
    {27, 4, "MultiLine2Vcm: Invalid line caused read error @ 'COVARIANCE MATRIX'."},
};

TEST(MultiLineParser, EachLabelMismatchHasItsMessage) {
  TraceCapture trace;
  for (const LabelCase& c : kLabels) {
    const Lines broken = withText(goldenMessage(), c.line, c.column, "#");
    EXPECT_EQ(parsed(broken).parseStatus, vcm::kRejected) << c.message;
    EXPECT_EQ(trace.takeRawErrors(), Lines{c.message});

    // The file reader says the same of the same line, under its own name.
    std::string message = c.message;
    message.replace(0, message.find(':'), "ReadVCMFrFileUnit");
    EXPECT_EQ(parsedFromFile(broken, vcm::CardType::multiLineHeader).parseStatus, vcm::kRejected);
    EXPECT_EQ(trace.takeRawErrors(), Lines{message});

    // A message may end anywhere.
    const Lines cut(broken.begin(), broken.begin() + c.line - 1);
    EXPECT_EQ(parsedFromFile(cut, vcm::CardType::multiLineHeader).parseStatus, vcm::kRejected);
    EXPECT_EQ(trace.takeRawErrors(), Lines{message});
  }
}

TEST(MultiLineParser, LinesThatAreNotLookedAt) {
  Lines message = goldenMessage();
  message[0] = message[1] = message[2] = "anything";
  message[4] = "<> COMMON NAME: SOMETHING";
  const VcmRecord record = parsed(message);
  EXPECT_EQ(record.parseStatus, vcm::kGood);
  EXPECT_TRUE(record.commonName.isBlank());
  EXPECT_EQ(record.satNum, 1);
}

// What each field reads as: one row per way to write it.
TEST(MultiLineParser, Fields) {
  // clang-format off
  const struct {
    const char* what;
    int line;
    int column;
    std::string_view text;
    std::function<bool(const VcmRecord&)> holds;
  } cases[] = {
      {"nine digits", 4, 22, "123456789", [](auto& r) { return r.satNum == 123456789; }},
      {"no designator", 4, 58, "           ", [](auto& r) { return r.intlDes.isBlank(); }},
      {"long piece", 4, 58, "1998-067ABC", [](auto& r) { return r.intlDes.view() == "98067ABC"; }},
      {"satellite unreadable: the designator is not read", 4, 22, "12X", [](auto& r) { return r.satNum == 0 && r.intlDes.isBlank(); }},
      {"year of two digits stays", 6, 22, "  28", [](auto& r) { return r.epoch.year == 28; }},
      {"month and day of month are not read", 6, 32, "99 XXX", [](auto& r) { return r.epoch.dayOfYear == 206; }},
      {"seconds without a point", 6, 46, "000031", [](auto& r) { return r.epoch.seconds == 31.0; }},
      {"minute unreadable: no seconds, no revolution", 6, 43, "XX", [](auto& r) { return r.epoch.hour == 12 && r.epoch.seconds == 0.0 && r.epochRev == 0; }},
      {"letter in a position: from there on zero", 7, 37, "     3239.3X607467", [](auto& r) { return r.j2kPos == vcm::Vector3{-11044.90753274, 0.0, 0.0}; }},
      {"implied decimals", 7, 20, "     -1104490753", [](auto& r) { return r.j2kPos[0] == -11.04490753; }},
      {"blanks inside", 10, 20, " 2. 903 5961 021", [](auto& r) { return r.eciVel[0] == 2.9035961021; }},
      {"tabs are blanks", 10, 20, "\t\t\t\t\t\t\t\t\t\t\t\t\t2.5", [](auto& r) { return r.eciVel[0] == 2.5; }},
      {"NONE", 13, 18, "NONE  ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {"blank name", 13, 18, "      ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {"NONE that begins late", 13, 18, " NONE ", [](auto& r) { return r.geoName.view() == "NONE  "; }},
      {"drag model shifted left", 13, 40, "   JACCHIA  ", [](auto& r) { return r.dragModel.view() == "JACCHIA     "; }},
      {"dropped zero", 15, 58, "-.529024E-10", [](auto& r) { return r.bDot == -0.529024e-10; }},
      {"ten implied decimals", 15, 28, "       112473", [](auto& r) { return r.bTerm == 112473e-10; }},
      {"blank field", 17, 25, "             ", [](auto& r) { return r.thrustAccel == 0.0; }},
      {"asterisks", 18, 21, "***", [](auto& r) { return r.f10 == 0 && r.avgF10 == 0; }},
      {"fraction of TAI-UTC", 19, 16, " 36", [](auto& r) { return r.taiMinusUtc == 36.0; }},
      {"rate in milliseconds", 19, 63, "-0.123", [](auto& r) { return r.ut1Rate == -0.123 * 0.001; }},
      {"Fortran exponent", 24, 52, "0.265D-13", [](auto& r) { return r.errorControl == 0.265e-13; }},
      {"second size is not read", 27, 45, "77", [](auto& r) { return r.covMtxSize == 9; }},
      {"no covariance", 27, 42, " 0", [](auto& r) { return r.covMtxSize == 0 && r.covMtx == vcm::CovarianceMatrix{}; }},
      {"negative size", 27, 42, "-1", [](auto& r) { return r.covMtxSize == -1 && r.covMtx == vcm::CovarianceMatrix{}; }},
  };
  // clang-format on
  TraceCapture trace;
  for (const auto& c : cases) {
    const Lines message = withText(goldenMessage(), c.line, c.column, c.text);
    const VcmRecord record = parsed(message);
    EXPECT_TRUE(record.parseStatus == vcm::kGood && c.holds(record)) << c.what;
    const VcmRecord fromFile = parsedFromFile(message, vcm::CardType::multiLineHeader);
    EXPECT_TRUE(fromFile.parseStatus == vcm::kGood && c.holds(fromFile)) << c.what << ", in a file";
    EXPECT_TRUE(trace.takeErrors().empty()) << c.what;
  }
}

TEST(MultiLineParser, CovarianceSizes) {
  TraceCapture trace;
  const std::string complaint =
      "MultiLine2Vcm: Invalid line caused read error @ 'COVARIANCE MATRIX'.";
  const vcm::CovarianceTriangle all = vcm::Vcm2dTo1d(parsed(goldenMessage()).covMtx);
  for (int size = 0; size <= 12; ++size) {
    const std::string digits = (size < 10 ? " " : "") + std::to_string(size);
    const VcmRecord record = parsed(withText(goldenMessage(), 27, 42, digits));
    if (size > 9) {
      EXPECT_EQ(record.parseStatus, vcm::kRejected) << size;
      EXPECT_EQ(trace.takeErrors(), Lines{complaint});
      continue;
    }
    vcm::CovarianceTriangle expected{};
    std::copy_n(all.begin(), vcm::covarianceValueCount(size), expected.begin());
    EXPECT_EQ(record.parseStatus, vcm::kGood) << size;
    EXPECT_EQ(vcm::Vcm2dTo1d(record.covMtx), expected) << size;
  }

  const Lines unreadable = withText(goldenMessage(), 30, 30, "Q");
  EXPECT_EQ(parsed(unreadable).parseStatus, vcm::kRejected);
  EXPECT_EQ(trace.takeErrors(), Lines{complaint});
  // The last value of a size of 6 stands alone in its row: what follows it there is not read.
  EXPECT_EQ(parsed(withText(withText(goldenMessage(), 27, 42, " 6"), 32, 17, "Q")).parseStatus,
            vcm::kGood);

  // Rows that a text lacks are blanks; those that a file lacks are an error.
  Lines cut = goldenMessage();
  cut.resize(30);
  EXPECT_EQ(parsed(cut).parseStatus, vcm::kGood);
  EXPECT_EQ(vcm::Vcm2dTo1d(parsed(cut).covMtx)[15], 0.0);
  EXPECT_EQ(parsedFromFile(cut, vcm::CardType::multiLineHeader).parseStatus, vcm::kRejected);
  EXPECT_EQ(trace.takeRawErrors(),
            Lines{"ReadVCMFrFileUnit: Invalid line caused read error @ 'COVARIANCE MATRIX'."});
}

TEST(MultiLineParser, BareFormHasTheEciStateAlone) {
  Lines bare = bareForm(goldenMessage());
  putAt(bare[0], 1, "  satellite number:     1");
  const VcmRecord record = parsedFromFile(bare, vcm::CardType::bareFirstLine);
  VcmRecord expected = parsed(goldenMessage());
  EXPECT_EQ(record.parseStatus, vcm::kGood);
  EXPECT_EQ(record.satNum, 1);
  EXPECT_EQ(record.epoch, expected.epoch);
  EXPECT_EQ(record.eciVel, expected.eciVel);
  EXPECT_EQ(record.j2kPos, vcm::Vector3{});
  EXPECT_EQ(record.efgVel, vcm::Vector3{});
  EXPECT_EQ(record.wtdRms, expected.wtdRms);
  EXPECT_EQ(record.covMtx, expected.covMtx);
}

TEST(ConcatenatedText, IsCutInFrontOfItsMarks) {
  const auto cut = [](std::string_view text) {
    const vcm::ConcatenatedLines result = vcm::Concatenated2MultiLine(text);
    return Lines(result.lines().begin(), result.lines().end());
  };
  EXPECT_EQ(cut(""), Lines{});
  EXPECT_EQ(cut("no marks at all"), Lines{});
  EXPECT_EQ(cut("<> A<> B"), (Lines{"<> A", "<> B"}));
  EXPECT_EQ(cut("<> A   \n<> B  "), (Lines{"<> A   \n", "<> B  "}));
  EXPECT_EQ(cut("before <> A"), (Lines{"", "<> A"}));
  EXPECT_EQ(cut("<> A>B"), (Lines{"<> A", ">B"}));
  EXPECT_EQ(cut(" <> A"), (Lines{"<", "> A"}));
  EXPECT_EQ(cut("<> " + std::string(600, 'x')).at(0).size(), 512U);
  std::string many;
  for (int i = 0; i < 45; ++i) {
    many += "<> line";
  }
  EXPECT_EQ(cut(many).size(), 40U);

  // A whole message, in one string and with either kind of line end, is the same record.
  for (const char* const lineEnd : {"", "\n", "\r\n"}) {
    Lines padded = goldenMessage();
    for (std::string& line : padded) {
      line.resize(80, ' ');
    }
    const std::string text = joined(padded, lineEnd);
    const vcm::ConcatenatedLines lines = vcm::Concatenated2MultiLine(text);
    ASSERT_EQ(lines.count(), 36U);
    const VcmRecord record = vcm::MultiLine2Vcm(lines.lines());
    EXPECT_TRUE(vcm::equal(record, parsed(goldenMessage())));
    EXPECT_EQ(record.covMtx, parsed(goldenMessage()).covMtx);
  }
}

}  // namespace
