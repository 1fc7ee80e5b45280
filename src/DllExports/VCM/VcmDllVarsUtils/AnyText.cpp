#include "DllExports/VCM/VcmDllVarsUtils/AnyText.h"

#include "Host/TraceLine.h"
#include "VCM/VcmCardReading/CardType.h"
#include "VCM/VcmCardReading/ConcatenatedText.h"
#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmCardReading/OneLineParser.h"
#include "VCM/VcmFormats/MultiLineLayout.h"

namespace vcm {

namespace {

VcmRecord rejected(std::string_view reason) {
  logError(reason);
  VcmRecord record;
  record.parseStatus = kRejected;
  return record;
}

}  // namespace

VcmRecord AnyVcmStrings2Vcm(std::string_view text) {
  if (VcmCardType(text) == CardType::oneLineMessage) {
    return Vcm1Line2Vcm(text);
  }
  const ConcatenatedLines message = Concatenated2MultiLine(text);
  if (message.count() == 0) {
    return rejected("AnyVcmStrings2Vcm: Invalid concatenated vcm string.");
  }
  if (message.count() < std::size_t{kMessageLines}) {
    return rejected("AnyVcmStrings2Vcm: Number of vcm records needs to be at least 27.");
  }
  return MultiLine2Vcm(message.lines());
}

}  // namespace vcm
