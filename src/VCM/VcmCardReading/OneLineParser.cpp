#include "VCM/VcmCardReading/OneLineParser.h"

#include <algorithm>

#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/Covariance.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/Validation.h"

namespace vcm {

namespace {

// Takes a number off the list that stands there as it is written: in its columns, a blank before it and
// behind it.
bool takeColumns(std::string_view& list, double& value) {
  using Format = OneLineCovarianceFormat;
  constexpr std::size_t kWidth = Format::width;
  if (list.size() < kWidth || !isBlank(list.front()) ||
      (list.size() > kWidth && !isBlank(list[kWidth])) ||
      !takeScientific<Format::width, Format::digits>(list.substr(0, kWidth), value)) {
    return false;
  }
  list.remove_prefix(kWidth);
  return true;
}

// Takes the values off the list; false at the first that is missing or no number: it and those
// after it are zero.
bool readCovariance(std::string_view list, VcmRecord& record) {
  CovarianceTriangle values{};
  const int count = covarianceValueCount(record.covMtxSize);
  int read = 0;
  for (; read < count; ++read) {
    double& value = values[static_cast<std::size_t>(read)];
    if (!takeColumns(list, value) && !readListed(list, value)) {
      break;
    }
  }
  record.covMtx = Vcm1dTo2d(values);
  return read == count;
}

}  // namespace

VcmRecord Vcm1Line2Vcm(std::string_view line, ReadingObserver* observer, std::int64_t lineNumber) {
  line = line.substr(0, kOneLineWidth);
  const auto unreadable = [&](std::string_view field) {
    if (observer != nullptr) {
      observer->unreadable(lineNumber, field);
    }
  };
  VcmRecord record;
  record.leapSecondTime = kUnknownLeapSecondTime;
  eachIndex<kOneLineFields.size()>([&]<std::size_t I>() {
    constexpr const Field& field = kOneLineFields[I];
    if (!field.read(columnsOf(line, field.first, field.width), record)) {
      unreadable(field.name);
    }
  });
  if (record.covMtxSize > 0 &&
      !readCovariance(line.substr(std::min(kOneLineCovariance.index(), line.size())), record)) {
    unreadable("covMtx");
  }
  record.parseStatus = ValidateVcmValues(record);
  return record;
}

std::int32_t Vcm1Line2VcmLines(std::string_view line, std::span<char> text) {
  std::fill(text.begin(), text.end(), ' ');
  const VcmRecord record = Vcm1Line2Vcm(line);
  if (record.parseStatus != kGood) {
    return kGood;
  }
  return Vcm2VcmLines(record, text) == kWritten ? kGood : kRejected;
}

}  // namespace vcm
