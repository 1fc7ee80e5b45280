#include <cstdio>
#include <string>

#include "DllExports/VCM/VcmDllExports/InputText.h"
#include "Host/HostCore.h"
#include "Host/TraceLine.h"
#include "VCM/VcmCardReading/InputFileReader.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/Store.h"
#include "vcm/Vcm.h"

namespace {

// A caller's file name, without blanks around it.
class FileName : public vcm::InputText<VCM_FILE_NAME_LENGTH> {
 public:
  using InputText::InputText;
  std::string_view name() const {
    return vcm::withoutTrailingBlanks(vcm::withoutLeadingBlanks(view()));
  }
};

}  // namespace

int32_t VcmLoadFile(const char* vcmFile) VCM_NOEXCEPT {
  const FileName file(vcmFile);
  std::string message("VcmLoadFile: Reading VCMs from file \"");
  message.append(file.name()).append("\".");
  vcm::logInfo(message);
  return vcm::ReadVcmsFrFile(file.name());
}

int32_t VcmSaveFile(const char* vcmFile, int32_t saveMode) VCM_NOEXCEPT {
  const FileName target(vcmFile);
  constexpr std::int32_t kCreate = 0;
  constexpr std::int32_t kAppend = 2;
  const std::int32_t mode = saveMode == 0 ? kCreate : kAppend;
  const auto length = static_cast<std::int32_t>(target.name().size());
  std::FILE* file = nullptr;
  if (const std::int32_t code = fileopen(target.name().data(), &length, &mode, &file); code != 0) {
    return code;
  }
  {
    vcm::LineOutput output(file);
    for (const std::string_view line : vcm::kFileHeading) {
      output.line(line);
    }
    vcm::VcmWriteLines(output, vcm::mediaVcm);
  }
  std::fclose(file);
  return 0;
}
