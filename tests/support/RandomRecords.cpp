#include "support/RandomRecords.h"

int RandomRecords::integer(int low, int high) {
  return std::uniform_int_distribution<int>(low, high)(random_);
}
