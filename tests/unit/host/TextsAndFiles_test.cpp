#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <filesystem>
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
      {chararrtostr, "abc\0xyz"s, "abc  "}, {chararrtostr, "abcdef", "abcd"}, {chararrtostr, "", "   "},
      {chararrtostr, "\0ab"s, "  "},        {chararrtostr, "abc", ""},        {strtochararr, "ab c", "ab"},
      {strtochararr, "ab c", "ab c"},       {strtochararr, "ab c", "ab c  "}, {getinputfilename, "", "  "},
      {getinputfilename, "VCMFIL", "  "},   {getinputfilename, "VCMFIL =  ", "  "},
      {getinputfilename, "VCMFIL = '", " "}, {getinputfilename, "VCMFIL = \"\"", "  "},
      {getinputfilename, "VCMFIL 'open", "open "}, {getinputfilename, "VCMFIL long.vcm", "long."},
      {getinputfilename, "VCMFIL = a=b.vcm", "a=b.vcm "}, {getinputfilename, "VCMFIL a.vcm\0\0"s, "a.vcm  "},
      {getinputfilename, "VCMFIL = data/Day1.vcm", "data/Day1.vcm   "},
      {getinputfilename, "VCMFIL=data/Day1.vcm   ", "data/Day1.vcm   "},
      {getinputfilename, "  vcmfil\tDay 1.vcm\r\n", "Day 1.vcm  "},
      {getinputfilename, "VCMFIL=\"Day 1.vcm \" comment", "Day 1.vcm   "},
      {getinputfilename, "VCMFIL='it\"s.vcm'", "it\"s.vcm "}};
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

TEST(Texts, Replaced) {
  // clang-format off
  const std::string table[][4] = {
      {"a-b-c   ", "-", "::", "a::b::c "}, {"a-b-c", "-", "::", "a::b:"}, {"a::b::c", "::", "-", "a-b-c  "},
      {"a::b", "::", "", "ab  "},          {"aaaa", "aa", "a", "aa  "},   {"aba", "a", "aa", "aab"},
      {"abc", "x", "y", "abc"},            {"abc", "", "y", "abc"},       {"", "a", "b", ""}};
  // clang-format on
  for (const auto& [given, from, to, expected] : table) {
    std::string text = given;
    const std::int32_t lengths[] = {lengthOf(given), lengthOf(from), lengthOf(to)};
    replacestring(text.data(), &lengths[0], from.data(), &lengths[1], to.data(), &lengths[2]);
    EXPECT_EQ(text, expected) << given << ": " << from << " by " << to;
  }
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
      {"", 0}, {"    ", 0}, {" \t\r\n", 0}, {"12", 12}, {" 1 2 ", 12}, {"+12", 12}, {"- 12", -12}, {"007", 7},
      {"12\0x"s, 12}, {"2147483647", INT32_MAX}, {"-2147483648", INT32_MIN},
      {"12x", {}}, {"x", {}}, {"+", {}}, {"-", {}}, {"+-5", {}}, {"--5", {}}, {"1.0", {}}, {"1e3", {}}, {"0x10", {}},
      {"2147483648", {}}, {"-2147483649", {}}, {"99999999999999999999", {}}};
  const std::pair<std::string, std::optional<double>> reals[] = {
      {"", 0}, {"   ", 0}, {"\0005"s, 0}, {"1", 1}, {"-1.5", -1.5}, {"+.5", .5}, {"5.", 5}, {"1 . 5", 1.5},
      {"1.5E3", 1500}, {"1.5e+03", 1500}, {"1.5D-3", .0015}, {"1.5d3", 1500}, {"1.5-3", .0015}, {"15+2", 1500},
      {"1.5 E 3", 1500}, {"0.1", 0.1}, {"123456789012345678901234567890", 123456789012345678901234567890.0},
      {"1.7976931348623157E308", 1.7976931348623157E308}, {"4.9E-324", 4.9E-324}, {"1E-400", 0},
      {"0E99999999999999999999", 0}, {"0.0001E-99999999999999999999", 0}, {"." + zeros + "1", 0},
      {"0." + zeros + "1E401", 1}, {"1" + zeros + "E-400", 1},
      {"abc", {}}, {".", {}}, {"+", {}}, {"-.", {}}, {"E5", {}}, {"1E", {}}, {"1E+", {}}, {"1+", {}}, {"1EE5", {}},
      {"1.2.3", {}}, {"1,5", {}}, {"NaN", {}}, {"-Infinity", {}}, {"1e309", {}}, {"-1E400", {}}, {"0x1p3", {}},
      {"1E99999999999999999999", {}}, {"1.5-3-", {}}};
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
  EXPECT_TRUE(std::signbit(applied(strtoreal, "-0.0")));
  applied(strtoint, "\r\n a\nb\tc" + std::string(600, 'x'));
  EXPECT_EQ(trace.takeErrors(),
            Lines{"strtoint: Cannot read \"a b c" + std::string(35, 'x') + "...\" as an integer."});
}

TEST(FileOpen, ModesAndFailures) {
  const TemporaryFile file("old");
  std::FILE* stream = nullptr;
  const auto written = [&](const std::string& name, std::int32_t mode, const char* text) {
    const std::int32_t length = lengthOf(name);
    EXPECT_EQ(fileopen(name.data(), &length, &mode, &stream), 0) << name;
    std::fputs(text, stream);
    std::fclose(stream);
    return readFile(file.path());
  };
  EXPECT_EQ(written(file.path() + "   ", 0, "new"), "new");
  EXPECT_EQ(written(file.path() + std::string("\0 junk", 6), 2, ", more"), "new, more");
  EXPECT_EQ(written(file.path(), 1, "not for reading"), "new, more");

  const std::string none = file.path() + "-";
  const std::string folder = testing::TempDir();
  const std::tuple<std::string, std::int32_t, std::int32_t> failures[] = {
      {none, 1, ENOENT},   {file.path() + "/x", 0, ENOTDIR},
      {"    ", 0, ENOENT}, {folder, 1, EISDIR},
      {folder, 0, EISDIR}, {none, 3, EINVAL},
      {none, -1, EINVAL}};
  for (const auto& [name, mode, code] : failures) {
    stream = stdin;
    const std::int32_t length = lengthOf(name);
    EXPECT_EQ(fileopen(name.data(), &length, &mode, &stream), code) << name << ", mode " << mode;
    EXPECT_EQ(stream, nullptr) << name << ", mode " << mode;
  }
  EXPECT_FALSE(std::filesystem::exists(none));
}

TEST(Trace, GoesToTheSinkOrIsAppendedToTheNamedFile) {
  const auto traceTo = [](const std::string& name) {
    // No other thread runs. NOLINTNEXTLINE(concurrency-mt-unsafe)
    setenv("HOST_TRACE_LOG", name.c_str(), 1);
    hosttracesink(nullptr, nullptr);  // looks at the setting anew
  };
  TraceCapture trace;
  vcm::logError("bad  ");
  vcm::logInfo("good");
  const TemporaryFile file("before\n");
  traceTo(file.path());
  vcm::logError("  first   ");
  vcm::logInfo("");
  traceTo(file.path() + "/no/folder");
  vcm::logError("lost");
  testing::internal::CaptureStderr();
  traceTo("-");
  vcm::logError("seen  ");
  traceTo("");
  vcm::logError("not seen");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "seen\n");
  EXPECT_EQ(readFile(file.path()), "before\n  first\n\n");
  EXPECT_EQ(trace.takeRawErrors(), Lines{"bad  "});
  EXPECT_EQ(trace.takeInfos(), Lines{"good"});
}

}  // namespace
