#include "VCM/VcmCardReading/MultiLineParser.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "Host/HostCore.h"
#include "Host/TraceLine.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/Covariance.h"

namespace vcm {

namespace {

// Where a parser's lines come from. A line lacks its lead where the bare form does: its first
// character then stands in column 4.
class LineSource {
 public:
  LineSource() = default;
  LineSource(const LineSource&) = delete;
  LineSource& operator=(const LineSource&) = delete;
  virtual ~LineSource() = default;

  // The next line of the message; false when there is none.
  virtual bool next(std::string_view& line) = 0;
  // Passes over the next line.
  virtual void skip() = 0;
  virtual bool isBareForm() const = 0;
  virtual ReportedBy reportedBy(const LineLayout& layout) const = 0;
  virtual void unreadable(std::string_view field) = 0;
};

// Columns of a line that may lack its lead.
class Columns {
 public:
  Columns(std::string_view line, bool bareForm)
      : line_(line), missing_(bareForm ? static_cast<int>(kLead.size()) : 0) {}
  std::string_view at(Column first, int width) const {
    return columnsOf(line_, Column{first.number - missing_}, width);
  }

 private:
  std::string_view line_;
  int missing_;
};

// A label's own blanks may be any kind of blank.
bool matches(std::string_view text, std::string_view label) {
  return text == label ||
         (text.size() == label.size() &&
          std::equal(text.begin(), text.end(), label.begin(), [](char c, char wanted) {
            return c == wanted || (wanted == ' ' && isBlank(c));
          }));
}

void reject(VcmRecord& record, const LineLayout& layout, const LineSource& source) {
  record.parseStatus = kRejected;
  const bool byFileReader = source.reportedBy(layout) == ReportedBy::fileReader;
  std::string message(byFileReader ? "ReadVCMFrFileUnit" : "MultiLine2Vcm");
  message.append(": Invalid line caused read error @ '").append(layout.name).append("'.");
  logError(message);
}

void readFields(const LineLayout& layout, const Columns& line, VcmRecord& record,
                LineSource& source) {
  for (const Field& field : layout.fields) {
    if (!field.read(line.at(field.first, field.width), record)) {
      source.unreadable(field.name);
      return;
    }
  }
}

// Reads the rows that the covariance size announces; false when one is missing or cannot be read.
bool readCovariance(LineSource& source, VcmRecord& record) {
  CovarianceTriangle values{};
  const int count = covarianceValueCount(record.covMtxSize);
  for (int first = 0; first < count; first += kValuesPerRow) {
    std::string_view text;
    if (!source.next(text)) {
      return false;
    }
    const Columns row(text, source.isBareForm());
    for (int i = first; i < std::min(first + kValuesPerRow, count); ++i) {
      if (!CovarianceFormat::read(row.at(covarianceColumn(i - first), CovarianceFormat::width),
                                  values[static_cast<std::size_t>(i)])) {
        source.unreadable("covMtx");
        return false;
      }
    }
  }
  record.covMtx = Vcm1dTo2d(values);
  return true;
}

VcmRecord parse(LineSource& source) {
  VcmRecord record;
  for (const LineLayout& layout : kMultiLineLayout) {
    if (!layout.inBareForm && source.isBareForm()) {
      continue;
    }
    if (!layout.isRead()) {
      source.skip();
      continue;
    }
    std::string_view text;
    const bool present = source.next(text);
    const Columns line(text, source.isBareForm());
    if (!present || !matches(line.at(layout.label.first, layout.label.width), layout.labelText())) {
      reject(record, layout, source);
      return record;
    }
    readFields(layout, line, record, source);
  }
  if (record.covMtxSize < 1) {
    return record;
  }
  if (record.covMtxSize > kCovarianceDimension || !readCovariance(source, record)) {
    reject(record, kMultiLineLayout.back(), source);
  }
  return record;
}

class TextLines final : public LineSource {
 public:
  explicit TextLines(std::span<const std::string_view> lines) : lines_(lines) {}

  // Lines that a text lacks read as blanks.
  bool next(std::string_view& line) override {
    line = next_ < lines_.size() ? lines_[next_++] : std::string_view();
    return true;
  }
  void skip() override { ++next_; }
  bool isBareForm() const override { return false; }
  ReportedBy reportedBy(const LineLayout& layout) const override { return layout.reportedBy; }
  void unreadable(std::string_view /*field*/) override {}

 private:
  std::span<const std::string_view> lines_;
  std::size_t next_ = 0;
};

class FileLines final : public LineSource {
 public:
  FileLines(CardReader& cards, CardType firstCard, ReadingObserver* observer)
      : cards_(cards), bare_(firstCard == CardType::bareFirstLine), observer_(observer) {}

  bool next(std::string_view& line) override {
    if (std::exchange(first_, false)) {
      line = firstLine();
      return true;
    }
    const bool present = cards_.next();
    line = present ? cards_.card() : std::string_view();
    return present;
  }
  void skip() override {
    if (!std::exchange(first_, false)) {
      SkipLines(cards_, 1);
    }
  }
  bool isBareForm() const override { return bare_; }
  ReportedBy reportedBy(const LineLayout& /*layout*/) const override {
    return ReportedBy::fileReader;
  }
  void unreadable(std::string_view field) override {
    if (observer_ != nullptr) {
      observer_->unreadable(cards_.lineNumber(), field);
    }
  }

 private:
  // The card that announced the message, as it was classified: shifted left and in capitals.
  std::string_view firstLine() {
    copyPadded(withoutLeadingBlanks(cards_.card()), start_.data(), start_.size());
    constexpr std::int32_t kLength = kMessageLineWidth;
    touppercase(start_.data(), &kLength);
    return {start_.data(), start_.size()};
  }

  CardReader& cards_;
  bool bare_;
  ReadingObserver* observer_;
  bool first_ = true;
  std::array<char, kMessageLineWidth> start_;
};

}  // namespace

VcmRecord MultiLine2Vcm(std::span<const std::string_view> lines) {
  TextLines source(lines);
  return parse(source);
}

VcmRecord ReadVCMFrFileUnit(CardReader& cards, CardType firstCard, ReadingObserver* observer) {
  FileLines source(cards, firstCard, observer);
  return parse(source);
}

}  // namespace vcm
