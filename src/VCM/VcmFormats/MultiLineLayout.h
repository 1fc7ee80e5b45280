// The multi-line message: its lines, labels and fields, for writer and readers alike.
#ifndef VCM_VCMFORMATS_MULTILINELAYOUT_H
#define VCM_VCMFORMATS_MULTILINELAYOUT_H

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "VCM/VcmFormats/Field.h"

namespace vcm {

// The part of a line by which readers recognise it.
struct Label {
  Column first;
  int width;  // 0: the line is not looked at
};

// Whose message names a line that the text parser does not recognise. Some lines name the file
// reader; that is deliberate.
enum class ReportedBy { textParser, fileReader };

struct LineLayout {
  // The line as written, blanks where its fields stand.
  std::string_view text;
  Label label;
  // The line's name in messages.
  std::string_view name;
  std::span<const Field> fields;
  // The bare form of input files lacks some lines.
  bool inBareForm = true;
  ReportedBy reportedBy = ReportedBy::textParser;

  constexpr bool isRead() const { return label.width > 0; }
  constexpr std::string_view labelText() const {
    return text.substr(label.first.index(), static_cast<std::size_t>(label.width));
  }
};

inline constexpr int kMessageLines = 27;  // the covariance rows come after these
inline constexpr int kMessageLineWidth = 80;
extern const std::array<LineLayout, kMessageLines> kMultiLineLayout;

// What every line but the second begins with; the lines of the bare form lack it.
inline constexpr std::string_view kLead = "<> ";

// ---- covariance rows: up to five values in each -------------------------------------------------

inline constexpr int kValuesPerRow = 5;
inline constexpr int kMaxCovarianceRows = kCovarianceValues / kValuesPerRow;
inline constexpr int kMaxMessageLines = kMessageLines + kMaxCovarianceRows;

constexpr int covarianceRowCount(int size) {
  return (covarianceValueCount(size) + kValuesPerRow - 1) / kValuesPerRow;
}

using CovarianceFormat = Scientific<12, 5, 9>;

constexpr Column covarianceColumn(int valueInRow) {
  return {static_cast<int>(kLead.size()) + 1 + valueInRow * (CovarianceFormat::width + 1)};
}

}  // namespace vcm

#endif
