#include "VCM/VcmTree/Covariance.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/RandomRecords.h"

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
  const CovarianceTriangle triangle = vcm::Vcm2dTo1d(internal);
  for (std::size_t row = 0; row < kSize; ++row) {
    EXPECT_EQ(triangle[row * (row + 3) / 2], 11 * elements[row]) << "on the diagonal, row " << row;
  }
}

// A smaller covariance needs only the values at the front: the rest leave its block alone.
TEST(Covariance, RoundTripOfEachSize) {
  constexpr std::uint64_t kSeed = 11;
  RandomRecords random(kSeed);
  CovarianceTriangle values;
  std::generate(values.begin(), values.end(), [&] { return random.real(-1.0, 1.0); });
  const CovarianceMatrix whole = vcm::MapMtxInt2Ext(vcm::Vcm1dTo2d(values));
  for (int n = -1; n <= vcm::kCovarianceDimension + 1; ++n) {
    CovarianceTriangle front{};
    std::copy_n(values.begin(), vcm::covarianceValueCount(n), front.begin());
    const CovarianceMatrix square = vcm::Vcm1dTo2d(front);
    EXPECT_EQ(vcm::Vcm2dTo1d(square), front) << "size " << n << " seed " << kSeed;
    const CovarianceMatrix part = vcm::MapMtxInt2Ext(square);
    for (std::size_t i = 0; i < part.size(); ++i) {
      const std::size_t mirrored = i % kSize * kSize + i / kSize;
      EXPECT_EQ(part[i], part[mirrored]) << "size " << n << " seed " << kSeed;
      EXPECT_EQ(part[i], static_cast<int>(std::max(i, mirrored) / kSize) < n ? whole[i] : 0.0)
          << "size " << n << " seed " << kSeed;
    }
  }
}

}  // namespace
