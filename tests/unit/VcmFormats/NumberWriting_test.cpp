#include "VCM/VcmFormats/NumberWriting.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

template <class Write, class... Arguments>
std::string written(Write write, std::size_t width, Arguments... arguments) {
  std::string text(width, '?');
  write(text.data(), static_cast<int>(width), arguments...);
  return text;
}

// A number, its decimals or digits, and its text, as long as the field.
struct RealCase {
  double value;
  int digits;
  std::string_view text;
};

TEST(NumberWriting, Fixed) {
  // clang-format off
  const RealCase cases[] = {
      {-11044.90753274, 8, " -11044.90753274"}, {1.0e9, 8, "****************"}, {1e300, 8, "****************"},
      {999999.99999999, 8, " 999999.99999999"}, {9999999.999999999, 8, "****************"},  // rounds up to a digit more
      {0.308, 3, " 0.308"}, {-0.308, 3, "-0.308"}, {-1.308, 3, "*****"},
      {-0.308, 3, "-.308"}, {0.308, 3, ".308"}, {-0.308, 3, "****"},  // the zero gives way
      {0.5, 0, "  0"}, {1.5, 0, "  2"}, {2.675, 2, "  2.67"},  // ties to even, of the exact value
      {0.00001, 4, " 0.0000"}, {-0.00001, 4, "-0.0000"}, {-0.0, 4, "-0.0000"}, {5e-324, 5, " 0.00000"},
      {kNan, 3, "   NaN"}, {-kNan, 3, "   NaN"}, {kInfinity, 3, "******"}, {-kInfinity, 3, "******"}};
  // clang-format on
  for (const auto& [value, decimals, text] : cases) {
    EXPECT_EQ(written(vcm::writeFixed, text.size(), decimals, value), text) << value;
  }
}

TEST(NumberWriting, Scientific) {
  // clang-format off
  const RealCase cases[] = {
      {0.0001234, 6, " 0.123400E-03"}, {-0.529024e-10, 6, "-0.529024E-10"}, {-0.529024e-10, 6, "-.529024E-10"},
      {-12.3456, 6, "-.123456E+02"}, {-0.529024e-10, 6, "***********"}, {12.8280, 5, " 0.12828E+02"},
      {0.265e-13, 3, "0.265E-13"}, {-0.265e-13, 3, "-.265E-13"}, {5.0, 1, "  0.5E+01"}, {0.0, 6, " 0.000000E+00"},
      {-0.0, 6, "-0.000000E+00"}, {0.9999996, 6, " 0.100000E+01"}, {0.09999996, 6, " 0.100000E+00"},
      {1e98, 2, " 0.10E+99"}, {1e99, 2, "*********"}, {9.9999e98, 2, "*********"},  // no room for three digits
      {1e-100, 2, " 0.10E-99"}, {1e-101, 2, "*********"}, {kNan, 2, "      NaN"}, {kInfinity, 2, "*********"}};
  // clang-format on
  for (const auto& [value, digits, text] : cases) {
    EXPECT_EQ(written(vcm::writeScientific, text.size(), digits, value), text) << value;
  }
}

TEST(NumberWriting, Integers) {
  // clang-format off
  const std::tuple<decltype(&vcm::writeInteger), int, std::string_view> cases[] = {
      {vcm::writeInteger, 42, "   42"}, {vcm::writeInteger, -9999, "-9999"}, {vcm::writeInteger, 100000, "*****"},
      {vcm::writeInteger, -100, "***"}, {vcm::writeInteger, 0, " 0"},        {vcm::writeZeroFilled, 6, "006"},
      {vcm::writeZeroFilled, 1000, "***"}, {vcm::writeZeroFilled, -6, "***"}};
  const std::pair<double, std::int32_t> truncations[] = {
      {36.9, 36}, {-0.5, 0}, {-36.9, -36}, {1e300, INT32_MAX}, {-kInfinity, INT32_MIN}, {kNan, 0}};
  // clang-format on
  for (const auto& [write, value, text] : cases) {
    EXPECT_EQ(written(write, text.size(), value), text) << value;
  }
  for (const auto& [value, expected] : truncations) {
    EXPECT_EQ(vcm::truncated(value), expected) << value;
  }
}

}  // namespace
