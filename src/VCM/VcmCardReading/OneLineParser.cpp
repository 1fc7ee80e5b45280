#include "VCM/VcmCardReading/OneLineParser.h"

#include <algorithm>

#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/Covariance.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/Validation.h"

namespace vcm {

namespace {

// Takes the values off the list; false at the first that is missing or no number: it and those
// after it are zero.
bool readCovariance(std::string_view list, VcmRecord& record) {
  CovarianceTriangle values{};
  const int count = covarianceValueCount(record.covMtxSize);
  int read = 0;
  while (read < count && readListed(list, values[static_cast<std::size_t>(read)])) {
    ++read;
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
  for (const Field& field : kOneLineFields) {
    if (!field.read(columnsOf(line, field.first, field.width), record)) {
      unreadable(field.name);
    }
  }
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
