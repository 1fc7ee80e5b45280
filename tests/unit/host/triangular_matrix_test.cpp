#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "Host/HostCore.h"

namespace {

constexpr std::size_t kMost = 9;
using Square = std::array<double, kMost * kMost>;
using Packed = std::array<double, kMost*(kMost + 1) / 2>;

// Column by column, element (row, column) of the leading block; unsymmetric, so that a mix-up of
// the two triangles shows.
Square squareOf(std::size_t size) {
  Square square{};
  for (std::size_t row = 0; row < size; ++row) {
    for (std::size_t column = 0; column < size; ++column) {
      square[column * size + row] = static_cast<double>(10 * (row + 1) + column + 1);
    }
  }
  return square;
}

Packed packed(const Square& square, std::int32_t size) {
  Packed result{};
  sqrmtx2lta(square.data(), &size, result.data());
  return result;
}

TEST(TriangularMatrix, LowerTriangleRowByRow) {
  const Packed triangle = packed(squareOf(3), 3);
  const std::array<double, 7> expected{11, 21, 22, 31, 32, 33, 0};
  EXPECT_TRUE(std::equal(expected.begin(), expected.end(), triangle.begin()));
}

TEST(TriangularMatrix, LeadingBlocksAreTheBeginning) {
  const Packed whole = packed(squareOf(kMost), kMost);
  for (std::size_t size = 0; size <= kMost; ++size) {
    const Packed block = packed(squareOf(size), static_cast<std::int32_t>(size));
    const auto end = static_cast<std::ptrdiff_t>(size * (size + 1) / 2);
    EXPECT_TRUE(std::equal(block.begin(), block.begin() + end, whole.begin())) << size;
    EXPECT_EQ(std::count(block.begin() + end, block.end(), 0.0), std::ssize(block) - end) << size;
  }
}

TEST(TriangularMatrix, UnpackingFillsBothTriangles) {
  const std::int32_t size = kMost;
  const Packed triangle = packed(squareOf(kMost), size);
  Square square{};
  lta2sqrmtx(triangle.data(), &size, square.data());
  for (std::size_t row = 0; row < kMost; ++row) {
    for (std::size_t column = 0; column < kMost; ++column) {
      const auto expected =
          static_cast<double>(10 * (std::max(row, column) + 1) + std::min(row, column) + 1);
      EXPECT_EQ(square[column * kMost + row], expected) << row << ", " << column;
    }
  }
  EXPECT_EQ(packed(square, size), triangle);
}

TEST(TriangularMatrix, NoDimensionTouchesNothing) {
  for (const std::int32_t size : {0, -3}) {
    sqrmtx2lta(nullptr, &size, nullptr);
    lta2sqrmtx(nullptr, &size, nullptr);
  }
}

}  // namespace
