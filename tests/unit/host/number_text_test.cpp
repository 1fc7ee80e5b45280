#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "Host/HostCore.h"
#include "host/HostTrace.h"

namespace {

// Collects the error trace while a test runs.
class NumberText : public testing::Test {
 protected:
  void SetUp() override { hosttracesink(collect, &lines_); }
  void TearDown() override { hosttracesink(nullptr, nullptr); }

  std::vector<std::string> takeLines() { return std::exchange(lines_, {}); }

  static std::int32_t integer(const std::string& text) {
    const auto length = static_cast<std::int32_t>(text.size());
    return strtoint(text.data(), &length);
  }
  static double real(const std::string& text) {
    const auto length = static_cast<std::int32_t>(text.size());
    return strtoreal(text.data(), &length);
  }

 private:
  static void collect(std::int32_t isError, const char* text, std::int32_t length, void* lines) {
    EXPECT_NE(isError, 0);
    static_cast<std::vector<std::string>*>(lines)->emplace_back(text,
                                                                static_cast<std::size_t>(length));
  }

  std::vector<std::string> lines_;
};

const std::string kNul(1, '\0');

TEST_F(NumberText, ReadableIntegers) {
  const std::pair<std::string, std::int32_t> table[] = {
      {"", 0},
      {"    ", 0},
      {" \t\r\n", 0},
      {"12", 12},
      {" 1 2 ", 12},
      {"+12", 12},
      {"- 12", -12},
      {"007", 7},
      {"12" + kNul + "x", 12},
      {"2147483647", 2147483647},
      {"-2147483648", std::numeric_limits<std::int32_t>::min()},
      {"12" + std::string(500, ' '), 12}};
  for (const auto& [text, expected] : table) {
    EXPECT_EQ(integer(text), expected) << text;
    EXPECT_TRUE(takeLines().empty()) << text;
  }
}

TEST_F(NumberText, UnreadableIntegers) {
  for (const std::string text : {"12x", "x", "+", "-", "+-5", "--5", "1.0", "1.", "1e3", "0x10",
                                 "2147483648", "-2147483649", "99999999999999999999"}) {
    EXPECT_EQ(integer(" " + text + "  "), 0) << text;
    EXPECT_EQ(takeLines(), std::vector{"strtoint: Cannot read \"" + text + "\" as an integer."});
  }
}

TEST_F(NumberText, ReadableReals) {
  const std::pair<std::string, double> table[] = {
      {"", 0},
      {"   ", 0},
      {kNul + "5", 0},
      {"1", 1},
      {"-1.5", -1.5},
      {"+.5", .5},
      {"5.", 5},
      {"1 . 5", 1.5},
      {"1.5E3", 1500},
      {"1.5e+03", 1500},
      {"1.5D-3", .0015},
      {"1.5d3", 1500},
      {"1.5-3", .0015},
      {"15+2", 1500},
      {"1.5 E 3", 1500},
      {"0.1", 0.1},
      {"123456789012345678901234567890", 123456789012345678901234567890.0},
      {"1.7976931348623157E308", 1.7976931348623157E308},
      {"4.9E-324", 4.9E-324},
      {"1E-400", 0},
      {"0.0001E-99999999999999999999", 0},
      {"0E99999999999999999999", 0},
      {"0." + std::string(400, '0') + "1E401", 1},
      {"1" + std::string(400, '0') + "E-400", 1},
      {"0." + std::string(400, '0') + "1", 0}};
  for (const auto& [text, expected] : table) {
    EXPECT_EQ(real(text), expected) << text;
    EXPECT_TRUE(takeLines().empty()) << text;
  }
  EXPECT_TRUE(std::signbit(real("-0.0")));
}

TEST_F(NumberText, UnreadableReals) {
  for (const std::string text :
       {"abc", ".", "+", "-.", "E5", "1E", "1E+", "1+", "1EE5", "1.2.3", "1,5", "NaN", "inf",
        "-Infinity", "1e309", "-1E400", "0x1p3", "1E99999999999999999999", "1.5-3-"}) {
    EXPECT_EQ(real(text), 0) << text;
    EXPECT_EQ(takeLines(),
              std::vector{"strtoreal: Cannot read \"" + text + "\" as a real number."});
  }
}

TEST_F(NumberText, RefusalIsOneShortLine) {
  EXPECT_EQ(integer("\r\n a\nb\tc" + std::string(600, 'x')), 0);
  EXPECT_EQ(takeLines(), std::vector{"strtoint: Cannot read \"a b c" + std::string(35, 'x') +
                                     "...\" as an integer."});
}

}  // namespace
