#include "VCM/VcmTree/Covariance.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kSize = vcm::kCovarianceDimension;

TEST(Covariance, ElementsMoveToTheirPlaceInTheMessage) {
  // Row and column of each element as its digits: not symmetric, so that a mix-up of the triangles shows.
  vcm::CovarianceMatrix internal;
  for (std::size_t i = 0; i < internal.size(); ++i) {
    const std::size_t column = i / kSize + 1;
    internal[i] = static_cast<double>(10 * (i % kSize + 1) + column);
  }
  constexpr std::size_t kElements[kSize] = {7, 8, 1, 2, 5, 6, 3, 9, 4};
  const vcm::CovarianceMatrix external = vcm::MapMtxInt2Ext(internal);
  EXPECT_EQ(vcm::MapMtxExt2Int(external), internal);
  const vcm::CovarianceTriangle triangle = vcm::Vcm2dTo1d(internal);
  const vcm::CovarianceMatrix symmetric = vcm::Vcm1dTo2d(triangle);
  std::size_t at = 0;
  for (std::size_t row = 0; row < kSize; ++row) {
    for (std::size_t column = 0; column < kSize; ++column) {
      const std::size_t i = kElements[row] - 1, j = kElements[column] - 1;
      const double value = internal[j * kSize + i];
      EXPECT_EQ(external[column * kSize + row], value) << row << ", " << column;
      if (column <= row) {
        EXPECT_EQ(triangle[at++], value) << row << ", " << column;
        EXPECT_EQ(symmetric[j * kSize + i], value) << row << ", " << column;
        EXPECT_EQ(symmetric[i * kSize + j], value) << row << ", " << column;
      }
    }
  }
}

}  // namespace
