#include "VCM/VcmCardReading/CardReader.h"

#include <gtest/gtest.h>

#include <random>

#include "VCM/VcmCardReading/CardType.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "support/Messages.h"

namespace {

// The cards of a file, read twice; those that do not begin with some letter are the same without the rest.
Lines cardsOf(const std::string& content) {
  const TemporaryFile file(content);
  vcm::OpenFile stream;
  EXPECT_EQ(vcm::openInputFile(file.path(), stream), 0);
  vcm::CardReader cards(stream.get());
  const auto all = [&cards](auto next) {
    Lines read;
    for (cards.rewind(); next();) {
      read.emplace_back(cards.card());
    }
    return read;
  };
  Lines once = all([&] { return cards.next(); });
  EXPECT_EQ(cards.lineNumber(), static_cast<std::int64_t>(once.size()));
  EXPECT_TRUE(all([&] { return cards.next(); }) == once);
  for (const char first : {'a', 'x'}) {
    Lines others = once;
    std::erase_if(others, [first](const auto& card) { return card.starts_with(first); });
    EXPECT_TRUE(all([&] { return cards.nextNotBeginningWith(first); }) == others) << first;
  }
  return once;
}

TEST(CardReader, Lines) {
  using namespace std::string_literals;
  EXPECT_EQ(cardsOf(""), Lines{});
  EXPECT_EQ(cardsOf("a\r\n\nb\0c\n"s), (Lines{"a\r", "", "b\0c"s}));
  constexpr std::size_t kBlock = std::size_t{1} << 20;
  for (const std::size_t length :
       {std::size_t{1499}, std::size_t{1501}, kBlock - 1, kBlock, kBlock + 1, 3 * kBlock + 7}) {
    const std::string line(length, 'x'), card = line.substr(0, 1500);
    std::string content = joined({"first", line, "last", line});
    content.pop_back();
    EXPECT_EQ(cardsOf(content), (Lines{"first", card, "last", card})) << length;
  }
  std::mt19937 random(3);
  Lines expected;
  for (int i = 0; i < 60'000; ++i) {
    expected.emplace_back(random() % 100, static_cast<char>('a' + i / 26 % 4));  // in stretches
  }
  EXPECT_TRUE(cardsOf(joined(expected)) == expected);
}

TEST(CardType, Rules) {
  using vcm::CardType;
  const std::string one = "xxxxx xxxxxxxxxxxxx.xxxxxxxxxxxxxxxxxxx.xxxxxxxxxxxxxxxx.xxx";
  const std::string header = "<> SP VEC" + one.substr(9);  // tried before the one-line rule
  // clang-format off
  const std::pair<CardType, Lines> rows[] = {
      {CardType::multiLineHeader, {"<> SP VEC", header, "   <> sp vector"}}, {CardType::oneLineMessage, {one}},
      {CardType::directive, {"VECFIL name", "VECTORFILE=name", "eltfil name", "  ELSETFILES", "SPVMSG", "VCMFIL", "SATFIL"}},
      {CardType::bareFirstLine, {"SATELLITE NUMBER:", "\tSatellite Number: 5"}}, {CardType::keyMode, {"QZ_DMA_ON"}},
      {CardType::other, {"xxxxx xxxxxxxxxxxxx.xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx.xxx", one.substr(0, 56), " " + one,
                         "VECTORFI name", "SATELLITE NUMBER", "QZ_DMA_OFF", "", "*** Orbital Elements - VCMs ***"}}};
  // clang-format on
  for (const auto& [type, cards] : rows) {
    for (const std::string& card : cards) {
      EXPECT_EQ(vcm::fileCardType(card), type) << card;
      const bool isSoughtFirst = type == CardType::directive || type == CardType::keyMode;
      EXPECT_FALSE(isSoughtFirst && vcm::isNoDirective(card)) << card;
    }
  }
}

}  // namespace
