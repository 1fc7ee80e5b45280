// Messages as comma-separated values: a header, then a row for each. Maneuver cards have no place.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "VCM/VcmTree/Covariance.h"
#include "messages/IsoDate.h"
#include "messages/Latin1.h"
#include "messages/MessageWriter.h"
#include "messages/RecordFields.h"

namespace vcmtool {

namespace {

class CsvMessages final : public MessageWriter {
 public:
  using MessageWriter::MessageWriter;

  void begin() override {
    for (const RecordField& field : kRecordFields) {
      if (const auto* const vector = std::get_if<VectorMember>(&field.member)) {
        for (std::size_t i = 0; i < vector->axes.size(); ++i) {
          text(vector->component(i));
        }
      } else {
        text(field.name);
      }
    }
    text(fmt::format("{}_size", kCovarianceName));
    for (std::size_t row = 0; row < kCovarianceLabels.size(); ++row) {
      for (std::size_t column = 0; column <= row; ++column) {
        text(covarianceElement(row, column));
      }
    }
    endRow();
  }

  void message(const vcm::VcmRecord& record) override {
    for (const RecordField& field : kRecordFields) {
      std::visit(
          Overloaded{[&](IntegerMember member) { number(record.*member); },
                     [&](const RealMember& real) { number(real.get(record)); },
                     [&](DateMember member) { text(isoDate(record.*member)); },
                     [&](const VectorMember& vector) {
                       for (const double value : record.*(vector.member)) {
                         number(value);
                       }
                     },
                     [&](const TextMember& member) { text(utf8OfLatin1(member.get(record))); }},
          field.member);
    }
    covariance(record);
    endRow();
  }

 private:
  void covariance(const vcm::VcmRecord& record) {
    const std::size_t size = covarianceSize(record);
    const vcm::CovarianceTriangle values = vcm::Vcm2dTo1d(record.covMtx);
    const auto count = static_cast<std::size_t>(vcm::covarianceValueCount(static_cast<int>(size)));
    number(size);
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (i < count) {
        number(values[i]);
      } else {
        text("");
      }
    }
  }

  fmt::appender separated() {
    if (!firstOfRow_) {
      output().buffer().push_back(',');
    }
    firstOfRow_ = false;
    return fmt::appender(output().buffer());
  }

  template <class Number>
  void number(Number value) {
    const fmt::appender out = separated();
    if constexpr (std::is_floating_point_v<Number>) {
      if (!std::isfinite(value)) {
        return;
      }
    }
    fmt::format_to(out, "{}", value);
  }

  void text(std::string_view value) {
    separated();
    if (value.find_first_of(",\"\r\n") == std::string_view::npos) {
      output().buffer().append(value);
      return;
    }
    output().buffer().push_back('"');
    for (const char c : value) {
      // A quote within quotes stands twice.
      output().buffer().append(c == '"' ? std::string_view("\"\"") : std::string_view(&c, 1));
    }
    output().buffer().push_back('"');
  }

  void endRow() {
    output().buffer().append(std::string_view("\r\n"));
    output().lineDone();
    firstOfRow_ = true;
  }

  bool firstOfRow_ = true;
};

}  // namespace

std::unique_ptr<MessageWriter> makeCsvWriter(TextOutput& output) {
  return std::make_unique<CsvMessages>(output);
}

}  // namespace vcmtool
