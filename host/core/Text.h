// What the core routines share about the host's texts: a pointer and a length, no terminator.
#ifndef HOST_CORE_TEXT_H
#define HOST_CORE_TEXT_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace hostcore {

// Texts come from files and from C strings as well, so line ends, tabs and terminators are blanks.
inline constexpr std::string_view kBlanks{" \t\r\n\0", 5};

// A length below zero is that of an empty text.
inline std::size_t sizeOf(const std::int32_t* length) {
  return static_cast<std::size_t>(std::max(*length, 0));
}

inline std::string_view viewOf(const char* text, const std::int32_t* length) {
  return {text, sizeOf(length)};
}

inline std::string_view upToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

inline std::string_view withoutLeading(std::string_view text, std::string_view characters) {
  return text.substr(std::min(text.find_first_not_of(characters), text.size()));
}

inline std::string_view withoutTrailing(std::string_view text, std::string_view characters) {
  return text.substr(0, text.find_last_not_of(characters) + 1);
}

// Cuts or pads `from` to `size` characters. The two may overlap.
inline void copyPadded(std::string_view from, char* to, std::size_t size) {
  const std::size_t copied = std::min(from.size(), size);
  if (copied > 0) {
    std::char_traits<char>::move(to, from.data(), copied);
  }
  std::fill(to + copied, to + size, ' ');
}

}  // namespace hostcore

#endif
