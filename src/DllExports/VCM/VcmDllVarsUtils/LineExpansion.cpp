#include "DllExports/VCM/VcmDllVarsUtils/LineExpansion.h"

#include <array>
#include <charconv>
#include <string>

#include "Host/HostCore.h"
#include "VCM/VcmCardReading/CardReader.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "VCM/VcmFormats/DateText.h"
#include "VCM/VcmFormats/ExpansionLayout.h"
#include "VCM/VcmFormats/OneLineLayout.h"
#include "vcm/Vcm.h"

namespace vcm {

namespace {

using OneLine = FixedText<kOneLineWidth>;

std::int32_t openWithSlashes(std::string_view name, std::int32_t mode, OpenFile& file) {
  std::string slashed(name.substr(0, std::size_t{VCM_FILE_NAME_LENGTH}));
  constexpr std::int32_t kOne = 1;
  const auto length = static_cast<std::int32_t>(slashed.size());
  replacestring(slashed.data(), &length, "\\", &kOne, "/", &kOne);
  std::FILE* stream = nullptr;
  const std::int32_t code = fileopen(slashed.data(), &length, &mode, &stream);
  file.reset(stream);
  return code;
}

// The day and month of a message's epoch. A day of year below 1 leaves what the message before had.
class EpochDate {
 public:
  EpochDate() { text_.fill(' '); }
  void take(std::string_view message) {
    std::int32_t year = 0;
    std::int32_t dayOfYear = 0;
    readInteger(columnsOf(message, kExpansionYear, kExpansionYearWidth), year);
    readInteger(columnsOf(message, kExpansionDayOfYear, kExpansionDayOfYearWidth), dayOfYear);
    if (dayOfYear >= 1) {
      writeDayAndMonth(year % 4 == 0, dayOfYear, text_.data());
    }
  }
  std::string_view text() const { return {text_.data(), text_.size()}; }

 private:
  std::array<char, kDayAndMonthWidth> text_;
};

bool hasShortForm(std::string_view message) {
  const std::string_view looked =
      columnsOf(message, kShortFormFirst, kShortFormLast.number - kShortFormFirst.number + 1);
  return looked.find(' ') == std::string_view::npos;
}

// What "{7-10}" or "{date}" stands for, without its braces.
std::string_view resolved(std::string_view placeholder, std::string_view message,
                          const EpochDate& date) {
  const std::size_t dash = placeholder.find('-');
  if (dash == std::string_view::npos) {
    return date.text();
  }
  const char* const middle = placeholder.data() + dash;
  int first = 0;
  int last = 0;
  std::from_chars(placeholder.data(), middle, first);
  std::from_chars(middle + 1, placeholder.data() + placeholder.size(), last);
  return columnsOf(message, Column{first}, last - first + 1);
}

void appendLine(const ExpansionLine& line, std::string_view message, const EpochDate& date,
                std::string& out) {
  const std::size_t begin = out.size();
  std::string_view rest = line.pattern;
  for (std::size_t brace = 0; (brace = rest.find('{')) != std::string_view::npos;) {
    const std::size_t end = rest.find('}');
    out.append(rest.substr(0, brace));
    out.append(resolved(rest.substr(brace + 1, end - brace - 1), message, date));
    rest.remove_prefix(end + 1);
  }
  out.append(rest);
  if (line.padded) {
    out.resize(std::max(out.size(), begin + kExpansionLineWidth), ' ');
  }
  out.push_back('\n');
}

void appendCovariance(std::string_view message, std::string& out) {
  for (int i = 0; i < kExpansionMaxRows; ++i) {
    const std::string_view row = columnsOf(
        message, Column{kExpansionRows.number + i * kExpansionRowWidth}, kExpansionRowWidth);
    if (row[kPointInRow.index()] == ' ') {
      return;
    }
    out.append(kExpansionRowLead).append(row).push_back('\n');
  }
}

}  // namespace

std::int32_t Vcm1LineToMany(std::string_view inputFile, std::string_view outputFile) {
  constexpr std::int32_t kCreate = 0;
  constexpr std::int32_t kRead = 1;
  OpenFile input;
  OpenFile output;
  if (const std::int32_t code = openWithSlashes(inputFile, kRead, input); code != 0) {
    return code;
  }
  if (const std::int32_t code = openWithSlashes(outputFile, kCreate, output); code != 0) {
    return code;
  }
  CardReader lines(input.get());
  EpochDate date;
  std::string expanded;
  while (lines.next()) {
    const OneLine line(lines.card());
    const std::string_view message = line.view();
    date.take(message);
    expanded.clear();
    for (const ExpansionLine& row : hasShortForm(message) ? kShortForm : kFullForm) {
      appendLine(row, message, date, expanded);
    }
    appendCovariance(message, expanded);
    if (std::fwrite(expanded.data(), 1, expanded.size(), output.get()) < expanded.size()) {
      return streamError();
    }
  }
  return std::fclose(output.release()) == 0 ? 0 : streamError();
}

}  // namespace vcm
