// A caller's text argument.
#ifndef VCM_VCMDLLEXPORTS_INPUTTEXT_H
#define VCM_VCMDLLEXPORTS_INPUTTEXT_H

#include <array>
#include <cstdint>
#include <string_view>

#include "Host/HostCore.h"

namespace vcm {

// Copied up to its first NUL, but no more than `Length` characters, and blank padded to them.
template <std::int32_t Length>
class InputText {
 public:
  explicit InputText(const char* argument) {
    constexpr std::int32_t kLength = Length;
    chararrtostr(argument, &kLength, text_.data(), &kLength);
  }
  const std::array<char, Length>& array() const { return text_; }
  std::string_view view() const { return {text_.data(), text_.size()}; }

 private:
  std::array<char, Length> text_;
};

}  // namespace vcm

#endif
