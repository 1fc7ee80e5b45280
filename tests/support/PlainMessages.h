// Messages read in the plainest way: the layout tables line by line, the standard library's numbers.
#ifndef SUPPORT_PLAINMESSAGES_H
#define SUPPORT_PLAINMESSAGES_H

#include <cctype>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/Covariance.h"
#include "VCM/VcmTree/Validation.h"
#include "support/PlainNumbers.h"

using Views = std::vector<std::string_view>;

// Nearly all values of a covariance have been read before.
inline std::optional<double> plainValue(std::string_view text, int impliedDecimals) {
  static std::unordered_map<std::string, std::optional<double>> known;
  const auto [place, isNew] = known.try_emplace(std::to_string(impliedDecimals).append(text));
  return isNew ? place->second = plainReal(text, impliedDecimals) : place->second;
}

// Takes the lines of a message off the front of all. Where they end a text goes on with blank lines.
inline vcm::VcmRecord plainMessage(std::span<const std::string_view>& lines, bool isFile,
                                   bool isBare) {
  vcm::VcmRecord record;
  record.parseStatus = vcm::kRejected;
  std::string line;
  auto next = [&, first = isBare]() mutable {
    const bool present = !lines.empty();
    line = present ? lines.front() : "";
    lines = lines.subspan(present ? 1 : 0);
    if (std::exchange(first, false)) {  // as it was recognised: indented or not, in any case
      line = vcm::withoutLeadingBlanks(line);
      std::ranges::transform(line, line.begin(), [](unsigned char c) { return std::toupper(c); });
    }
    line.insert(0, isBare ? "   " : "");  // the lead, so that columns are the table's
    return present || !isFile;
  };
  for (const vcm::LineLayout& layout : vcm::kMultiLineLayout) {
    const bool lacking = isBare && !layout.inBareForm;
    const bool present = lacking || next();
    if (lacking || !layout.isRead()) {
      continue;
    }
    const auto alike = [](char c, char wanted) { return (vcm::isBlank(c) ? ' ' : c) == wanted; };
    if (!present ||
        !std::ranges::equal(vcm::columnsOf(line, layout.label.first, layout.label.width),
                            layout.labelText(), alike)) {
      return record;
    }
    for (const vcm::Field& field : layout.fields) {
      if (!field.read(vcm::columnsOf(line, field.first, field.width), record)) {
        break;
      }
    }
  }
  if (record.covMtxSize > vcm::kCovarianceDimension) {
    return record;
  }
  vcm::CovarianceTriangle values{};
  for (int i = 0; i < vcm::covarianceValueCount(record.covMtxSize); ++i) {
    const vcm::Column first = vcm::covarianceColumn(i % vcm::kValuesPerRow);
    const bool present = i % vcm::kValuesPerRow != 0 || next();
    const auto value = plainValue(vcm::columnsOf(line, first, vcm::CovarianceFormat::width), 9);
    if (!present || !value) {
      return record;
    }
    values[static_cast<std::size_t>(i)] = *value;
  }
  record.covMtx = vcm::Vcm1dTo2d(values);
  record.parseStatus = vcm::kGood;
  return record;
}

inline vcm::VcmRecord plainOneLine(std::string_view line) {
  line = line.substr(0, vcm::kOneLineWidth);
  vcm::VcmRecord record;
  record.leapSecondTime = vcm::kUnknownLeapSecondTime;
  for (const vcm::Field& field : vcm::kOneLineFields) {
    field.read(vcm::columnsOf(line, field.first, field.width), record);
  }
  vcm::CovarianceTriangle values{};
  std::string_view list = vcm::columnsOf(line, vcm::kOneLineCovariance, vcm::kOneLineWidth);
  for (int i = 0; i < vcm::covarianceValueCount(record.covMtxSize); ++i) {
    list = vcm::withoutLeadingBlanks(list);
    const std::string_view text(list.begin(), std::ranges::find_if(list, vcm::isBlank));
    const auto value = text.empty() ? std::nullopt : plainValue(text, 0);
    if (!value) {
      break;
    }
    values[static_cast<std::size_t>(i)] = *value;
    list.remove_prefix(text.size());
  }
  record.covMtx = vcm::Vcm1dTo2d(values);
  record.parseStatus = vcm::ValidateVcmValues(record);
  return record;
}

inline Views linesOf(std::string_view content) {
  Views lines;
  for (std::size_t end = 0; !content.empty(); content.remove_prefix(end)) {
    lines.push_back(content.substr(0, content.find('\n')));
    end = std::min(lines.back().size() + 1, content.size());
  }
  return lines;
}

// Either form; cut in front of each mark that is not among the first two characters of a line.
inline vcm::VcmRecord plainText(std::string_view text) {
  Views lines;
  for (std::size_t at = 0, next = 0; next != std::string_view::npos; at = next) {
    next = std::min(text.find('<', at + 2), text.find('>', at + 2));
    lines.push_back(text.substr(at, next - at));
  }
  std::span<const std::string_view> rest(lines);
  rest = rest.first(lines.size() < vcm::kMessageLines ? 0 : lines.size());
  return vcm::isOneLineMessage(text) ? plainOneLine(text) : plainMessage(rest, false, false);
}

#endif
