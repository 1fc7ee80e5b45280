// Messages as a saved file has them: a heading, then labelled lines.
#include <cstdint>

#include "FittingWriter.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/MultiLineWriter.h"

namespace vcmtool {

namespace {

class MultiLineMessages final : public FittingWriter {
 public:
  explicit MultiLineMessages(TextOutput& output) : FittingWriter(output, "multi-line") {}

  void begin() override {
    for (const std::string_view line : {"", "", "", "*** Orbital Elements - VCMs ***"}) {
      output().line(line);
    }
  }

  void message(const vcm::VcmRecord& record) override {
    constexpr std::size_t kWidth = vcm::kMessageLineWidth;
    std::array<char, vcm::kMaxMessageLines * kWidth> area;
    std::int32_t count = 0;
    vcm::Vcm2VcmLines(record, area, &count);
    const std::string_view text(area.data(), static_cast<std::size_t>(count) * kWidth);
    for (std::size_t at = 0; at < text.size(); at += kWidth) {
      output().line(text.substr(at, kWidth));
    }
    maneuverCards(record);
    if (isMisfit(text)) {
      for (const vcm::LineLayout& line : vcm::kMultiLineLayout) {
        check(record, line.fields);
      }
      checkCovariance<vcm::CovarianceFormat>(record);
      reportMisfits(record);
    }
  }
};

}  // namespace

std::unique_ptr<MessageWriter> makeMultiLineWriter(TextOutput& output) {
  return std::make_unique<MultiLineMessages>(output);
}

}  // namespace vcmtool
