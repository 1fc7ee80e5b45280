// Messages for people: a line for each field, the covariance as a labelled matrix.
#include <algorithm>
#include <string>
#include <vector>

#include "VCM/VcmTree/Covariance.h"
#include "messages/IsoDate.h"
#include "messages/MessageWriter.h"
#include "messages/PrintableText.h"
#include "messages/RecordFields.h"

namespace vcmtool {

namespace {

std::string valueText(const vcm::VcmRecord& record, const RecordField& field) {
  return std::visit(
      Overloaded{[&](IntegerMember member) { return fmt::format("{}", record.*member); },
                 [&](const RealMember& real) { return fmt::format("{}", real.get(record)); },
                 [&](DateMember member) { return isoDate(record.*member); },
                 [&](const VectorMember& vector) {
                   return fmt::format("{}", fmt::join(record.*(vector.member), "  "));
                 },
                 [&](const TextMember& text) { return printable(text.get(record)); }},
      field.member);
}

std::size_t longestName() {
  return std::max_element(kRecordFields.begin(), kRecordFields.end(),
                          [](const RecordField& a, const RecordField& b) {
                            return a.name.size() < b.name.size();
                          })
      ->name.size();
}

class FieldLines final : public MessageWriter {
 public:
  using MessageWriter::MessageWriter;

  void message(const vcm::VcmRecord& record) override {
    if (!first_) {
      output().line("");
    }
    first_ = false;
    for (const RecordField& field : kRecordFields) {
      named(field.name, valueText(record, field));
    }
    covariance(record);
    for (const vcm::ExtraLine& card : record.extraLines) {
      named(kManeuverCardsName, printable(card.view()));
    }
  }

 private:
  void named(std::string_view name, std::string_view value) {
    static const std::size_t width = longestName();
    output().line(fmt::format("{:<{}}  {}", name, width, value));
  }

  // The lower triangle, its columns as wide as they have to be.
  void covariance(const vcm::VcmRecord& record) {
    const std::size_t size = covarianceSize(record);
    named(kCovarianceName, size == 0 ? "none" : fmt::format("{0} x {0}", size));
    const vcm::CovarianceTriangle values = vcm::Vcm2dTo1d(record.covMtx);
    std::vector<std::string> texts;
    std::size_t width = 0;
    for (int i = 0; i < vcm::covarianceValueCount(static_cast<int>(size)); ++i) {
      texts.push_back(fmt::format("{}", values[static_cast<std::size_t>(i)]));
      width = std::max(width, texts.back().size());
    }
    constexpr std::string_view kRowStart = "  {:<4}";
    std::string labels = fmt::format(kRowStart, "");
    for (std::size_t row = 0; row < size; ++row) {
      labels += fmt::format("  {:>{}}", kCovarianceLabels[row], width);
    }
    if (size > 0) {
      output().line(labels);
    }
    for (std::size_t row = 0; row < size; ++row) {
      std::string line = fmt::format(kRowStart, kCovarianceLabels[row]);
      for (std::size_t column = 0; column <= row; ++column) {
        line += fmt::format("  {:>{}}", texts[triangleIndex(row, column)], width);
      }
      output().line(line);
    }
  }

  bool first_ = true;
};

}  // namespace

std::unique_ptr<MessageWriter> makeFieldWriter(TextOutput& output) {
  return std::make_unique<FieldLines>(output);
}

}  // namespace vcmtool
