#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "Host/HostCore.h"
#include "Host/HostOrbit.h"

namespace {

std::int32_t lengthOf(const std::string& text) { return static_cast<std::int32_t>(text.size()); }

TEST(Strings, ArrayToText) {
  const std::tuple<std::string, std::size_t, std::string> table[] = {
      {std::string("abc\0xyz", 7), 5, "abc  "},
      {"abcdef", 4, "abcd"},
      {"", 3, "   "},
      {std::string("\0ab", 3), 2, "  "},
      {"abc", 0, ""}};
  for (const auto& [array, textSize, expected] : table) {
    std::string text(textSize, '#');
    const std::int32_t arrayLength = lengthOf(array);
    const std::int32_t textLength = lengthOf(text);
    chararrtostr(array.data(), &arrayLength, text.data(), &textLength);
    EXPECT_EQ(text, expected) << array;
  }
}

TEST(Strings, TextToArray) {
  const std::string text = "ab c";
  const std::int32_t textLength = lengthOf(text);
  for (const std::string expected : {"ab", "ab c", "ab c  "}) {
    std::string array(expected.size(), '#');
    const std::int32_t arrayLength = lengthOf(array);
    strtochararr(text.data(), &textLength, array.data(), &arrayLength);
    EXPECT_EQ(array, expected);
  }
}

TEST(Strings, CharactersReplacedInPlace) {
  std::string text("az{`AZ 9\0\xE4", 10);
  const std::int32_t length = lengthOf(text);
  touppercase(text.data(), &length);
  EXPECT_EQ(text, std::string("AZ{`AZ 9\0\xE4", 10));
  nulltospace(text.data(), &length);
  EXPECT_EQ(text, "AZ{`AZ 9 \xE4");
  const std::int32_t eight = 8;
  blanktozerochar(text.data(), &eight);
  EXPECT_EQ(text, "AZ{`AZ09 \xE4");
}

TEST(Strings, ReplaceString) {
  struct Case {
    std::string text, from, to, expected;
  };
  const Case table[] = {{"a-b-c   ", "-", "::", "a::b::c "},
                        {"a-b-c", "-", "::", "a::b:"},
                        {"a::b::c", "::", "-", "a-b-c  "},
                        {"a::b", "::", "", "ab  "},
                        {"aaaa", "aa", "a", "aa  "},
                        {"aba", "a", "aa", "aab"},
                        {"abc", "x", "y", "abc"},
                        {"abc", "", "y", "abc"},
                        {"abc", "abcd", "y", "abc"},
                        {"", "a", "b", ""}};
  for (const Case& row : table) {
    std::string text = row.text;
    const std::int32_t length = lengthOf(text);
    const std::int32_t fromLength = lengthOf(row.from);
    const std::int32_t toLength = lengthOf(row.to);
    replacestring(text.data(), &length, row.from.data(), &fromLength, row.to.data(), &toLength);
    EXPECT_EQ(text, row.expected) << row.text << ": " << row.from << " by " << row.to;
  }
}

TEST(Strings, DirectiveCards) {
  const std::pair<std::string, std::string> table[] = {
      {"VCMFIL = data/Day1.vcm", "data/Day1.vcm"},
      {"VCMFIL=data/Day1.vcm   ", "data/Day1.vcm"},
      {"  vcmfil\tDay 1.vcm\r\n", "Day 1.vcm"},
      {"VCMFIL=\"Day 1.vcm \" comment", "Day 1.vcm"},
      {"VCMFIL='it\"s.vcm'", "it\"s.vcm"},
      {"VCMFIL 'open", "open"},
      {"VCMFIL = a=b.vcm", "a=b.vcm"},
      {"VCMFIL", ""},
      {"VCMFIL =  ", ""},
      {"VCMFIL = \"\"", ""},
      {"VCMFIL = '", ""},
      {"", ""},
      {"VCMFIL " + std::string(30, 'n'), std::string(20, 'n')},
      {std::string("VCMFIL a.vcm\0\0", 14), "a.vcm"}};
  for (const auto& [card, expected] : table) {
    std::string name(20, '#');
    const std::int32_t cardLength = lengthOf(card);
    const std::int32_t nameLength = lengthOf(name);
    getinputfilename(card.data(), &cardLength, name.data(), &nameLength);
    EXPECT_EQ(name, expected + std::string(20 - expected.size(), ' ')) << card;
  }
}

TEST(Strings, SoftwareInfo) {
  const std::string name = "Vcm  ";
  const std::int32_t nameLength = lengthOf(name);
  std::string info(40, '#');
  const std::int32_t infoLength = lengthOf(info);
  getsoftwareinfo(name.data(), &nameLength, info.data(), &infoLength);
  EXPECT_EQ(info.substr(0, 4), "Vcm ");
  EXPECT_NE(info.find(", bundled host  "), std::string::npos) << info;
  EXPECT_EQ(info.back(), ' ');
}

TEST(Strings, ManeuverCards) {
  const std::pair<std::string, bool> table[] = {
      {"MANEUV", true},   {"  maneuver 2024", true}, {"\tManeuv=", true}, {"MANEU", false},
      {"MANEU V", false}, {"XMANEUV", false},        {"", false},         {"    ", false}};
  for (const auto& [card, expected] : table) {
    const std::int32_t length = lengthOf(card);
    EXPECT_EQ(ismaneuvcardtype(card.data(), &length) != 0, expected) << card;
  }
}

TEST(Strings, LengthsBelowZeroAreEmpty) {
  const std::int32_t length = -1;
  std::string text = "a b";
  touppercase(text.data(), &length);
  nulltospace(text.data(), &length);
  blanktozerochar(text.data(), &length);
  chararrtostr("x", &length, text.data(), &length);
  EXPECT_EQ(text, "a b");
  EXPECT_EQ(strtoint("5", &length), 0);
  EXPECT_EQ(ismaneuvcardtype("MANEUV", &length), 0);
}

}  // namespace
