#include "VCM/VcmTree/OneLineWriter.h"

#include <algorithm>

#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/Covariance.h"

namespace vcm {

void Vcm2Vcm1Line(const VcmRecord& record, std::span<char> line) {
  std::fill(line.begin(), line.end(), ' ');
  for (const Literal& literal : kOneLineLiterals) {
    std::copy(literal.text.begin(), literal.text.end(), line.data() + literal.first.index());
  }
  for (const Field& field : kOneLineFields) {
    field.write(record, line.data() + field.first.index());
  }
  char* at = line.data() + kOneLineCovariance.index();
  for (const double value : Vcm2dTo1d(record.covMtx)) {
    OneLineCovarianceFormat::write(value, at);
    at += OneLineCovarianceFormat::width;
  }
}

}  // namespace vcm
