#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <tuple>

#include "Host/HostCore.h"
#include "Host/HostOrbit.h"
#include "Host/TraceLine.h"
#include "host/HostTrace.h"
#include "support/Messages.h"
#include "support/TraceCapture.h"

namespace {

using namespace std::string_literals;

std::int32_t lengthOf(const std::string& text) { return static_cast<std::int32_t>(text.size()); }

template <class Function>
auto applied(Function function, const std::string& text) {
  const std::int32_t length = lengthOf(text);
  return function(text.data(), &length);
}

TEST(Texts, CopiedIntoAnotherLength) {
  // clang-format off
  const std::tuple<decltype(&chararrtostr), std::string, std::string> table[] = {
      {chararrtostr, "abc\0xyz"s, "abc  "}, {chararrtostr, "abcdef", "abcd"}, {chararrtostr, "", "  "}, {chararrtostr, "abc", ""},
      {strtochararr, "ab c", "ab"}, {strtochararr, "ab c", "ab c  "}, {getinputfilename, "", "  "}, {getinputfilename, "VCMFIL =  ", "  "},
      {getinputfilename, "VCMFIL = '", " "}, {getinputfilename, "VCMFIL = \"\"", "  "}, {getinputfilename, "VCMFIL 'open", "open "},
      {getinputfilename, "VCMFIL long.vcm", "long."}, {getinputfilename, "VCMFIL = a=b.vcm", "a=b.vcm "},
      {getinputfilename, "VCMFIL a.vcm\0\0"s, "a.vcm  "}, {getinputfilename, "  vcmfil\tDay 1.vcm\r\n", "Day 1.vcm  "},
      {getinputfilename, "VCMFIL=\"Day 1.vcm \" comment", "Day 1.vcm   "}, {getinputfilename, "VCMFIL='it\"s.vcm'", "it\"s.vcm "}};
  // clang-format on
  for (const auto& [copy, from, expected] : table) {
    std::string to(expected.size(), '#');
    const std::int32_t lengths[] = {lengthOf(from), lengthOf(to)};
    copy(from.data(), &lengths[0], to.data(), &lengths[1]);
    EXPECT_EQ(to, expected) << from;
  }
}

TEST(Texts, ChangedInPlace) {
  std::string text = "azm{`AZ 9\0\xE4"s;
  const auto change = [&text](auto function, std::int32_t length) {
    function(text.data(), &length);
    return text;
  };
  EXPECT_EQ(change(touppercase, 11), "AZM{`AZ 9\0\xE4"s);
  EXPECT_EQ(change(nulltospace, 11), "AZM{`AZ 9 \xE4");
  EXPECT_EQ(change(blanktozerochar, 9), "AZM{`AZ09 \xE4");
  EXPECT_EQ(change(blanktozerochar, -1), "AZM{`AZ09 \xE4");
}

TEST(Texts, ManeuverCards) {
  for (const char* card : {"MANEUV", "  maneuver 2024", "\tManeuv="}) {
    EXPECT_NE(applied(ismaneuvcardtype, card), 0) << card;
  }
  for (const char* card : {"MANEU", "MANEU V", "XMANEUV", ""}) {
    EXPECT_EQ(applied(ismaneuvcardtype, card), 0) << card;
  }
}

TEST(NumberText, ReadOrRefusedInOneShortLine) {
  TraceCapture trace;
  const std::string zeros(400, '0');
  // Numbers, and in their place nothing for a text that is none.
  // clang-format off
  const std::pair<std::string, std::optional<std::int32_t>> integers[] = {
      {" \t\r\n", 0}, {" 1 2 ", 12}, {"+12", 12}, {"- 12", -12}, {"12\0x"s, 12}, {"2147483647", INT32_MAX}, {"-2147483648", INT32_MIN},
      {"12x", {}}, {"+", {}}, {"+-5", {}}, {"1.0", {}}, {"1e3", {}}, {"2147483648", {}}, {"-2147483649", {}}};
  const std::pair<std::string, std::optional<double>> reals[] = {
      {"", 0}, {"\0005"s, 0}, {"1 . 5", 1.5}, {"+.5", .5}, {"5.", 5}, {"1.5e+03", 1500}, {"1.5D-3", .0015}, {"1.5d3", 1500},
      {"1.5-3", .0015}, {"15+2", 1500}, {"1.7976931348623157E308", 1.7976931348623157E308}, {"4.9E-324", 4.9E-324}, {"1E-400", 0},
      {"0E99999999999999999999", 0}, {"0.0001E-99999999999999999999", 0}, {"0." + zeros + "1E401", 1}, {"1" + zeros + "E-400", 1},
      {"abc", {}}, {".", {}}, {"-.", {}}, {"E5", {}}, {"1E", {}}, {"1+", {}}, {"1EE5", {}}, {"1.2.3", {}}, {"1,5", {}}, {"NaN", {}},
      {"-Infinity", {}}, {"1e309", {}}, {"0x1p3", {}}, {"1E99999999999999999999", {}}, {"1.5-3-", {}}};
  // clang-format on
  const auto check = [&trace](const auto& rows, auto function, std::string_view refusal) {
    for (const auto& [text, value] : rows) {
      EXPECT_EQ(applied(function, " " + text + "  "), value.value_or(0)) << text;
      std::string refused(refusal);
      refused.replace(refused.find('#'), 1, text);
      EXPECT_EQ(trace.takeErrors(), value ? Lines{} : Lines{refused}) << text;
    }
  };
  check(integers, strtoint, "strtoint: Cannot read \"#\" as an integer.");
  check(reals, strtoreal, "strtoreal: Cannot read \"#\" as a real number.");
  applied(strtoint, "\r\n a\nb\tc" + std::string(600, 'x'));
  const std::string shortened = "a b c" + std::string(35, 'x') + "...";
  EXPECT_EQ(trace.takeErrors(),
            Lines{"strtoint: Cannot read \"" + shortened + "\" as an integer."});
}

TEST(Trace, IsAppendedToTheNamedFile) {
  const auto traceTo = [](const std::string& name, std::string_view line) {
    // No other thread runs. NOLINTNEXTLINE(concurrency-mt-unsafe)
    setenv("HOST_TRACE_LOG", name.c_str(), 1);
    hosttracesink(nullptr, nullptr);  // looks at the setting anew
    vcm::logError(line);
  };
  const TemporaryFile file("before\n");
  traceTo(file.path(), "  first   ");
  vcm::logInfo("");
  traceTo(file.path() + "/no/folder", "lost");
  testing::internal::CaptureStderr();
  traceTo("-", "seen  ");
  traceTo("", "not seen");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "seen\n");
  EXPECT_EQ(readFile(file.path()), "before\n  first\n\n");
}

}  // namespace
