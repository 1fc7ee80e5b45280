#include <fstream>

#include "support/InterfaceStore.h"

namespace {

class TextConversions : public InterfaceStore {
 protected:
  static std::string toLines(const std::string& line) {
    return written<Vcm1LineToMultiLine, VCM_TEXT_LENGTH>(0, line.c_str());
  }
};

TEST_F(TextConversions, TheCatalogueInBothForms) {
  std::ifstream multi(VCM_SAMPLES_DIR "/catalogue.vcm"), one(VCM_SAMPLES_DIR "/catalogue.one");
  std::string line, next;
  for (int i = 0; i < 5; ++i) {
    std::getline(multi, next);
  }
  int count = 0;
  for (; std::getline(one, line); ++count) {
    EXPECT_TRUE(toOneLine(line) == line) << line << "\na one-line message is written as it was";
    Lines message = {next};
    while (std::getline(multi, next) && !next.starts_with("<> SP VECTOR")) {
      message.push_back(next);
    }
    std::string nameless = line;
    putAt(nameless, 1465, blanks(25));
    EXPECT_TRUE(toOneLine(joined(message)) == nameless) << line;
    message[4] = "<> COMMON NAME:";
    putAt(message[20], 39, "2049 365 (31 DEC) 23:59:59.999");
    EXPECT_EQ(linesOf(toLines(line)), message);
  }
  EXPECT_EQ(count, 300);
  EXPECT_EQ(trace_.takeErrors(), Lines{});
}

TEST_F(TextConversions, WhatHasNoPlaceInTheOtherForm) {
  // Values past the covariance's dimension are written all the same, as zeros.
  Lines small = goldenMessage();
  small.resize(28);
  putAt(small[26], 42, " 1");
  const std::string line = toOneLine(joined(small));
  EXPECT_EQ(line.substr(668, 8), "( 1x 1) ");
  EXPECT_EQ(line.substr(688, 26), " -0.10719E-10  0.00000E+00");
  EXPECT_EQ(line.substr(1247, 26), "  0.00000E+00  0.00000E+00");
  // A one-line message outside its limits makes no lines, which is no failure.
  std::string invalid = goldenOneLine();
  putAt(invalid, 7, "1942");
  EXPECT_EQ(toLines(invalid), blanks(VCM_TEXT_LENGTH));
  EXPECT_EQ(toLines(""), blanks(VCM_TEXT_LENGTH));
  EXPECT_EQ(trace_.takeErrors(),
            (Lines{" ValidateVcmValues: Invalid Year of Epoch =         1942 (valid >=1956)",
                   " ValidateVcmValues: Invalid Year of Epoch =            0 (valid >=1956)",
                   " ValidateVcmValues: Invalid Day of Epoch =            0 (valid 1-366)"}));
}

}  // namespace
