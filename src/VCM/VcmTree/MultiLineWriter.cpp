#include "VCM/VcmTree/MultiLineWriter.h"

#include <algorithm>
#include <array>

#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/Covariance.h"
#include "VCM/VcmTree/Store.h"

namespace vcm {

namespace {

constexpr std::size_t kLineWidth = kMessageLineWidth;

using LineImage = std::array<char, kLineWidth>;

// A line whose fields are still blank.
constexpr LineImage imageOf(std::string_view text) {
  LineImage image{};
  image.fill(' ');
  std::copy(text.begin(), text.end(), image.begin());
  return image;
}

// Fills a line and returns where its text ends.
template <std::size_t Line>
char* writeLine(const VcmRecord& record, char* line) {
  static constexpr const LineLayout& layout = kMultiLineLayout[Line];
  static constexpr LineImage kImage = imageOf(layout.text);
  std::copy(kImage.begin(), kImage.end(), line);
  std::size_t grown = 0;
  eachIndex<layout.fields.size()>([&]<std::size_t I>() {
    constexpr const Field& field = layout.fields[I];
    char* const at = line + field.first.index() + grown;
    const auto written = static_cast<std::size_t>(field.write(record, at));
    if constexpr (field.canGrow) {
      // A date that came out longer pushes the rest of its line to the right.
      constexpr auto width = static_cast<std::size_t>(field.width);
      constexpr std::string_view rest =
          layout.text.substr(std::min(field.first.index() + width, layout.text.size()));
      std::copy(rest.begin(), rest.end(), at + written);
      grown += written - width;
    }
  });
  return line + endOf(layout) + grown;
}

char* writeCovarianceRow(std::span<const double> values, char* line) {
  static constexpr LineImage kImage = imageOf(kLead);
  std::copy(kImage.begin(), kImage.end(), line);
  int inRow = 0;
  for (const double value : values) {
    CovarianceFormat::write(value, line + covarianceColumn(inRow++).index());
  }
  return line + covarianceColumn(inRow).index();
}

// Writes all lines of a message, each where begin() says and ended by end().
template <class Lines>
void writeMessage(const VcmRecord& record, Lines& lines) {
  eachIndex<kMessageLines>(
      [&]<std::size_t I>() { lines.end(writeLine<I>(record, lines.begin(kLineWidth))); });
  const auto count = static_cast<std::size_t>(covarianceValueCount(record.covMtxSize));
  if (count == 0) {
    return;
  }
  const CovarianceTriangle triangle = Vcm2dTo1d(record.covMtx);
  for (auto rest = std::span(triangle).first(count); !rest.empty();) {
    const auto row = rest.first(std::min<std::size_t>(rest.size(), kValuesPerRow));
    lines.end(writeCovarianceRow(row, lines.begin(kLineWidth)));
    rest = rest.subspan(row.size());
  }
}

// Lines one behind the other in an area.
class AreaLines {
 public:
  explicit AreaLines(char* area) : at_(area) {}
  char* begin(std::size_t /*size*/) { return at_; }
  void end(const char* /*last*/) { at_ += kLineWidth; }

 private:
  char* at_;
};

}  // namespace

std::int32_t Vcm2VcmLines(const VcmRecord& record, std::span<char> area, std::int32_t* lineCount) {
  AreaLines lines(area.data());
  writeMessage(record, lines);
  std::fill(lines.begin(0), area.data() + area.size(), ' ');
  if (lineCount != nullptr) {
    *lineCount = kMessageLines + covarianceRowCount(record.covMtxSize);
  }
  return kWritten;
}

std::int32_t Vcm2Lines(const VcmRecord& record, LineOutput& output) {
  writeMessage(record, output);
  return kWritten;
}

void VcmWriteLines(LineOutput& output, const VcmMedia& media) {
  const StoreReading reading;
  StoreTree::walkUp(media.root, [&](const VcmBinTree& node) {
    if (const VcmRecord* const record = recordOf(node)) {
      Vcm2Lines(*record, output);
    }
  });
}

}  // namespace vcm
