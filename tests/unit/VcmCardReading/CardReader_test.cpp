#include "VCM/VcmCardReading/CardReader.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "VCM/VcmCardReading/CardType.h"
#include "support/Messages.h"

namespace {

Lines cardsOf(vcm::CardReader& cards) {
  Lines all;
  while (cards.next()) {
    all.emplace_back(cards.card());
    EXPECT_EQ(cards.lineNumber(), static_cast<std::int64_t>(all.size()));
  }
  return all;
}

Lines cardsOf(const std::string& content) {
  const TemporaryFile file(content);
  std::FILE* const stream = std::fopen(file.path().c_str(), "rb");
  Lines first;
  {
    vcm::CardReader cards(stream);
    first = cardsOf(cards);
    cards.rewind();
    EXPECT_EQ(cardsOf(cards), first) << "second pass";
  }
  std::fclose(stream);
  return first;
}

TEST(CardReader, Lines) {
  EXPECT_EQ(cardsOf(""), Lines{});
  EXPECT_EQ(cardsOf("\n"), Lines{""});
  EXPECT_EQ(cardsOf("a\nb"), (Lines{"a", "b"}));
  EXPECT_EQ(cardsOf("a\r\n\nb\r\n"), (Lines{"a\r", "", "b\r"}));
  EXPECT_EQ(cardsOf(std::string("a\0b\nc", 5)), (Lines{std::string("a\0b", 3), "c"}));
}

TEST(CardReader, LongLinesAreCutAndBlockEndsAreSeamless) {
  constexpr std::size_t kBlock = std::size_t{1} << 20;
  // Lines of every length around the card's width and the block's end.
  for (const std::size_t length : {std::size_t{1499}, std::size_t{1500}, std::size_t{1501},
                                   kBlock - 1, kBlock, kBlock + 1, 3 * kBlock + 7}) {
    const std::string line(length, 'x');
    const std::string card = line.substr(0, 1500);
    EXPECT_EQ(cardsOf(line), Lines{card}) << length;
    EXPECT_EQ(cardsOf(line + "\n"), Lines{card}) << length;
    EXPECT_EQ(cardsOf("first\n" + line + "\nlast\n"), (Lines{"first", card, "last"})) << length;
  }
  std::mt19937 random(3);
  Lines expected;
  for (int i = 0; i < 60'000; ++i) {
    expected.emplace_back(random() % 100, static_cast<char>('a' + i % 26));
  }
  EXPECT_TRUE(cardsOf(joined(expected)) == expected);
}

TEST(CardType, Rules) {
  using vcm::CardType;
  std::string one(60, 'x');
  putAt(one, 6, " ");
  putAt(one, 20, ".");
  putAt(one, 40, ".");
  putAt(one, 57, ".");
  std::string oneWithoutPoint = one;
  putAt(oneWithoutPoint, 40, "x");
  std::string header = one;
  putAt(header, 1, "<> SP VEC");
  std::string indentedOne = " " + one;
  const struct {
    std::string card;
    CardType type;
  } cases[] = {
      {"<> SP VECTOR/COVARIANCE MESSAGE - V2.0", CardType::multiLineHeader},
      {"<> SP VEC", CardType::multiLineHeader},
      {header, CardType::multiLineHeader},  // tried before the one-line rule
      {"   <> sp vector", CardType::multiLineHeader},
      {one, CardType::oneLineMessage},
      {oneWithoutPoint, CardType::other},
      {one.substr(0, 56), CardType::other},
      {indentedOne, CardType::other},
      {"VECFIL name", CardType::directive},
      {"VECTORFILE=name", CardType::directive},
      {"VECTORFI name", CardType::other},
      {"eltfil name", CardType::directive},
      {"  ELSETFILES", CardType::directive},
      {"SPVMSG", CardType::directive},
      {"VCMFIL", CardType::directive},
      {"SATFIL", CardType::directive},
      {"SATELLITE NUMBER:", CardType::bareFirstLine},
      {"\tSatellite Number: 5", CardType::bareFirstLine},
      {"SATELLITE NUMBER", CardType::other},
      {"QZ_DMA_ON", CardType::keyMode},
      {"QZ_DMA_OFF", CardType::other},
      {"", CardType::other},
      {"*** Orbital Elements - VCMs ***", CardType::other},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(vcm::fileCardType(c.card), c.type) << c.card;
    if (c.type == CardType::directive || c.type == CardType::keyMode) {
      EXPECT_FALSE(vcm::isNoDirective(c.card)) << c.card;
    }
  }
}

}  // namespace
