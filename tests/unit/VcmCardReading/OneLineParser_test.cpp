#include "VCM/VcmCardReading/OneLineParser.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/Covariance.h"
#include "support/Messages.h"
#include "support/TraceCapture.h"

using vcm::VcmRecord;

namespace {

TEST(OneLineParser, AgreesWithTheMultiLineFormOfTheSameMessage) {
  const VcmRecord one = vcm::Vcm1Line2Vcm(goldenOneLine());
  VcmRecord multi = vcm::MultiLine2Vcm(views(goldenMessage()));
  EXPECT_EQ(one.commonName.view().substr(0, 8), "OBJECT 1");
  EXPECT_EQ(one.leapSecondTime, (vcm::InputDate{2049, 365, 23, 59, 59.999}));
  EXPECT_EQ(one.intlDes, multi.intlDes);
  EXPECT_EQ(one.covMtx, multi.covMtx);

  // As multi-line text they differ in the leap-second time alone.
  std::array<char, 4000> text;
  ASSERT_EQ(vcm::Vcm1Line2VcmLines(goldenOneLine(), text), 0);
  const Lines golden = goldenMessage();
  for (std::size_t i = 0; i < golden.size(); ++i) {
    std::string line(text.data() + i * 80, 80);
    line.erase(line.find_last_not_of(' ') + 1);
    EXPECT_EQ(line, i == 20 ? "<> TIME CONST LEAP SECOND TIME (UTC): 2049 365 (31 DEC) 23:59:59.999"
                            : golden[i]);
  }
}

TEST(OneLineParser, Fields) {
  // clang-format off
  const struct {
    const char* what;
    int column;
    std::string_view text;
    std::function<bool(const VcmRecord&)> holds;
  } cases[] = {
      {"leading blank in the seconds", 18, " 5.123", [](auto& r) { return r.epoch.seconds == 5.123; }},
      {"leading zero in the seconds", 18, "05.123", [](auto& r) { return r.epoch.seconds == 5.123; }},
      {"seconds without a point", 18, " 05123", [](auto& r) { return r.epoch.seconds == 5123.0; }},
      {"blank geopotential", 343, "      ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {"NONE", 343, "NONE  ", [](auto& r) { return r.geoName.view() == "2-BODY"; }},
      {"NONE that begins late", 343, " NONE ", [](auto& r) { return r.geoName.view() == "NONE  "; }},
      {"free-form bDot", 400, "  1.5E-10    ", [](auto& r) { return r.bDot == 1.5e-10; }},
      {"bDot without a point has no implied one", 400, "     15      ", [](auto& r) { return r.bDot == 15.0; }},
      {"bDot that fills its columns", 400, "-0.529024E-10", [](auto& r) { return r.bDot == -0.529024e-10; }},
      {"asterisks", 414, "*************", [](auto& r) { return r.agom == 0.0 && r.edr == 0.39e-3; }},
      {"implied decimals of agom", 414, "       358704", [](auto& r) { return r.agom == 358704e-10; }},
      {"TAI-UTC with a fraction", 479, "3.5", [](auto& r) { return r.taiMinusUtc == 3.5; }},
      {"rate in milliseconds", 492, "-0.123", [](auto& r) { return r.ut1Rate == -0.123 * 0.001; }},
      {"size that no matrix has", 670, "10", [](auto& r) { return r.covMtxSize == 0 && r.covMtx == vcm::CovarianceMatrix{}; }},
      {"second size is not read", 673, " 3", [](auto& r) { return r.covMtxSize == 9; }},
      {"list that ends early", 794, std::string_view("nonsense"), [](auto& r) { return vcm::Vcm2dTo1d(r.covMtx)[7] != 0.0 && vcm::Vcm2dTo1d(r.covMtx)[8] == 0.0; }},
      {"designator without its hyphen", 1492, "98?067A  ", [](auto& r) { return r.intlDes.view() == "98067A  "; }},
  };
  // clang-format on
  TraceCapture trace;
  for (const auto& c : cases) {
    std::string line = goldenOneLine();
    putAt(line, c.column, c.text);
    const VcmRecord record = vcm::Vcm1Line2Vcm(line);
    EXPECT_EQ(record.parseStatus, vcm::kGood) << c.what;
    EXPECT_TRUE(c.holds(record)) << c.what;
    EXPECT_TRUE(trace.takeErrors().empty()) << c.what;
  }
}

TEST(OneLineParser, CovarianceSizes) {
  const vcm::CovarianceTriangle all = vcm::Vcm2dTo1d(vcm::Vcm1Line2Vcm(goldenOneLine()).covMtx);
  for (int size = 0; size <= 9; ++size) {
    std::string line = goldenOneLine();
    putAt(line, 671, std::to_string(size));
    vcm::CovarianceTriangle expected{};
    std::copy_n(all.begin(), vcm::covarianceValueCount(size), expected.begin());
    EXPECT_EQ(vcm::Vcm2dTo1d(vcm::Vcm1Line2Vcm(line).covMtx), expected) << size;
  }
}

TEST(OneLineParser, StatusIsThatOfTheValidation) {
  TraceCapture trace;
  std::string line = goldenOneLine();
  putAt(line, 7, "1942");
  EXPECT_EQ(vcm::Vcm1Line2Vcm(line).parseStatus, vcm::kRejected);
  EXPECT_EQ(trace.takeErrors(),
            Lines{" ValidateVcmValues: Invalid Year of Epoch =         1942 (valid >=1956)"});

  // An invalid line makes no text and no failure.
  std::array<char, 4000> text;
  EXPECT_EQ(vcm::Vcm1Line2VcmLines(std::string(1500, ' '), text), 0);
  EXPECT_TRUE(vcm::isAllBlank({text.data(), text.size()}));
}

// A line may end anywhere: what is missing is blank.
TEST(OneLineParser, ShortLines) {
  const TraceCapture trace;
  const std::string whole = goldenOneLine();
  for (std::size_t length = 0; length < whole.size(); length += 7) {
    std::string padded = whole.substr(0, length);
    padded.resize(1500, ' ');
    const VcmRecord cut = vcm::Vcm1Line2Vcm(std::string_view(whole).substr(0, length));
    const VcmRecord filled = vcm::Vcm1Line2Vcm(padded);
    ASSERT_EQ(cut.parseStatus, filled.parseStatus) << length;
    ASSERT_TRUE(vcm::equal(cut, filled)) << length;
    ASSERT_EQ(cut.covMtx, filled.covMtx) << length;
    ASSERT_EQ(cut.intlDes, filled.intlDes) << length;
  }
}

// Fields, literals and the covariance do not overlap, and all lie within the line.
TEST(OneLineLayout, EachColumnHasOneOwner) {
  std::array<int, vcm::kOneLineWidth> owners{};
  const auto claim = [&](vcm::Column first, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
      ++owners.at(first.index() + i);
    }
  };
  for (const vcm::Field& field : vcm::kOneLineFields) {
    claim(field.first, static_cast<std::size_t>(field.width));
  }
  for (const vcm::Literal& literal : vcm::kOneLineLiterals) {
    claim(literal.first, literal.text.size());
  }
  claim(vcm::kOneLineCovariance, std::size_t{45} * vcm::OneLineCovarianceFormat::width);
  for (std::size_t i = 0; i < owners.size(); ++i) {
    EXPECT_LE(owners[i], 1) << "column " << i + 1;
  }
}

}  // namespace
