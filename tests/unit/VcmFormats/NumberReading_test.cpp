#include "VCM/VcmFormats/NumberReading.h"

#include <gtest/gtest.h>

#include <bit>

namespace {

constexpr double kUntouched = 4711.0;

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

TEST(NumberReading, Reals) {
  // clang-format off
  const struct {
    std::string_view text;
    double value;
    int impliedDecimals = 0;
  } good[] = {
      {"  -11044.90753274", -11044.90753274, 8}, {"1234567", 123.4567, 4}, {"1234567.", 1234567.0, 4}, {"5", 5e-8, 8},
      {".5", 0.5}, {"-.123456E+02", -12.3456, 10}, {"+7", 7.0}, {"-0.0", -0.0},
      // an exponent is read as written, whatever its letter
      {"12E2", 1200.0, 6}, {"1.5D+03", 1500.0}, {"1.5d3", 1500.0}, {"1.5e-3", 0.0015}, {"1.5-3", 0.0015}, {"15+2", 1500.0, 3},
      {"", 0.0, 3}, {"      ", 0.0, 3}, {" \t\r\n", 0.0, 3}, {std::string_view("\0\0", 2), 0.0, 3},
      {"1 2. 5", 12.5}, {"- 5", -5.0}, {"1.5 E - 0 3", 0.0015},
      {"1.7976931348623157E308", 1.7976931348623157e308}, {"0E99999999999999999999", 0.0}, {"4.9E-324", 4.9e-324},
      {"1E-400", 0.0}, {"-1E-99999999999999999999", -0.0}};
  const std::string_view bad[] = {
      "-", "*************", "12x", "1.2.3", ".", "E5", "1E", "1E+", "1E5.0", "--1", "NaN", "Inf", "0x10", "1E309",
      "1E99999999999999999999"};
  // clang-format on
  for (const auto& [text, expected, impliedDecimals] : good) {
    double value = kUntouched;
    EXPECT_TRUE(vcm::readReal(text, impliedDecimals, value)) << text;
    EXPECT_EQ(bitsOf(value), bitsOf(expected)) << '"' << text << "\" gave " << value;
  }
  for (const std::string_view text : bad) {
    double value = kUntouched;
    EXPECT_FALSE(vcm::readReal(text, 0, value)) << text;
    EXPECT_EQ(value, kUntouched) << text;
  }
}

TEST(NumberReading, IntegersWithin32Bits) {
  std::int32_t value = 4711;
  for (const std::string_view text : {"2147483648", "-2147483649", "99999999999999999999999"}) {
    EXPECT_FALSE(vcm::readInteger(text, value)) << text;
    EXPECT_EQ(value, 4711) << text;
  }
  const std::pair<std::string_view, std::int32_t> good[] = {
      {"2147483647", INT32_MAX}, {"-2147483648", INT32_MIN}, {"00000000000000000000012", 12}};
  for (const auto& [text, expected] : good) {
    EXPECT_TRUE(vcm::readInteger(text, value)) << text;
    EXPECT_EQ(value, expected) << text;
  }
}

TEST(NumberReading, Lists) {
  std::string_view list = "  0.1E+01 -2.5\t3 nonsense 4";
  double value = 0.0;
  for (const double expected : {1.0, -2.5, 3.0}) {
    ASSERT_TRUE(vcm::readListed(list, value));
    EXPECT_EQ(value, expected);
  }
  EXPECT_FALSE(vcm::readListed(list, value));
  EXPECT_EQ(value, 3.0);
  EXPECT_FALSE(vcm::readListed(list = "   ", value));
}

}  // namespace
