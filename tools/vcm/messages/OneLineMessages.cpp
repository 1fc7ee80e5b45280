// Messages of one line each.
#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/OneLineWriter.h"
#include "messages/FittingWriter.h"

namespace vcmtool {

namespace {

class OneLineMessages final : public FittingWriter {
 public:
  explicit OneLineMessages(TextOutput& output) : FittingWriter(output, "one-line") {}

  void message(const vcm::VcmRecord& record) override {
    std::array<char, vcm::kOneLineWidth> area;
    vcm::Vcm2Vcm1Line(record, area);
    const std::string_view text(area.data(), area.size());
    // Programs that read columns may expect the blanks at the end as well.
    output().buffer().append(text);
    output().buffer().push_back('\n');
    output().lineDone();
    maneuverCards(record);
    if (isMisfit(text)) {
      check(record, vcm::kOneLineFields);
      checkCovariance<vcm::OneLineCovarianceFormat>(record);
      reportMisfits(record);
    }
  }
};

}  // namespace

std::unique_ptr<MessageWriter> makeOneLineWriter(TextOutput& output) {
  return std::make_unique<OneLineMessages>(output);
}

}  // namespace vcmtool
