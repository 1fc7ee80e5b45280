#include <fstream>

#include "support/InterfaceStore.h"

namespace {

class TextConversions : public InterfaceStore {
 protected:
  static std::string oneLine(const std::string& text, int result = 0) {
    std::string line(VCM_ONE_LINE_LENGTH, '?');
    EXPECT_EQ(VcmMultiLineTo1Line(text.c_str(), line.data()), result);
    return line;
  }
  static std::string lines(const std::string& line) {
    std::string area(VCM_TEXT_LENGTH, '?');
    EXPECT_EQ(Vcm1LineToMultiLine(line.c_str(), area.data()), 0);
    return area;
  }
};

TEST_F(TextConversions, TheCatalogueInBothForms) {
  std::ifstream multi(VCM_SAMPLES_DIR "/catalogue.vcm"), one(VCM_SAMPLES_DIR "/catalogue.one");
  std::string line, row, next;
  for (int i = 0; i < 5; ++i) {
    std::getline(multi, next);
  }
  int count = 0;
  for (; std::getline(one, line); ++count) {
    EXPECT_TRUE(oneLine(line) == line) << line << "\na one-line message is written as it was";
    Lines message = {next};
    while (std::getline(multi, next) && !next.starts_with("<> SP VECTOR")) {
      message.push_back(next);
    }
    std::string nameless = line;
    putAt(nameless, 1465, std::string(25, ' '));
    EXPECT_TRUE(oneLine(joined(message)) == nameless) << line;
    message[4] = "<> COMMON NAME:";
    message[20].replace(38, 30, "2049 365 (31 DEC) 23:59:59.999");
    EXPECT_EQ(linesOf(lines(line)), message);
  }
  EXPECT_EQ(count, 300);
  EXPECT_EQ(trace_.takeErrors(), Lines{});
}

TEST_F(TextConversions, WhatHasNoPlaceInTheOneLineForm) {
  const Lines golden = goldenMessage();
  const std::string wide = oneLine(joined(withText(golden, 4, 22, "123456789")));
  EXPECT_EQ(wide.substr(0, 10), "***** 2028");
  Lines tai = withText(golden, 19, 16, "-.5");
  EXPECT_EQ(oneLine(joined(tai)).substr(478, 3), "  0");
  // Values past the covariance's dimension are written all the same, as zeros.
  Lines small(golden.begin(), golden.begin() + 28);
  putAt(small[26], 42, " 1");
  const std::string line = oneLine(joined(small));
  EXPECT_EQ(line.substr(668, 8), "( 1x 1) ");
  EXPECT_EQ(line.substr(688, 26), " -0.10719E-10  0.00000E+00");
  EXPECT_EQ(line.substr(1247, 26), "  0.00000E+00  0.00000E+00");
}

TEST_F(TextConversions, WhatOneFunctionWritesTheNextReads) {
  // Not a character is read behind an array that a function has filled.
  std::vector<char> line(VCM_ONE_LINE_LENGTH), again(VCM_ONE_LINE_LENGTH), area(VCM_TEXT_LENGTH);
  const std::int64_t key = addGolden();
  EXPECT_EQ(VcmGetLines(key, area.data()), 0);
  EXPECT_EQ(VcmMultiLineTo1Line(area.data(), line.data()), 0);
  EXPECT_EQ(VcmMultiLineTo1Line(line.data(), again.data()), 0);
  EXPECT_EQ(line, again);
  EXPECT_EQ(Vcm1LineToMultiLine(line.data(), area.data()), 0);
  EXPECT_EQ(VcmAddSatFrLines(line.data()), 0);
  EXPECT_EQ(VcmAddSatFrLines(area.data()), 0);
  Arrays arrays;
  EXPECT_EQ(VcmStringToArray(line.data(), arrays.numbers.data(), arrays.texts.data()), 0);
}

TEST_F(TextConversions, Failures) {
  const std::string blank(VCM_ONE_LINE_LENGTH, ' ');
  const std::string blankLines(VCM_TEXT_LENGTH, ' ');
  EXPECT_EQ(oneLine("", 2), blank);
  EXPECT_EQ(oneLine("<>\n<>", 2), blank);
  EXPECT_EQ(oneLine(joined(withText(goldenMessage(), 9, 4, "ECI P0S")), 2), blank);
  std::string invalid = goldenOneLine();
  putAt(invalid, 7, "1942");
  EXPECT_EQ(oneLine(invalid, 2), blank);
  EXPECT_EQ(lines(invalid), blankLines);
  EXPECT_EQ(lines(blank), blankLines);
  EXPECT_EQ(lines(""), blankLines);
  const std::string year = " ValidateVcmValues: Invalid Year of Epoch = ";
  const std::string day = " ValidateVcmValues: Invalid Day of Epoch =            0 (valid 1-366)";
  EXPECT_EQ(trace_.takeErrors(),
            (Lines{"AnyVcmStrings2Vcm: Invalid concatenated vcm string.",
                   "AnyVcmStrings2Vcm: Number of vcm records needs to be at least 27.",
                   "MultiLine2Vcm: Invalid line caused read error @ 'ECI POS'.",
                   year + "        1942 (valid >=1956)", year + "        1942 (valid >=1956)",
                   year + "           0 (valid >=1956)", day, year + "           0 (valid >=1956)",
                   day}));
  std::string area(VCM_TEXT_LENGTH, '?');
  EXPECT_EQ(VcmGetLines(123, area.data()), 2);
  EXPECT_EQ(area, blankLines);
  EXPECT_EQ(trace_.takeErrors(), unknownKey("VcmGetLines", "                123"));
}

}  // namespace
