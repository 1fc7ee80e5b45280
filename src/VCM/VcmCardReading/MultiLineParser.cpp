#include "VCM/VcmCardReading/MultiLineParser.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <utility>

#include "Host/HostCore.h"
#include "Host/TraceLine.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/Covariance.h"

namespace vcm {

namespace {

// Columns of a line that may lack its lead, and may end early.
class AnyColumns {
 public:
  AnyColumns(std::string_view line, bool bareForm)
      : line_(line), missing_(bareForm ? static_cast<int>(kLead.size()) : 0) {}
  std::string_view at(Column first, int width) const {
    return columnsOf(line_, Column{first.number - missing_}, width);
  }

 private:
  std::string_view line_;
  int missing_;
};

// Columns of a line with its lead that is known to be long enough: where they are is a constant.
class WholeColumns {
 public:
  explicit WholeColumns(std::string_view line) : line_(line.data()) {}
  std::string_view at(Column first, int width) const {
    return {line_ + first.index(), static_cast<std::size_t>(width)};
  }

 private:
  const char* line_;
};

// Calls visit(columns) with the columns of a line, of which those up to `length` will be looked at.
template <std::size_t Length, class Visit>
auto withColumns(std::string_view line, bool bareForm, Visit&& visit) {
  return !bareForm && line.size() >= Length ? visit(WholeColumns(line))
                                            : visit(AnyColumns(line, bareForm));
}

// Every line of a message runs code of its own, so that what is seldom needed is kept out of it: the
// code of a whole message should stay in the processor's instruction cache.

// A label's own blanks may be any kind of blank.
[[gnu::noinline]] bool isLabelWithOtherBlanks(std::string_view text, std::string_view label) {
  return std::equal(text.begin(), text.end(), label.begin(), label.end(), [](char c, char wanted) {
    return c == wanted || (wanted == ' ' && isBlank(c));
  });
}

template <std::size_t Line, class Columns>
bool hasLabel(const Columns& line) {
  static constexpr const LineLayout& layout = kMultiLineLayout[Line];
  constexpr std::string_view label = layout.labelText();
  const std::string_view text = line.at(layout.label.first, layout.label.width);
  return (text.size() == label.size() &&
          std::memcmp(text.data(), label.data(), label.size()) == 0) ||
         isLabelWithOtherBlanks(text, label);
}

[[gnu::noinline]] void reject(VcmRecord& record, const LineLayout& layout, ReportedBy reportedBy) {
  record.parseStatus = kRejected;
  std::string message(reportedBy == ReportedBy::fileReader ? "ReadVCMFrFileUnit" : "MultiLine2Vcm");
  message.append(": Invalid line caused read error @ '").append(layout.name).append("'.");
  logError(message);
}

// Reads the fields of a line up to the first that cannot be read; its name, empty when there is none.
template <std::size_t Line, class Columns>
std::string_view readFields(const Columns& line, VcmRecord& record) {
  static constexpr std::span<const Field> fields = kMultiLineLayout[Line].fields;
  std::string_view unreadable;
  everyIndex<fields.size()>([&]<std::size_t I>() {
    constexpr const Field& field = fields[I];
    if (field.read(line.at(field.first, field.width), record)) {
      return true;
    }
    unreadable = field.name;
    return false;
  });
  return unreadable;
}

// A source gives the lines of a message:
//   bool next(std::string_view& line)       the next line; false when there is none
//   void skip()                             passes over the next line
//   bool isBareForm() const                 lines lack their lead: the first character is column 4
//   ReportedBy reportedBy(const LineLayout&) const
//   void unreadable(std::string_view field)

// Reads a line; false when it is not there or is another.
template <std::size_t Line, class Source>
bool readLine(Source& source, VcmRecord& record) {
  static constexpr const LineLayout& layout = kMultiLineLayout[Line];
  if (!layout.inBareForm && source.isBareForm()) {
    return true;
  }
  if constexpr (!layout.isRead()) {
    source.skip();
    return true;
  } else {
    std::string_view text;
    const bool present = source.next(text);
    return withColumns<endOf(layout)>(text, source.isBareForm(), [&](const auto& line) {
      if (!present || !hasLabel<Line>(line)) {
        reject(record, layout, source.reportedBy(layout));
        return false;
      }
      if (const std::string_view name = readFields<Line>(line, record); !name.empty()) {
        source.unreadable(name);
      }
      return true;
    });
  }
}

// Reads the values of a row; false at the first that cannot be read.
template <class Columns>
bool readCovarianceRow(const Columns& row, std::span<double> values) {
  int inRow = 0;
  for (double& value : values) {  // NOLINT(readability-use-anyofallof): that one unrolls
    if (!CovarianceFormat::read(row.at(covarianceColumn(inRow++), CovarianceFormat::width),
                                value)) {
      return false;
    }
  }
  return true;
}

// Reads the rows that the covariance size announces; false when one is missing or cannot be read.
template <class Source>
bool readCovariance(Source& source, VcmRecord& record) {
  CovarianceTriangle values{};
  const auto count = static_cast<std::size_t>(covarianceValueCount(record.covMtxSize));
  for (auto rest = std::span(values).first(count); !rest.empty();) {
    const auto row = rest.first(std::min<std::size_t>(rest.size(), kValuesPerRow));
    std::string_view text;
    if (!source.next(text)) {
      return false;
    }
    constexpr auto kEnd = covarianceColumn(kValuesPerRow).index();
    const bool readable = withColumns<kEnd - 1>(
        text, source.isBareForm(),
        [row](const auto& columns) { return readCovarianceRow(columns, row); });
    if (!readable) {
      source.unreadable("covMtx");
      return false;
    }
    rest = rest.subspan(row.size());
  }
  record.covMtx = Vcm1dTo2d(values);
  return true;
}

template <class Source>
VcmRecord parse(Source& source) {
  VcmRecord record;
  const bool complete = everyIndex<kMultiLineLayout.size()>(
      [&]<std::size_t I>() { return readLine<I>(source, record); });
  if (!complete || record.covMtxSize < 1) {
    return record;
  }
  if (record.covMtxSize > kCovarianceDimension || !readCovariance(source, record)) {
    const LineLayout& layout = kMultiLineLayout.back();
    reject(record, layout, source.reportedBy(layout));
  }
  return record;
}

class TextLines {
 public:
  explicit TextLines(std::span<const std::string_view> lines) : lines_(lines) {}

  // Lines that a text lacks read as blanks.
  bool next(std::string_view& line) {
    line = next_ < lines_.size() ? lines_[next_++] : std::string_view();
    return true;
  }
  void skip() { ++next_; }
  bool isBareForm() const { return false; }
  ReportedBy reportedBy(const LineLayout& layout) const { return layout.reportedBy; }
  void unreadable(std::string_view /*field*/) {}

 private:
  std::span<const std::string_view> lines_;
  std::size_t next_ = 0;
};

class FileLines {
 public:
  FileLines(CardReader& cards, CardType firstCard, ReadingObserver* observer)
      : cards_(cards), bare_(firstCard == CardType::bareFirstLine), observer_(observer) {}

  bool next(std::string_view& line) {
    if (std::exchange(first_, false)) {
      line = firstLine();
      return true;
    }
    const bool present = cards_.next();
    line = present ? cards_.card() : std::string_view();
    return present;
  }
  void skip() {
    if (!std::exchange(first_, false)) {
      SkipLines(cards_, 1);
    }
  }
  bool isBareForm() const { return bare_; }
  ReportedBy reportedBy(const LineLayout& /*layout*/) const { return ReportedBy::fileReader; }
  void unreadable(std::string_view field) {
    if (observer_ != nullptr) {
      observer_->unreadable(cards_.lineNumber(), field);
    }
  }

 private:
  // The card that announced the message, as it was classified: shifted left and in capitals.
  [[gnu::noinline]] std::string_view firstLine() {
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
