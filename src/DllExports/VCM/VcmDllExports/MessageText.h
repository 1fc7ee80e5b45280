// A caller's message in any text form.
#ifndef VCM_VCMDLLEXPORTS_MESSAGETEXT_H
#define VCM_VCMDLLEXPORTS_MESSAGETEXT_H

#include <array>
#include <cstdint>
#include <string_view>

#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "VCM/VcmCardReading/CardType.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "vcm/Vcm.h"

namespace vcm {

// Copied up to its first NUL and blank padded. Of a one-line message no more is read than its own
// length, so that what one function wrote as such may be given to the next as it is.
class MessageText {
 public:
  explicit MessageText(const char* argument) {
    const InputText<kMessageLineWidth> start(argument);  // tells a one-line message
    if (VcmCardType(start.view()) == CardType::oneLineMessage) {
      length_ = VCM_ONE_LINE_LENGTH;
    }
    chararrtostr(argument, &length_, text_.data(), &length_);
  }
  std::string_view view() const { return {text_.data(), static_cast<std::size_t>(length_)}; }

 private:
  std::array<char, VCM_TEXT_LENGTH> text_;
  std::int32_t length_ = VCM_TEXT_LENGTH;
};

}  // namespace vcm

#endif
