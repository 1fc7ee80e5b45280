#include "VCM/VcmTree/Covariance.h"

#include <gtest/gtest.h>

namespace {

TEST(Covariance, ElementsMoveToTheirPlaceInTheMessage) {
  constexpr std::size_t kSize = vcm::kCovarianceDimension;
  // Row and column of each element as its digits: not symmetric, so that a mix-up of the triangles shows.
  vcm::CovarianceMatrix internal;
  for (std::size_t i = 0; i < internal.size(); ++i) {
    const std::size_t digits = 10 * (i % kSize + 1) + i / kSize + 1;
    internal[i] = static_cast<double>(digits);
  }
  const vcm::CovarianceTriangle triangle = vcm::Vcm2dTo1d(internal);
  constexpr std::size_t kElements[kSize] = {7, 8, 1, 2, 5, 6, 3, 9, 4};
  auto value = triangle.begin();
  for (std::size_t row = 0; row < kSize; ++row) {
    for (std::size_t column = 0; column <= row; ++column) {
      EXPECT_EQ(*value++, static_cast<double>(10 * kElements[row] + kElements[column]));
    }
  }
  EXPECT_EQ(vcm::Vcm2dTo1d(vcm::Vcm1dTo2d(triangle)), triangle);
}

}  // namespace
