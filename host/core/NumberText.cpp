// Numbers out of texts as people and formatted-output programs write them.
#include <charconv>
#include <optional>
#include <string>

#include "Host/HostCore.h"
#include "Text.h"

namespace {

std::string withoutBlanks(std::string_view text) {
  std::string kept;
  for (const char c : text) {
    if (hostcore::kBlanks.find(c) == std::string_view::npos) {
      kept.push_back(c);
    }
  }
  return kept;
}

bool takeSign(std::string_view& rest, std::string_view signs = "+-") {
  const bool taken = !rest.empty() && signs.find(rest.front()) != std::string_view::npos;
  rest.remove_prefix(taken ? 1 : 0);
  return taken;
}

std::string_view takeDigits(std::string_view& rest) {
  const std::size_t count = std::min(rest.find_first_not_of("0123456789"), rest.size());
  const std::string_view digits = rest.substr(0, count);
  rest.remove_prefix(count);
  return digits;
}

std::optional<std::int32_t> integerOf(std::string_view number) {
  const bool negative = number.front() == '-';
  std::string_view rest = number;
  takeSign(rest);
  const std::string_view digits = takeDigits(rest);
  if (digits.empty() || !rest.empty()) {
    return std::nullopt;
  }
  // The minus belongs to the digits, or else the smallest integer would not fit.
  const char* first = digits.data() - (negative ? 1 : 0);
  std::int32_t value = 0;
  if (std::from_chars(first, digits.data() + digits.size(), value).ec != std::errc{}) {
    return std::nullopt;
  }
  return value;
}

// The parts of sign digits [. digits] [exponent], where the exponent begins with a letter or, as
// some programs leave it out, with its sign.
struct Decimal {
  bool negative = false;
  std::string_view whole;
  std::string_view fraction;
  bool negativeExponent = false;
  std::string_view exponent;
};

std::optional<Decimal> decimalOf(std::string_view rest) {
  Decimal parts;
  parts.negative = rest.front() == '-';
  takeSign(rest);
  parts.whole = takeDigits(rest);
  if (takeSign(rest, ".")) {
    parts.fraction = takeDigits(rest);
  }
  if (parts.whole.empty() && parts.fraction.empty()) {
    return std::nullopt;
  }
  if (!rest.empty()) {
    const bool letter = takeSign(rest, "EeDd");
    parts.negativeExponent = !rest.empty() && rest.front() == '-';
    const bool sign = takeSign(rest);
    parts.exponent = takeDigits(rest);
    if (!(letter || sign) || parts.exponent.empty() || !rest.empty()) {
      return std::nullopt;
    }
  }
  return parts;
}

// Whether the number's first digit that counts stands for one or more: tells a number too large for
// a double from one too small.
bool isLarge(const Decimal& parts) {
  constexpr std::int64_t kBeyondAnyText = 1'000'000'000'000;
  std::int64_t exponent = 0;
  if (std::from_chars(parts.exponent.data(), parts.exponent.data() + parts.exponent.size(),
                      exponent)
          .ec == std::errc::result_out_of_range) {
    exponent = kBeyondAnyText;
  }
  const std::size_t whole = parts.whole.find_first_not_of('0');
  const std::size_t fraction = parts.fraction.find_first_not_of('0');
  const std::int64_t position = whole != std::string_view::npos
                                    ? static_cast<std::int64_t>(parts.whole.size() - whole)
                                    : -static_cast<std::int64_t>(fraction);
  return position + (parts.negativeExponent ? -exponent : exponent) > 0;
}

std::optional<double> realOf(std::string_view number) {
  const std::optional<Decimal> parts = decimalOf(number);
  if (!parts) {
    return std::nullopt;
  }
  std::string plain;
  plain.append(parts->whole).append(".").append(parts->fraction);
  if (!parts->exponent.empty()) {
    plain.append(parts->negativeExponent ? "e-" : "e+").append(parts->exponent);
  }
  double value = 0;
  if (std::from_chars(plain.data(), plain.data() + plain.size(), value).ec != std::errc{}) {
    if (isLarge(*parts)) {
      return std::nullopt;
    }
    value = 0;
  }
  return parts->negative ? -value : value;
}

// One line, whatever the text holds: no control characters, and not much longer than a number is.
void traceRefusal(std::string_view reader, std::string_view text, std::string_view kind) {
  using hostcore::kBlanks;
  constexpr std::size_t kLongest = 40;
  text = hostcore::withoutTrailing(hostcore::withoutLeading(text, kBlanks), kBlanks);
  std::string shown{text.substr(0, kLongest)};
  for (char& c : shown) {
    c = static_cast<unsigned char>(c) < ' ' ? ' ' : c;
  }
  const std::string line = std::string(reader) + ": Cannot read \"" + shown +
                           (text.size() > kLongest ? "..." : "") + "\" as " + std::string(kind) +
                           ".";
  const auto length = static_cast<std::int32_t>(line.size());
  tracelogerror(line.data(), &length);
}

}  // namespace

std::int32_t strtoint(const char* text, const std::int32_t* length) {
  const std::string_view given = hostcore::upToNul(hostcore::viewOf(text, length));
  const std::string number = withoutBlanks(given);
  if (number.empty()) {
    return 0;
  }
  const std::optional<std::int32_t> value = integerOf(number);
  if (!value) {
    traceRefusal("strtoint", given, "an integer");
  }
  return value.value_or(0);
}

double strtoreal(const char* text, const std::int32_t* length) {
  const std::string_view given = hostcore::upToNul(hostcore::viewOf(text, length));
  const std::string number = withoutBlanks(given);
  if (number.empty()) {
    return 0;
  }
  const std::optional<double> value = realOf(number);
  if (!value) {
    traceRefusal("strtoreal", given, "a real number");
  }
  return value.value_or(0);
}
