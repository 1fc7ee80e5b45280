#include "VCM/VcmCardReading/OneLineParser.h"

#include <gtest/gtest.h>

#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmFormats/OneLineLayout.h"
#include "support/Messages.h"
#include "support/TraceCapture.h"

using vcm::VcmRecord;

namespace {

std::string withText(int column, std::string_view text) {
  std::string line = goldenOneLine();
  putAt(line, column, text);
  return line;
}

TEST(OneLineParser, AgreesWithTheMultiLineFormOfTheSameMessage) {
  const VcmRecord one = vcm::Vcm1Line2Vcm(goldenOneLine());
  EXPECT_EQ(one.commonName.view().substr(0, 8), "OBJECT 1");
  EXPECT_EQ(one.covMtx, vcm::MultiLine2Vcm(views(goldenMessage())).covMtx);

  // As multi-line text they differ in the leap-second time alone.
  std::array<char, 4000> text;
  ASSERT_EQ(vcm::Vcm1Line2VcmLines(goldenOneLine(), text), 0);
  Lines expected = goldenMessage();
  expected[20] = "<> TIME CONST LEAP SECOND TIME (UTC): 2049 365 (31 DEC) 23:59:59.999";
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(vcm::withoutTrailingBlanks({text.data() + i * 80, 80}), expected[i]);
  }
}

// One row per rule that this form has for itself.
TEST(OneLineParser, Fields) {
  // clang-format off
  const struct {
    int column;
    std::string_view text;
    bool (*holds)(const VcmRecord&);
  } cases[] = {

      {18, " 5.123", [](auto& r) { return r.epoch.seconds == 5.123; }},
      {18, " 05123", [](auto& r) { return r.epoch.seconds == 5123.0; }},
      {343, "      ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {343, "NONE  ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {343, " NONE ", [](auto& r) { return r.geoName.view() == "NONE  "; }},
      {400, "     15      ", [](auto& r) { return r.bDot == 15.0; }},
      {400, "-0.529024E-10", [](auto& r) { return r.bDot == -0.529024e-10; }},
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
    const VcmRecord record = vcm::Vcm1Line2Vcm(withText(c.column, c.text));
    EXPECT_TRUE(record.parseStatus == vcm::kGood && c.holds(record)) << c.column << ": " << c.text;
  }
  EXPECT_EQ(trace.takeErrors(), Lines{});
}

TEST(OneLineParser, StatusIsThatOfTheValidation) {
  TraceCapture trace;
  EXPECT_EQ(vcm::Vcm1Line2Vcm(withText(7, "1942")).parseStatus, vcm::kRejected);
  EXPECT_EQ(trace.takeErrors(),
            Lines{" ValidateVcmValues: Invalid Year of Epoch =         1942 (valid >=1956)"});
  // An invalid line makes no text and no failure.
  std::array<char, 4000> text;
  EXPECT_EQ(vcm::Vcm1Line2VcmLines(std::string(1500, ' '), text), 0);
  EXPECT_TRUE(vcm::isAllBlank({text.data(), text.size()}));
}

// Fields, literals and the covariance do not overlap, and all lie within the line.
TEST(OneLineLayout, EachColumnHasOneOwner) {
  std::array<int, vcm::kOneLineWidth> owners{};
  const auto claim = [&](vcm::Column first, std::size_t width) {
    for (std::size_t i = first.index(); i < first.index() + width; ++i) {
      EXPECT_EQ(owners.at(i)++, 0) << "column " << i + 1;
    }
  };
  for (const vcm::Field& field : vcm::kOneLineFields) {
    claim(field.first, static_cast<std::size_t>(field.width));
  }
  for (const vcm::Literal& literal : vcm::kOneLineLiterals) {
    claim(literal.first, literal.text.size());
  }
  claim(vcm::kOneLineCovariance, std::size_t{45} * vcm::OneLineCovarianceFormat::width);
}

}  // namespace
