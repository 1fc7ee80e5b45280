// A symmetric matrix as a full square and as its packed lower triangle.
//
// The triangle runs row by row, (1,1), (2,1), (2,2), (3,1) and so on, so that the triangle of a
// leading block is the beginning of the triangle of the whole.
#include "Host/HostCore.h"
#include "Text.h"

void sqrmtx2lta(const double* square, const std::int32_t* dimension, double* packed) {
  const std::size_t size = hostcore::sizeOf(dimension);
  for (std::size_t row = 0; row < size; ++row) {
    for (std::size_t column = 0; column <= row; ++column) {
      *packed++ = square[column * size + row];
    }
  }
}

void lta2sqrmtx(const double* packed, const std::int32_t* dimension, double* square) {
  const std::size_t size = hostcore::sizeOf(dimension);
  for (std::size_t row = 0; row < size; ++row) {
    for (std::size_t column = 0; column <= row; ++column) {
      square[column * size + row] = *packed;
      square[row * size + column] = *packed++;
    }
  }
}
