// Numbers in fields are the standard library's, to the bit and to the byte: by the general way, and by the
// short way of the shapes that the layouts have. VCM_RANDOM_NUMBERS sets how many values are compared.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <iostream>
#include <random>

#include "VCM/VcmFormats/ColumnReading.h"
#include "VCM/VcmFormats/ColumnWriting.h"
#include "support/PlainNumbers.h"
#include "support/RandomCount.h"

namespace {

struct RealShape {
  int width, digits;
  decltype(&plainFixed) plain;
  void (*general)(char* out, int width, int digits, double value);
  void (*write)(char* out, double value);
  bool (*read)(std::string_view field, int impliedDecimals, double& value);
};
struct IntegerShape {
  int width;
  char fill;
  void (*general)(char* out, int width, std::int64_t value);
  void (*write)(char* out, std::int32_t value);
  bool (*read)(std::string_view field, std::int32_t& value);
};
// clang-format off
template <int W, int D> constexpr RealShape kFixed{W, D, plainFixed, vcm::writeFixed, vcm::writeFixed<W, D>, vcm::readFixed<W, D>};
template <> constexpr RealShape kFixed<35, 15>{35, 15, plainFixed, vcm::writeFixed, vcm::writeFixed<35, 15>, vcm::readReal};
template <int W, int D> constexpr RealShape kScientific{
    W, D, plainScientific, vcm::writeScientific, vcm::writeScientific<W, D>, vcm::readScientific<W, D>};
template <int W> constexpr IntegerShape kInteger{W, ' ', vcm::writeInteger, vcm::writeInteger<W>, vcm::readInteger<W>};
template <int W> constexpr IntegerShape kZeroFilled{W, '0', vcm::writeZeroFilled, vcm::writeZeroFilled<W>, vcm::readInteger<W>};

constexpr RealShape kRealShapes[] = {
    kFixed<16, 8>, kFixed<16, 12>, kFixed<10, 4>, kFixed<8, 5>, kFixed<8, 4>, kFixed<8, 3>, kFixed<7, 4>, kFixed<6, 3>,
    kFixed<5, 1>, kFixed<35, 15>, kScientific<13, 6>, kScientific<12, 6>, kScientific<13, 5>, kScientific<12, 5>,
    kScientific<10, 3>, kScientific<10, 2>, kScientific<9, 2>, kScientific<9, 3>};  // the last has no column for a sign
constexpr IntegerShape kIntegerShapes[] = {
    kInteger<2>, kInteger<3>, kInteger<4>, kInteger<5>, kInteger<9>, kInteger<12>, kZeroFilled<2>, kZeroFilled<3>, kZeroFilled<4>};
// clang-format on

class Numbers : public testing::Test {
 protected:
  void TearDown() override {
    RecordProperty("compared", std::to_string(compared_));
    std::cout << "compared " << compared_ << " values\n";
  }

  std::uint64_t below(std::uint64_t limit) { return random_() % limit; }

  // Any bits, subnormals, short decimals, halves behind the last digit, short binary fractions (exact
  // ties), all powers of ten and their neighbours.
  double value() {
    const double sign = below(2) == 0 ? 1.0 : -1.0;
    const auto whole = static_cast<double>(random_() >> (33 + below(31)));
    const auto decimals = static_cast<int>(below(16));
    // clang-format off
    switch (below(7)) {
      case 0: return std::bit_cast<double>(random_());
      case 1: return sign * std::bit_cast<double>(random_() >> (12 + below(52)));
      case 2: return sign * whole / std::pow(10.0, decimals);
      case 3: return sign * (whole + 0.5) * std::pow(10.0, decimals - 9);
      case 4: return sign * std::ldexp(whole, -decimals - 2);
      case 5: return sign * std::ldexp(static_cast<double>(random_() >> 11), -static_cast<int>(below(110)));
      default: return std::bit_cast<double>(
          std::bit_cast<std::uint64_t>(sign * std::pow(10.0, static_cast<double>(below(632)) - 323)) + below(5) - 2);
    }
    // clang-format on
  }

  // Up to three characters become others.
  void change(std::string& text) {
    constexpr std::string_view kSeen = "01234567890123456789 .-+EeDd\t*";
    for (auto n = below(4); n > 0; --n) {
      text[below(text.size())] = kSeen[below(kSeen.size())];
    }
  }

  // Each way to write fills the field with the plain text, which then is changed and read.
  template <class Shape, class Number, class... Digits>
  std::string expectWritten(const Shape& shape, Number number, const std::string& plain,
                            Digits... digits) {
    std::string general(plain.size(), '?');
    std::string columns = general;
    shape.general(general.data(), shape.width, digits..., number);
    shape.write(columns.data(), number);
    ++compared_;
    EXPECT_TRUE(general == plain && columns == plain) << general << '\n'
                                                      << columns << "\nare plainly\n"
                                                      << plain;
    change(columns);
    return columns;
  }

  // Each way to read gives the plain number, or leaves the value alone where there is none.
  template <class Number, class... Read>
  void expectRead(std::string_view text, std::optional<Number> plain, const Read&... reads) {
    constexpr Number kUntouched = 4711;
    const auto alike = [&](const auto& read) {
      Number value = kUntouched;
      const Number expected = plain.value_or(kUntouched);
      return read(text, value) == plain.has_value() && value == expected &&
             std::signbit(value) == std::signbit(expected);
    };
    ASSERT_TRUE((alike(reads) && ...))
        << '"' << text << "\" is plainly " << plain.value_or(kUntouched);
  }
  void expectReal(std::string_view text, int implied, decltype(RealShape::read) columns) {
    expectRead(
        text, plainReal(text, implied),
        [=](std::string_view field, double& value) { return vcm::readReal(field, implied, value); },
        [=](std::string_view field, double& value) { return columns(field, implied, value); });
  }
  void expectInteger(std::string_view text, decltype(IntegerShape::read) columns) {
    expectRead<std::int32_t>(
        text, plainInteger(text),
        [](auto field, auto& value) { return vcm::readInteger(field, value); }, columns);
  }

  const int count_ = randomCount("VCM_RANDOM_NUMBERS", kFastBuild ? 2'000'000 : 100'000);
  std::mt19937_64 random_{20281206};
  std::int64_t compared_ = 0;
};

TEST_F(Numbers, RealsInColumns) {
  for (int i = 0; i < count_ && !HasFailure(); ++i) {
    const RealShape& shape = kRealShapes[below(std::size(kRealShapes))];
    const double number = value();
    const std::string plain = shape.plain(shape.width, shape.digits, number);
    expectReal(expectWritten(shape, number, plain, shape.digits), 4, shape.read);
  }
}

TEST_F(Numbers, IntegersInColumns) {
  for (int i = 0; i < count_ / 10 && !HasFailure(); ++i) {
    const IntegerShape& shape = kIntegerShapes[below(std::size(kIntegerShapes))];
    const std::int32_t number = static_cast<std::int32_t>(random_()) >> below(32);
    std::string plain = aligned(std::to_string(number), shape.width);
    std::replace(plain.begin(), plain.end(), ' ', shape.fill);
    plain = shape.fill == '0' && number < 0 ? std::string(plain.size(), '*') : plain;
    expectInteger(expectWritten(shape, number, plain), shape.read);
  }
}

// The free form, and texts longer than any field that is written.
TEST_F(Numbers, RealsAtLength) {
  for (int i = 0; i < count_ / 10 && !HasFailure(); ++i, ++compared_) {
    const double number = value();
    std::string text(vcm::kGeneralWidth, '?');
    vcm::writeGeneral(text.data(), number);
    ASSERT_EQ(text, plainGeneral(vcm::kGeneralWidth, number));
    if (std::isfinite(number)) {
      text = toChars(number, std::chars_format::scientific, static_cast<int>(below(30)));
      change(text);
      expectReal(text, 3, vcm::readReal);
      text = toChars(number, std::chars_format::fixed, static_cast<int>(below(30)));
      expectReal(text, 3, vcm::readReal);
    }
  }
}

// Every text of up to six columns, with nothing, the start or the end of a number around it.
TEST_F(Numbers, ShortTexts) {
  constexpr std::string_view kKinds = "0159 .-+Ed";
  const int columns = count_ < 1'000'000 ? 4 : 6;
  int texts = 1;
  for (int length = 0; length <= columns; ++length, texts *= static_cast<int>(kKinds.size())) {
    for (int n = 0; n < texts && !HasFailure(); ++n, ++compared_) {
      std::string text;
      for (int rest = n; static_cast<int>(text.size()) < length;
           rest /= static_cast<int>(kKinds.size())) {
        text += kKinds[static_cast<std::size_t>(rest) % kKinds.size()];
      }
      expectReal(text, 3, length == 5 ? vcm::readFixed<5, 1> : vcm::readFixed<6, 3>);
      expectReal("0.1" + text, 6, vcm::readScientific<9, 3>);
      expectReal(text + "E+2", 6, vcm::readScientific<9, 2>);
      expectInteger(text, length <= 4 ? vcm::readInteger<4> : vcm::readInteger<5>);
    }
  }
}

}  // namespace
