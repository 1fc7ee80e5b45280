// Character fields of fixed width: blank padded, never terminated.
#ifndef VCM_VCMTYPES_FIXEDTEXT_H
#define VCM_VCMTYPES_FIXEDTEXT_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace vcm {

// What counts as a blank in message text: line ends, tabs and NULs are treated as blanks.
constexpr bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\0';
}

constexpr bool isAllBlank(std::string_view text) {
  return std::all_of(text.begin(), text.end(), isBlank);
}

constexpr std::string_view withoutLeadingBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) {
    text.remove_prefix(1);
  }
  return text;
}

constexpr std::string_view withoutTrailingBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

// Every character, with a real blank for any kind of blank.
inline constexpr std::array<char, 256> kRealBlanks = [] {
  std::array<char, 256> result{};
  for (std::size_t i = 0; i < result.size(); ++i) {
    const auto c = static_cast<char>(i);
    result[i] = isBlank(c) ? ' ' : c;
  }
  return result;
}();

// Copies a text into `width` characters: cut or padded to the width, every blank a real one.
constexpr void copyPadded(std::string_view from, char* to, std::size_t width) {
  const std::size_t n = std::min(from.size(), width);
  for (std::size_t i = 0; i < n; ++i) {
    to[i] = kRealBlanks[static_cast<unsigned char>(from[i])];
  }
  std::fill(to + n, to + width, ' ');
}

template <std::size_t N>
class FixedText {
 public:
  static constexpr std::size_t width = N;

  constexpr FixedText() { chars_.fill(' '); }
  constexpr FixedText(std::string_view text) { assign(text); }  // NOLINT: a text is a text

  constexpr void assign(std::string_view text) {
    if (text.size() == N) {  // known to the compiler more often than not
      for (std::size_t i = 0; i < N; ++i) {
        chars_[i] = kRealBlanks[static_cast<unsigned char>(text[i])];
      }
    } else {
      copyPadded(text, chars_.data(), N);
    }
  }
  constexpr void assignAt(std::size_t position, std::string_view text) {
    copyPadded(text, chars_.data() + position, N - position);
  }
  constexpr void shiftLeft() {
    if (chars_.front() == ' ') {
      const FixedText before = *this;
      assign(withoutLeadingBlanks(before.view()));
    }
  }

  constexpr std::string_view view() const { return {chars_.data(), N}; }
  constexpr bool isBlank() const { return isAllBlank(view()); }
  friend constexpr bool operator==(const FixedText&, const FixedText&) = default;

 private:
  std::array<char, N> chars_;
};

}  // namespace vcm

#endif
