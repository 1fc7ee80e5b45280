#include <array>
#include <cstdio>
#include <string>

#include "Host/HostCore.h"
#include "Host/TraceLine.h"
#include "VCM/VcmCardReading/InputFileReader.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/Store.h"
#include "vcm/Vcm.h"

namespace {

// A caller's file name, without blanks around it.
class FileName {
 public:
  explicit FileName(const char* array) {
    constexpr std::int32_t kLength = VCM_FILE_NAME_LENGTH;
    chararrtostr(array, &kLength, text_.data(), &kLength);
  }
  std::string_view view() const {
    return vcm::withoutTrailingBlanks(vcm::withoutLeadingBlanks({text_.data(), text_.size()}));
  }

 private:
  std::array<char, VCM_FILE_NAME_LENGTH> text_;
};

}  // namespace

int32_t VcmLoadFile(const char* vcmFile) VCM_NOEXCEPT {
  const FileName name(vcmFile);
  std::string message("VcmLoadFile: Reading VCMs from file \"");
  message.append(name.view()).append("\".");
  vcm::logInfo(message);
  return vcm::ReadVcmsFrFile(name.view());
}

int32_t VcmSaveFile(const char* vcmFile, int32_t saveMode) VCM_NOEXCEPT {
  const FileName name(vcmFile);
  constexpr std::int32_t kCreate = 0;
  constexpr std::int32_t kAppend = 2;
  const std::int32_t mode = saveMode == 0 ? kCreate : kAppend;
  const auto length = static_cast<std::int32_t>(name.view().size());
  std::FILE* file = nullptr;
  if (const std::int32_t code = fileopen(name.view().data(), &length, &mode, &file); code != 0) {
    return code;
  }
  {
    vcm::LineOutput output(file);
    for (const std::string_view line : {"", "", "", "*** Orbital Elements - VCMs ***"}) {
      output.line(line);
    }
    vcm::VcmWriteLines(output, vcm::mediaVcm);
  }
  std::fclose(file);
  return 0;
}
