// Messages as a saved file has them: a heading, then labelled lines.
#include <algorithm>
#include <cstdint>
#include <iterator>

#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmFormats/DateText.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "messages/FittingWriter.h"

namespace vcmtool {

namespace {

class MultiLineMessages final : public FittingWriter {
 public:
  explicit MultiLineMessages(TextOutput& output) : FittingWriter(output, "multi-line") {
    for (const vcm::LineLayout& line : vcm::kMultiLineLayout) {
      std::copy_if(line.fields.begin(), line.fields.end(), std::back_inserter(dates_),
                   [](const vcm::Field& field) { return field.width == vcm::kCalendarDateWidth; });
    }
  }

  void begin() override {
    for (const std::string_view line : vcm::kFileHeading) {
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
    } else {
      check(record, dates_);
    }
    // Without its year a designator is left out.
    const std::string_view intlDes = record.intlDes.view();
    constexpr std::size_t kYearDigits = 2;
    if (vcm::isAllBlank(intlDes.substr(0, kYearDigits)) && !vcm::isAllBlank(intlDes)) {
      addMisfit("intlDes");
    }
    reportMisfits(record);
  }

 private:
  std::vector<vcm::Field> dates_;
};

}  // namespace

vcm::VcmRecord readMultiLineBack(const vcm::VcmRecord& record) {
  constexpr std::size_t kWidth = vcm::kMessageLineWidth;
  std::array<char, vcm::kMaxMessageLines * kWidth> area;
  vcm::Vcm2VcmLines(record, area);
  std::array<std::string_view, vcm::kMaxMessageLines> lines;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    lines[i] = {area.data() + i * kWidth, kWidth};
  }
  return vcm::MultiLine2Vcm(lines);
}

std::unique_ptr<MessageWriter> makeMultiLineWriter(TextOutput& output) {
  return std::make_unique<MultiLineMessages>(output);
}

}  // namespace vcmtool
