// Numbers in fields, read and written in the plainest way: the standard library's, and the rules of the
// fields around it.
#ifndef SUPPORT_PLAINNUMBERS_H
#define SUPPORT_PLAINNUMBERS_H

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "VCM/VcmTypes/FixedText.h"

// The whole text as from_chars reads it; of what is out of range that does not tell the side.
template <class Number>
std::optional<Number> fromChars(const std::string& text) {
  Number value{};
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool tooSmall = std::is_same_v<Number, double> &&
                        result.ec == std::errc::result_out_of_range &&
                        std::strtod(text.c_str(), nullptr) < 1.0;
  const bool whole = result.ptr == text.data() + text.size();
  return whole && (result.ec == std::errc() || tooSmall) ? std::optional(value) : std::nullopt;
}

inline std::string withoutBlanks(std::string_view field) {
  std::string text(field);
  std::erase_if(text, vcm::isBlank);
  return text;
}

inline std::optional<std::int32_t> plainInteger(std::string_view field) {
  std::string text = withoutBlanks(field);
  text.erase(0, text.starts_with('+') && !text.starts_with("+-") ? 1 : 0);
  return withoutBlanks(field).empty() ? 0 : fromChars<std::int32_t>(text);
}

inline std::optional<double> plainReal(std::string_view field, int impliedDecimals) {
  std::string text = withoutBlanks(field);
  if (text.empty()) {
    return 0.0;
  }
  const bool minus = text.front() == '-';
  text.erase(0, minus || text.front() == '+' ? 1 : 0);
  const std::size_t letter = text.find_first_of("EeDd+-");
  if (letter != std::string::npos) {
    text.replace(letter, text[letter] == '+' || text[letter] == '-' ? 0 : 1, "e");
  } else if (text.find('.') == std::string::npos) {
    text.append("e-").append(std::to_string(impliedDecimals));
  }
  // from_chars would also read names.
  const bool number = text.find_first_not_of("0123456789.e+-") == std::string::npos;
  const auto size = number ? fromChars<double>(text) : std::nullopt;
  return size && minus ? -*size : size;
}

// Right-aligned; where one column is missing, the zero before a point gives way.
inline std::string aligned(std::string text, int width) {
  const auto room = static_cast<std::size_t>(width);
  const std::size_t zero = text.starts_with('-') ? 1 : 0;
  text.erase(zero, text.size() == room + 1 && text.substr(zero, 2) == "0." ? 1 : 0);
  if (text.ends_with("nan")) {
    text = "NaN";
  }
  return text.size() > room || text.ends_with("inf") ? std::string(room, '*')
                                                     : std::string(room - text.size(), ' ') + text;
}

inline std::string toChars(double value, std::chars_format format, int decimals) {
  char text[400];
  return {text, std::to_chars(text, text + sizeof text, value, format, decimals).ptr};
}

inline std::string plainFixed(int width, int decimals, double value) {
  return aligned(toChars(value, std::chars_format::fixed, decimals), width);
}

inline std::string plainExponent(int exponent, std::size_t digits) {
  const std::string size = std::to_string(std::abs(exponent));
  return (exponent < 0 ? "E-" : "E+") + std::string(digits - std::min(digits, size.size()), '0') +
         size;
}

// From d.ddde+xx to 0.dddd, its exponent one more.
inline std::string plainScientific(int width, int digits, double value) {
  std::string text = toChars(value, std::chars_format::scientific, digits - 1);
  if (const std::size_t letter = text.find('e'); letter != std::string::npos) {
    const int exponent = std::atoi(text.c_str() + letter + 1) + (value == 0.0 ? 0 : 1);
    text.resize(letter);
    std::erase(text, '.');
    text.insert(text.starts_with('-') ? 1 : 0, "0.");
    text += std::abs(exponent) > 99 ? "inf" : plainExponent(exponent, 2);
  }
  return aligned(text, width);
}

inline std::string plainGeneral(int width, double value) {
  constexpr int kDecimals = 16;
  std::string text = toChars(value, std::chars_format::scientific, kDecimals);
  if (const std::size_t letter = text.find('e'); letter != std::string::npos) {
    const int exponent = std::atoi(text.c_str() + letter + 1);
    text = exponent >= -1 && exponent <= kDecimals
               ? toChars(value, std::chars_format::fixed, kDecimals - exponent) +
                     (exponent == kDecimals ? "." : "")
               : text.substr(0, letter) + plainExponent(exponent, 3);
  }
  return aligned(text, width);
}

#endif
