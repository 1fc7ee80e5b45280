#include "VCM/VcmFormats/NumberReading.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr double kUntouched = 4711.0;

struct RealCase {
  std::string_view text;
  int impliedDecimals;
  double value;  // kUntouched: unreadable
};

TEST(NumberReading, Reals) {
  const RealCase cases[] = {
      // points and implied decimals
      {"  -11044.90753274", 8, -11044.90753274},
      {"1234567", 4, 123.4567},
      {"1234567.", 4, 1234567.0},
      {"5", 8, 5e-8},
      {".5", 0, 0.5},
      {"-.123456E+02", 10, -12.3456},
      {"+7", 0, 7.0},
      // an exponent is read as written, whatever its letter
      {"12E2", 6, 1200.0},
      {"1.5D+03", 0, 1500.0},
      {"1.5d3", 0, 1500.0},
      {"1.5e-3", 0, 0.0015},
      {"1.5-3", 0, 0.0015},
      {"15+2", 3, 1500.0},
      // blanks of every kind
      {"", 3, 0.0},
      {"      ", 3, 0.0},
      {" \t\r\n", 3, 0.0},
      {std::string_view("\0\0", 2), 3, 0.0},
      {"1 2. 5", 0, 12.5},
      {"- 5", 0, -5.0},
      {"1.5 E - 0 3", 0, 0.0015},
      {"-0.0", 0, -0.0},
      {"-", 0, kUntouched},
      // no numbers
      {"*************", 0, kUntouched},
      {"12x", 0, kUntouched},
      {"1.2.3", 0, kUntouched},
      {".", 0, kUntouched},
      {"E5", 0, kUntouched},
      {"1E", 0, kUntouched},
      {"1E+", 0, kUntouched},
      {"1E5.0", 0, kUntouched},
      {"--1", 0, kUntouched},
      {"NaN", 0, kUntouched},
      {"Inf", 0, kUntouched},
      {"0x10", 0, kUntouched},
      // the ends of the range
      {"1.7976931348623157E308", 0, 1.7976931348623157e308},
      {"1E309", 0, kUntouched},
      {"1E99999999999999999999", 0, kUntouched},
      {"0E99999999999999999999", 0, 0.0},
      {"4.9E-324", 0, 4.9e-324},
      {"1E-400", 0, 0.0},
      {"-1E-99999999999999999999", 0, -0.0},
  };
  for (const RealCase& c : cases) {
    double value = kUntouched;
    EXPECT_EQ(vcm::readReal(c.text, c.impliedDecimals, value), c.value != kUntouched) << c.text;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(c.value))
        << '"' << c.text << "\" gave " << value;
  }
}

TEST(NumberReading, Integers) {
  const struct {
    std::string_view text;
    bool good;
    std::int32_t value;
  } cases[] = {
      {"  123", true, 123},
      {"", true, 0},
      {"   ", true, 0},
      {"1 2 3", true, 123},
      {"-42", true, -42},
      {"+42", true, 42},
      {"2147483647", true, 2147483647},
      {"-2147483648", true, INT32_MIN},
      {"2147483648", false, 0},
      {"-2147483649", false, 0},
      {"99999999999999999999999", false, 0},
      {"00000000000000000000012", true, 12},
      {"1.", false, 0},
      {"1E3", false, 0},
      {"-", false, 0},
      {"*****", false, 0},
  };
  for (const auto& c : cases) {
    std::int32_t value = 4711;
    EXPECT_EQ(vcm::readInteger(c.text, value), c.good) << c.text;
    EXPECT_EQ(value, c.good ? c.value : 4711) << c.text;
  }
}

TEST(NumberReading, Lists) {
  const std::string_view text = "  0.1E+01 -2.5\t3 nonsense 4";
  std::string_view list = text;
  double value = 0.0;
  for (const double expected : {1.0, -2.5, 3.0}) {
    ASSERT_TRUE(vcm::readListed(list, value));
    EXPECT_EQ(value, expected);
  }
  EXPECT_FALSE(vcm::readListed(list, value));
  EXPECT_EQ(value, 3.0);
  std::string_view blank = "   ";
  EXPECT_FALSE(vcm::readListed(blank, value));
}

// The short way through exact powers of ten and the long way must not differ from the standard
// library by a bit.
TEST(NumberReading, SameBitsAsFromChars) {
  constexpr std::uint64_t kSeed = 20281206;
  std::mt19937_64 random(kSeed);
  const auto check = [](const std::string& text) {
    double expected = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), expected);
    if (result.ec != std::errc()) {
      return;
    }
    double value = kUntouched;
    ASSERT_TRUE(vcm::readReal(text, 0, value)) << text;
    ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected)) << text;
  };
  for (int i = 0; i < 200'000; ++i) {
    // Random bits as scientific text of random length, and random decimals.
    const auto bits = std::bit_cast<double>(random());
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, bits, std::chars_format::scientific,
                                   static_cast<int>(random() % 24))
                         .ptr;
    if (std::isfinite(bits)) {
      check(std::string(text, end));
    }
    std::string decimal = std::to_string(random() >> (random() % 64));
    decimal.insert(random() % (decimal.size() + 1), ".");
    check(decimal);
    check(decimal + "e" + std::to_string(static_cast<int>(random() % 60) - 30));
  }
}

}  // namespace
