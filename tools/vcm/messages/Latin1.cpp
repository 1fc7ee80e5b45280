#include "messages/Latin1.h"

namespace vcmtool {

namespace {

// Characters 128 to 255 take two bytes: 110000xx 10xxxxxx.
constexpr unsigned kFirstOfTwo = 0xC0;
constexpr unsigned kSecondOfTwo = 0x80;
constexpr unsigned kLowBits = 0x3F;
constexpr unsigned kLowBitCount = 6;
constexpr unsigned kLastSingle = 0x7F;
constexpr unsigned kLastOfLatin1 = 0xFF;

}  // namespace

std::string utf8OfLatin1(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const unsigned number = static_cast<unsigned char>(c);
    if (number <= kLastSingle) {
      result.push_back(c);
    } else {
      result.push_back(static_cast<char>(kFirstOfTwo | number >> kLowBitCount));
      result.push_back(static_cast<char>(kSecondOfTwo | (number & kLowBits)));
    }
  }
  return result;
}

std::optional<std::string> latin1OfUtf8(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const unsigned first = static_cast<unsigned char>(text[i]);
    if (first <= kLastSingle) {
      result.push_back(text[i]);
      continue;
    }
    const unsigned highBits = first - kFirstOfTwo;
    if (highBits > kLastOfLatin1 >> kLowBitCount || i + 1 == text.size()) {
      return std::nullopt;
    }
    const unsigned second = static_cast<unsigned char>(text[++i]);
    result.push_back(static_cast<char>(highBits << kLowBitCount | (second & kLowBits)));
  }
  return result;
}

}  // namespace vcmtool
