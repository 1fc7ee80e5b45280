#include "VCM/VcmFormats/NumberWriting.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// A number, its decimals or digits, and its text, as long as the field.
struct RealCase {
  decltype(&vcm::writeFixed) write;
  double value;
  int digits;
  std::string_view text;
};

TEST(NumberWriting, Reals) {
  constexpr auto fix = vcm::writeFixed;
  constexpr auto sci = vcm::writeScientific;
  // clang-format off
  const RealCase cases[] = {
      {fix, -11044.90753274, 8, " -11044.90753274"}, {fix, 1e300, 8, "****************"},
      {fix, 999999.99999999, 8, " 999999.99999999"}, {fix, 9999999.999999999, 8, "****************"},  // rounds up to a digit more
      {fix, -0.308, 3, "-0.308"}, {fix, -1.308, 3, "*****"}, {fix, -0.308, 3, "-.308"}, {fix, 0.308, 3, ".308"},  // the zero gives way
      {fix, 0.5, 0, "  0"}, {fix, 1.5, 0, "  2"}, {fix, 2.675, 2, "  2.67"},  // ties to even, of the exact value
      {fix, -0.00001, 4, "-0.0000"}, {fix, -0.0, 4, "-0.0000"}, {fix, kNan, 3, "   NaN"}, {fix, -kNan, 3, "   NaN"},
      {fix, kInfinity, 3, "******"}, {fix, -kInfinity, 3, "******"},
      {sci, 0.0001234, 6, " 0.123400E-03"}, {sci, -0.529024e-10, 6, "-.529024E-10"}, {sci, -0.529024e-10, 6, "***********"},
      {sci, 0.0, 6, " 0.000000E+00"}, {sci, 0.9999996, 6, " 0.100000E+01"}, {sci, 1e98, 2, " 0.10E+99"},
      {sci, 9.9999e98, 2, "*********"}, {sci, 1e-101, 2, "*********"},  // no room for three digits
      {sci, kNan, 2, "      NaN"}, {sci, kInfinity, 2, "*********"}};
  // clang-format on
  for (const auto& [write, value, digits, text] : cases) {
    std::string written(text.size(), '?');
    write(written.data(), static_cast<int>(text.size()), digits, value);
    EXPECT_EQ(written, text) << value;
  }
}

TEST(NumberWriting, Truncation) {
  const std::pair<double, std::int32_t> truncations[] = {
      {36.9, 36}, {-0.5, 0}, {-36.9, -36}, {1e300, INT32_MAX}, {-kInfinity, INT32_MIN}, {kNan, 0}};
  for (const auto& [value, expected] : truncations) {
    EXPECT_EQ(vcm::truncated(value), expected) << value;
  }
}

}  // namespace
