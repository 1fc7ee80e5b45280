// Where the numbers of a multi-line message stand and how they are written, from the library's tables.
#ifndef BENCHMARKS_NUMBERCOLUMNS_H
#define BENCHMARKS_NUMBERCOLUMNS_H

#include <cstddef>
#include <vector>

#include "VCM/VcmFormats/MultiLineLayout.h"

enum class Notation { integer, fixed, scientific };

struct Number {
  std::size_t first;
  std::size_t width;
  Notation notation;
  int precision;
};

struct NumberColumns {
  std::vector<std::vector<Number>> lines;
  std::vector<Number> row;  // of the covariance
  // A message's numbers lie one after the other, those of the covariance last: where these begin, and
  // the places of those that are asked for.
  std::size_t covariance = 0;
  std::size_t eciPos = 0, eciVel = 0, bTerm = 0, wtdRms = 0, covMtxSize = 0;

  NumberColumns();

  std::size_t covarianceCount(const double* message) const {
    return static_cast<std::size_t>(
        vcm::covarianceValueCount(static_cast<int>(message[covMtxSize])));
  }
};

#endif
