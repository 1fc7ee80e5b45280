#include "DllExports/VCM/VcmDllVarsUtils/LineExpansion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "support/Messages.h"

namespace {

Lines expanded(const std::string& input) {
  const TemporaryFile in(input), out("what was there before");
  std::string backslashed = out.path();
  std::replace(backslashed.begin(), backslashed.end(), '/', '\\');
  EXPECT_EQ(vcm::Vcm1LineToMany(in.path() + "   ", backslashed), 0);
  std::istringstream text(readFile(out.path()));
  Lines lines;
  for (std::string line; std::getline(text, line);) {
    lines.push_back(line);
  }
  return lines;
}

std::string padded(std::string line) {
  line.resize(69, ' ');
  return line;
}

TEST(LineExpansion, FullForm) {
  // The multi-line message of the same satellite, but for the columns that are taken as they stand.
  Lines expected = goldenMessage();
  expected[2] = "<> MESSAGE TIME (UTC):" + std::string(34, ' ') + "CENTER:";
  expected[3] = "<> SATELLITE NUMBER:     1                    INT. DES.:  89-021F    ";
  expected[4] = "<> COMMON NAME: BJECT 1                  ";
  expected[14] = "<> BALLISTIC COEF (M2/KG):  0.112473E-02 BDOT (M2/KG-S): 0.731905E-10";
  expected[15] = "<> SOLAR RAD PRESS COEFF (M2/KG):  0.358704E-02  EDR(W/KG):  0.39E-03";
  expected[20] = "<> TIME CONST LEAP SECOND TIME (UTC): 2049 365 (31 DEC) 23:59:59.999";
  for (std::size_t i = 3; i < 27; ++i) {
    expected[i] = i == 4 ? expected[i] : padded(expected[i]);
  }
  EXPECT_EQ(expanded(goldenOneLine() + "\n"), expected);
  // One message a line, whatever it holds, also without an end.
  const Lines two = expanded("x\r\n" + goldenOneLine());
  EXPECT_EQ(two.size(), 27U + 36U);
  EXPECT_EQ(two[3], padded("<> SATELLITE NUMBER: x                        INT. DES.:"));
}

TEST(LineExpansion, ShortForm) {
  std::string line = goldenOneLine();
  putAt(line, 518, std::string(84, '#'));
  const Lines lines = expanded(line);
  ASSERT_EQ(lines.size(), 23U + 9U);
  EXPECT_EQ(lines[0], "<> SP VECTOR/COVARIANCE MESSAGE");
  EXPECT_EQ(lines[2], "<> MESSAGE PREPARATION TIME:" + std::string(28, ' ') + "CENTER:");
  EXPECT_EQ(lines[5], padded("<> EPOCH TIME (UTC): 2028 206 12 04 31.384    EPOCH REV:  5513"));
  EXPECT_EQ(lines[15], padded("<> SOLAR RAD PRESS COEFF (M2/KG):  0.358704E-02"));
  EXPECT_EQ(lines[20].substr(0, 13), "<> VECTOR U,V");
  putAt(line, 601, " ");
  EXPECT_EQ(expanded(line).size(), 27U + 9U);
}

// The date of a day below 1 is that of the message before; the century is not looked at.
TEST(LineExpansion, Dates) {
  std::string input;
  for (const char* const epoch :
       {"2024000", "2024060", "2023060", "2100060", "1999-12", "2023366", "20x3 1 "}) {
    std::string line = goldenOneLine();
    putAt(line, 7, epoch);
    input += line + "\n";
  }
  const Lines lines = expanded(input);
  Lines dates;
  for (std::size_t i = 5; i < lines.size(); i += 36) {
    dates.push_back(lines[i].substr(30, 8));
  }
  EXPECT_EQ(dates, (Lines{"(      )", "(29 FEB)", "(01 MAR)", "(29 FEB)", "(29 FEB)", "(32 DEC)",
                          "(01 JAN)"}));
}

// They end at the first without a point in its fourth column; there are no more than 12.
TEST(LineExpansion, CovarianceRows) {
  std::string line = goldenOneLine();
  putAt(line, 1274, std::string(227, '7'));
  EXPECT_EQ(expanded(line).size(), 27U + 12U);
  putAt(line, 689 + 65 * 2, std::string(65, ' '));
  EXPECT_EQ(expanded(line).size(), 27U + 2U);
}

}  // namespace
