#include "messages/FittingWriter.h"

#include <fmt/format.h>

#include "VCM/VcmFormats/MultiLineLayout.h"
#include "terminal/Screen.h"

namespace vcmtool {

void FittingWriter::maneuverCards(const vcm::VcmRecord& record) {
  for (const vcm::ExtraLine& card : record.extraLines) {
    output().line(card.view());
  }
}

void FittingWriter::check(const vcm::VcmRecord& record, std::span<const vcm::Field> fields) {
  // No field is wider than a line, a date that comes out longer included.
  std::array<char, vcm::kMessageLineWidth> area;
  for (const vcm::Field& field : fields) {
    const auto width = static_cast<std::size_t>(field.write(record, area.data()));
    const std::string_view text(area.data(), width);
    // An asterisk in a text is what the message says, and can be read.
    vcm::VcmRecord scratch;
    const bool grown = width > static_cast<std::size_t>(field.width);
    if (grown || (isMisfit(text) && !field.read(text, scratch))) {
      misfits_.push_back(field.name);
    }
  }
}

void FittingWriter::reportMisfits(const vcm::VcmRecord& record) {
  if (misfits_.empty()) {
    return;
  }
  printMessage(fmt::format("vcm: satellite {}: {} {} not fit a {} message", record.satNum,
                           fmt::join(misfits_, ", "), misfits_.size() == 1 ? "does" : "do", form_));
  misfits_.clear();
  misfit();
}

}  // namespace vcmtool
