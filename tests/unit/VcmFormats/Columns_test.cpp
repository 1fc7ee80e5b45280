// Numbers in columns go in and out by a short way of their own: it must not differ from the general one,
// which is the standard library's, by a bit or a byte.
#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <random>
#include <string>

#include "VCM/VcmFormats/ColumnReading.h"
#include "VCM/VcmFormats/ColumnWriting.h"
#include "support/RandomCount.h"

namespace {

class Columns : public testing::Test {
 protected:
  static constexpr std::string_view kSeen = "01234567890123456789 .-+Ee\t";

  std::uint64_t below(std::uint64_t limit) { return random_() % limit; }

  // Any bits, short decimals, halves behind the last digit, short binary fractions, powers of ten and
  // their neighbours.
  double value() {
    const auto sign = below(2) == 0 ? 1.0 : -1.0;
    const auto decimals = static_cast<int>(below(13));
    const auto whole = static_cast<double>(below(2'000'000'001));
    switch (below(6)) {
      case 0:
        return std::bit_cast<double>(random_());
      case 1:
        return sign * whole / std::pow(10.0, decimals);
      case 2:
        return sign * (whole + 0.5) / std::pow(10.0, decimals);
      case 3:
        return sign * std::ldexp(static_cast<double>(below(100'000)), -static_cast<int>(below(20)));
      case 4:
        return sign *
               std::ldexp(static_cast<double>(random_() >> 11), -static_cast<int>(below(110)));
      default:
        return sign *
               std::bit_cast<double>(std::bit_cast<std::uint64_t>(std::pow(10.0, decimals - 4)) +
                                     below(5) - 2);
    }
  }

  // A number as it is written, up to three of its characters changed.
  std::string changed(std::string text) {
    for (auto n = below(4); n > 0; --n) {
      text[below(text.size())] = kSeen[below(kSeen.size())];
    }
    return text;
  }

  template <int Width, int Decimals>
  void fixed(double number) {
    std::string general(Width, '?');
    std::string text(Width, '?');
    vcm::writeFixed(general.data(), Width, Decimals, number);
    vcm::writeFixed<Width, Decimals>(text.data(), number);
    ASSERT_EQ(text, general) << number;
    if constexpr (Width <= 16) {
      expectReadAlike(changed(text), [](const std::string& field, int implied, double& read) {
        return vcm::readFixed<Width, Decimals>(field, implied, read);
      });
    }
  }

  template <int Width, int Digits>
  void scientific(double number) {
    std::string general(Width, '?');
    std::string text(Width, '?');
    vcm::writeScientific(general.data(), Width, Digits, number);
    vcm::writeScientific<Width, Digits>(text.data(), number);
    ASSERT_EQ(text, general) << number;
    expectReadAlike(changed(text), [](const std::string& field, int implied, double& read) {
      return vcm::readScientific<Width, Digits>(field, implied, read);
    });
  }

  template <class Read>
  void expectReadAlike(const std::string& field, Read&& read) {
    double general = 4711.0;
    double value = 4711.0;
    ASSERT_EQ(read(field, 4, value), vcm::readReal(field, 4, general)) << field;
    ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(general)) << field;
  }

  int count_ = randomCount("VCM_RANDOM_NUMBERS", 100'000);
  std::mt19937_64 random_{20281206};
};

TEST_F(Columns, RealsAsTheGeneralWay) {
  for (int i = 0; i < count_; ++i) {
    const double number = value();
    fixed<16, 8>(number);
    fixed<16, 12>(number);
    fixed<35, 15>(number);
    fixed<10, 4>(number);
    fixed<6, 3>(number);
    fixed<5, 1>(number);
    scientific<13, 6>(number);
    scientific<12, 5>(number);
    scientific<13, 5>(number);
    scientific<9, 3>(number);  // no column for a sign
    ASSERT_FALSE(HasFatalFailure());
  }
}

TEST_F(Columns, IntegersAsTheGeneralWay) {
  for (int i = 0; i < count_; ++i) {
    const auto number = static_cast<std::int32_t>(random_()) >> below(32);
    std::string general(5, '?');
    std::string text(5, '?');
    vcm::writeInteger(general.data(), 5, number);
    vcm::writeInteger<5>(text.data(), number);
    ASSERT_EQ(text, general) << number;
    text = changed(text);
    std::int32_t expected = 4711;
    std::int32_t read = 4711;
    ASSERT_EQ(vcm::readInteger<5>(text, read), vcm::readInteger(text, expected)) << text;
    ASSERT_EQ(read, expected) << text;
    vcm::writeZeroFilled(general.data(), 3, number);
    vcm::writeZeroFilled<3>(text.data(), number);
    ASSERT_EQ(text.substr(0, 3), general.substr(0, 3)) << number;
  }
}

// All seventeen digits of the free form.
TEST_F(Columns, SignificantDigitsAsToChars) {
  for (int i = 0; i < count_; ++i) {
    const double size = std::fabs(value());
    std::uint64_t digits = 0;
    int exponent = 0;
    if (vcm::roundedDigits<17>(size, digits, exponent)) {
      std::string text = std::to_string(digits);
      text.insert(1, ".").append(exponent > 0 ? "e+" : "e-");
      const std::string power = std::to_string(std::abs(exponent - 1));
      text.back() = exponent > 0 ? '+' : '-';
      text.append(power.size() < 2 ? "0" : "").append(power);
      char expected[32];
      const auto end = std::to_chars(expected, expected + sizeof expected, size,
                                     std::chars_format::scientific, 16);
      ASSERT_EQ(text, std::string(expected, end.ptr));
    }
  }
}

}  // namespace
