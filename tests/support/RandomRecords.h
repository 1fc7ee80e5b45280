// Random choices that a seed brings back.
#ifndef SUPPORT_RANDOMRECORDS_H
#define SUPPORT_RANDOMRECORDS_H

#include <cstdint>
#include <random>

class RandomRecords {
 public:
  explicit RandomRecords(std::uint64_t seed) : random_(seed) {}
  int integer(int low, int high);

 private:
  std::mt19937_64 random_;
};

#endif
