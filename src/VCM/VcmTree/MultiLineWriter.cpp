#include "VCM/VcmTree/MultiLineWriter.h"

#include <algorithm>
#include <array>

#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/Covariance.h"
#include "VCM/VcmTree/Store.h"

namespace vcm {

namespace {

constexpr std::size_t kLineWidth = kMessageLineWidth;

void writeLine(const LineLayout& layout, const VcmRecord& record, char* line) {
  std::copy(layout.text.begin(), layout.text.end(), line);
  std::size_t grown = 0;
  for (const Field& field : layout.fields) {
    const std::size_t at = field.first.index() + grown;
    const auto width = static_cast<std::size_t>(field.width);
    const auto written = static_cast<std::size_t>(field.write(record, line + at));
    if (written != width) {
      // A date that came out longer pushes the rest of its line to the right.
      const std::string_view rest =
          layout.text.substr(std::min(field.first.index() + width, layout.text.size()));
      std::copy(rest.begin(), rest.end(), line + at + written);
      grown += written - width;
    }
  }
}

void writeCovarianceRows(const VcmRecord& record, char* line) {
  const CovarianceTriangle values = Vcm2dTo1d(record.covMtx);
  const int count = covarianceValueCount(record.covMtxSize);
  for (int i = 0; i < count; ++i) {
    const int inRow = i % kValuesPerRow;
    if (inRow == 0) {
      line += i == 0 ? 0 : kLineWidth;
      std::copy(kLead.begin(), kLead.end(), line);
    }
    CovarianceFormat::write(values[static_cast<std::size_t>(i)],
                            line + covarianceColumn(inRow).index());
  }
}

}  // namespace

std::int32_t Vcm2VcmLines(const VcmRecord& record, std::span<char> area, std::int32_t* lineCount) {
  std::fill(area.begin(), area.end(), ' ');
  char* line = area.data();
  for (const LineLayout& layout : kMultiLineLayout) {
    writeLine(layout, record, line);
    line += kLineWidth;
  }
  writeCovarianceRows(record, line);
  if (lineCount != nullptr) {
    *lineCount = kMessageLines + covarianceRowCount(record.covMtxSize);
  }
  return kWritten;
}

std::int32_t Vcm2Lines(const VcmRecord& record, LineOutput& output) {
  std::array<char, kMaxMessageLines * kLineWidth> area;
  std::int32_t lineCount = 0;
  const std::int32_t result = Vcm2VcmLines(record, area, &lineCount);
  for (std::int32_t i = 0; i < lineCount; ++i) {
    output.line({area.data() + static_cast<std::size_t>(i) * kLineWidth, kLineWidth});
  }
  return result;
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
