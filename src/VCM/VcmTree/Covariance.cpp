#include "VCM/VcmTree/Covariance.h"

#include "Host/HostCore.h"

namespace vcm {

namespace {

constexpr std::int32_t kDimension = kCovarianceDimension;
using ElementOrder = std::array<std::size_t, kCovarianceDimension>;

// The internal element at each external position, counted from 0.
constexpr ElementOrder extToInt = {6, 7, 0, 1, 4, 5, 2, 8, 3};

constexpr ElementOrder inverse(const ElementOrder& order) {
  ElementOrder result{};
  for (std::size_t i = 0; i < order.size(); ++i) {
    result[order[i]] = i;
  }
  return result;
}
constexpr ElementOrder intToExt = inverse(extToInt);

CovarianceMatrix reorder(const CovarianceMatrix& from, const ElementOrder& order) {
  constexpr std::size_t n = kCovarianceDimension;
  CovarianceMatrix to;
  for (std::size_t column = 0; column < n; ++column) {
    for (std::size_t row = 0; row < n; ++row) {
      to[column * n + row] = from[order[column] * n + order[row]];
    }
  }
  return to;
}

}  // namespace

CovarianceMatrix MapMtxInt2Ext(const CovarianceMatrix& internal) {
  return reorder(internal, extToInt);
}

CovarianceMatrix MapMtxExt2Int(const CovarianceMatrix& external) {
  return reorder(external, intToExt);
}

CovarianceTriangle Vcm2dTo1d(const CovarianceMatrix& internal) {
  const CovarianceMatrix external = MapMtxInt2Ext(internal);
  CovarianceTriangle triangle;
  sqrmtx2lta(external.data(), &kDimension, triangle.data());
  return triangle;
}

CovarianceMatrix Vcm1dTo2d(const CovarianceTriangle& external) {
  CovarianceMatrix square;
  lta2sqrmtx(external.data(), &kDimension, square.data());
  return MapMtxExt2Int(square);
}

}  // namespace vcm
