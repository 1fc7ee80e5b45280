#include "VCM/VcmFormats/NumberWriting.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "VCM/VcmFormats/NumberReading.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

template <class Write, class... Arguments>
std::string written(Write write, int width, Arguments... arguments) {
  std::string text(static_cast<std::size_t>(width), '?');
  write(text.data(), width, arguments...);
  return text;
}

TEST(NumberWriting, Fixed) {
  const struct {
    double value;
    int width;
    int decimals;
    std::string_view text;
  } cases[] = {
      {-11044.90753274, 16, 8, " -11044.90753274"},
      {1.0e9, 16, 8, "****************"},
      {999999.99999999, 16, 8, " 999999.99999999"},
      {9999999.999999999, 16, 8, "****************"},  // rounds up to a digit more
      {0.308, 6, 3, " 0.308"},
      {-0.308, 6, 3, "-0.308"},
      {-0.308, 5, 3, "-.308"},  // the zero gives way
      {0.308, 4, 3, ".308"},
      {-0.308, 4, 3, "****"},
      {-1.308, 5, 3, "*****"},
      {0.5, 3, 0, "  0"},  // ties to even, of the exact value
      {1.5, 3, 0, "  2"},
      {2.675, 6, 2, "  2.67"},
      {0.00001, 7, 4, " 0.0000"},
      {-0.00001, 7, 4, "-0.0000"},
      {-0.0, 7, 4, "-0.0000"},
      {kNan, 6, 3, "   NaN"},
      {-kNan, 6, 3, "   NaN"},
      {kInfinity, 6, 3, "******"},
      {-kInfinity, 6, 3, "******"},
      {1e300, 16, 8, "****************"},
      {5e-324, 8, 5, " 0.00000"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(written(vcm::writeFixed, c.width, c.decimals, c.value), c.text) << c.value;
  }
}

TEST(NumberWriting, Scientific) {
  const struct {
    double value;
    int width;
    int digits;
    std::string_view text;
  } cases[] = {
      {0.0001234, 13, 6, " 0.123400E-03"},
      {-0.529024e-10, 13, 6, "-0.529024E-10"},
      {-0.529024e-10, 12, 6, "-.529024E-10"},
      {-12.3456, 12, 6, "-.123456E+02"},
      {-0.529024e-10, 11, 6, "***********"},
      {12.8280, 12, 5, " 0.12828E+02"},
      {0.265e-13, 9, 3, "0.265E-13"},
      {-0.265e-13, 9, 3, "-.265E-13"},
      {0.0, 13, 6, " 0.000000E+00"},
      {-0.0, 13, 6, "-0.000000E+00"},
      {0.9999996, 13, 6, " 0.100000E+01"},
      {0.09999996, 13, 6, " 0.100000E+00"},
      {1e98, 9, 2, " 0.10E+99"},
      {1e99, 9, 2, "*********"},  // an exponent of three digits
      {1e-100, 9, 2, " 0.10E-99"},
      {1e-101, 9, 2, "*********"},
      {9.9999e98, 9, 2, "*********"},  // rounds up to one
      {kNan, 9, 2, "      NaN"},
      {kInfinity, 9, 2, "*********"},
      {5.0, 8, 1, "  0.5E+01"},
  };
  for (const auto& c : cases) {
    const int width = static_cast<int>(c.text.size());
    EXPECT_EQ(written(vcm::writeScientific, width, c.digits, c.value), c.text) << c.value;
  }
}

TEST(NumberWriting, Integers) {
  EXPECT_EQ(written(vcm::writeInteger, 5, 42), "   42");
  EXPECT_EQ(written(vcm::writeInteger, 5, -9999), "-9999");
  EXPECT_EQ(written(vcm::writeInteger, 5, 100000), "*****");
  EXPECT_EQ(written(vcm::writeInteger, 3, -100), "***");
  EXPECT_EQ(written(vcm::writeInteger, 2, 0), " 0");
  EXPECT_EQ(written(vcm::writeZeroFilled, 3, 6), "006");
  EXPECT_EQ(written(vcm::writeZeroFilled, 3, 1000), "***");
  EXPECT_EQ(written(vcm::writeZeroFilled, 3, -6), "***");
}

TEST(NumberWriting, TruncationSaturates) {
  EXPECT_EQ(vcm::truncated(36.9), 36);
  EXPECT_EQ(vcm::truncated(-0.5), 0);
  EXPECT_EQ(vcm::truncated(-36.9), -36);
  EXPECT_EQ(vcm::truncated(1e300), INT32_MAX);
  EXPECT_EQ(vcm::truncated(-kInfinity), INT32_MIN);
  EXPECT_EQ(vcm::truncated(kNan), 0);
}

// What is written reads back to the nearest double that the field's digits can say.
TEST(NumberWriting, ReadsBackWithinHalfADigit) {
  constexpr std::uint64_t kSeed = 4;
  std::mt19937_64 random(kSeed);
  std::uniform_real_distribution<double> position(-99999.0, 99999.0);
  for (int i = 0; i < 100'000; ++i) {
    const double value = position(random);
    const std::string fixed = written(vcm::writeFixed, 16, 8, value);
    double back = 0.0;
    ASSERT_TRUE(vcm::readReal(fixed, 8, back)) << fixed;
    ASSERT_NEAR(back, value, 0.502e-8) << fixed;
    ASSERT_EQ(written(vcm::writeFixed, 16, 8, back), fixed);
    const std::string scientific = written(vcm::writeScientific, 13, 6, value);
    ASSERT_TRUE(vcm::readReal(scientific, 10, back)) << scientific;
    ASSERT_NEAR(back / value, 1.0, 5.1e-6) << scientific;
    ASSERT_EQ(written(vcm::writeScientific, 13, 6, back), scientific);
  }
}

}  // namespace
