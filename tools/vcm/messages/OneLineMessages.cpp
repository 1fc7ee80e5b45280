// Messages of one line each.
#include "VCM/VcmCardReading/OneLineParser.h"
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

vcm::VcmRecord readOneLineBack(const vcm::VcmRecord& record) {
  std::array<char, vcm::kOneLineWidth> line;
  vcm::Vcm2Vcm1Line(record, line);
  return vcm::Vcm1Line2Vcm({line.data(), line.size()});
}

std::unique_ptr<MessageWriter> makeOneLineWriter(TextOutput& output) {
  return std::make_unique<OneLineMessages>(output);
}

}  // namespace vcmtool
