#include "VCM/VcmTree/Covariance.h"

#include <gtest/gtest.h>

#include <numeric>

using vcm::CovarianceMatrix;
using vcm::CovarianceTriangle;

namespace {

constexpr std::size_t kSize = vcm::kCovarianceDimension;

TEST(Covariance, ElementsMoveToTheirPlaceInTheMessage) {
  CovarianceMatrix internal;  // row and column of each element as its digits: not symmetric
  for (std::size_t i = 0; i < internal.size(); ++i) {
    const std::size_t column = i / kSize + 1;
    internal[i] = static_cast<double>(10 * (i % kSize + 1) + column);
  }
  const std::array<double, kSize> elements{7, 8, 1, 2, 5, 6, 3, 9, 4};
  const CovarianceMatrix external = vcm::MapMtxInt2Ext(internal);
  for (std::size_t i = 0; i < external.size(); ++i) {
    EXPECT_EQ(external[i], 10 * elements[i % kSize] + elements[i / kSize]) << i;
  }
  EXPECT_EQ(vcm::MapMtxExt2Int(external), internal);
  CovarianceTriangle triangle = vcm::Vcm2dTo1d(internal);
  for (std::size_t row = 0; row < kSize; ++row) {
    EXPECT_EQ(triangle[row * (row + 3) / 2], 11 * elements[row]) << "on the diagonal, row " << row;
  }
  std::iota(triangle.begin(), triangle.end(), 1.0);
  EXPECT_EQ(vcm::Vcm2dTo1d(vcm::Vcm1dTo2d(triangle)), triangle);
}

}  // namespace
