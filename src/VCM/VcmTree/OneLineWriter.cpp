#include "VCM/VcmTree/OneLineWriter.h"

#include <algorithm>

#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/Covariance.h"

namespace vcm {

namespace {

using LineImage = std::array<char, kOneLineWidth>;

// A line whose fields are still blank.
constexpr LineImage kImage = [] {
  LineImage image{};
  image.fill(' ');
  for (const Literal& literal : kOneLineLiterals) {
    std::copy(literal.text.begin(), literal.text.end(), image.begin() + literal.first.index());
  }
  return image;
}();

}  // namespace

void Vcm2Vcm1Line(const VcmRecord& record, std::span<char> line) {
  std::copy(kImage.begin(), kImage.end(), line.begin());
  eachIndex<kOneLineFields.size()>([&]<std::size_t I>() {
    constexpr const Field& field = kOneLineFields[I];
    field.write(record, line.data() + field.first.index());
  });
  char* at = line.data() + kOneLineCovariance.index();
  for (const double value : Vcm2dTo1d(record.covMtx)) {
    OneLineCovarianceFormat::write(value, at);
    at += OneLineCovarianceFormat::width;
  }
}

}  // namespace vcm
