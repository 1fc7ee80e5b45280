// A caller's message in any text form.
#ifndef VCM_VCMDLLEXPORTS_MESSAGETEXT_H
#define VCM_VCMDLLEXPORTS_MESSAGETEXT_H

#include <optional>

#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "VCM/VcmCardReading/CardType.h"
#include "vcm/Vcm.h"

namespace vcm {

// Of a one-line message no more is read than its own length, so that what one function wrote as such
// may be given to the next as it is.
class MessageText {
 public:
  explicit MessageText(const char* argument) : start_(argument) {
    if (VcmCardType(start_.view()) != CardType::oneLineMessage) {
      whole_.emplace(argument);
    }
  }
  std::string_view view() const { return whole_ ? whole_->view() : start_.view(); }

 private:
  InputText<VCM_ONE_LINE_LENGTH> start_;
  std::optional<InputText<VCM_TEXT_LENGTH>> whole_;
};

}  // namespace vcm

#endif
