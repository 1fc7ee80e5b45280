// Made-up records that are valid and as different as a seed makes them.
#ifndef SUPPORT_RANDOMRECORDS_H
#define SUPPORT_RANDOMRECORDS_H

#include <cstdint>
#include <random>

#include "VCM/VcmTypes/VcmRecord.h"

class RandomRecords {
 public:
  explicit RandomRecords(std::uint64_t seed) : random_(seed) {}

  // Every field filled, with values that its text forms can hold (up to rounding).
  vcm::VcmRecord next();
  // Satellite number 1 to `satellites`, an epoch in one of 3000 minutes, little else: quick to
  // make.
  vcm::VcmRecord nextSmall(int satellites);

  double real(double low, double high);
  int integer(int low, int high);

 private:
  std::mt19937_64 random_;
};

#endif
