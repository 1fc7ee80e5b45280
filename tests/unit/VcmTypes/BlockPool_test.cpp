#include "VCM/VcmTypes/BlockPool.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <vector>

namespace {

constexpr std::size_t kSize = 40;

TEST(BlockPool, ObjectsLieApartAndComeBackFirst) {
  vcm::BlockPool pool(kSize);
  constexpr int kCount = 50'000;  // blocks of both kinds
  for (int round = 0; round < 2; ++round) {
    std::vector<void*> objects;
    for (int i = 0; i < kCount; ++i) {
      objects.push_back(pool.take());
      std::memset(objects.back(), i, kSize);
    }
    for (int i = 0; i < kCount; ++i) {
      const std::vector<unsigned char> filled(kSize, static_cast<unsigned char>(i));
      ASSERT_EQ(std::memcmp(objects[static_cast<std::size_t>(i)], filled.data(), kSize), 0) << i;
    }
    // What was given back is used again before anything new.
    std::set<void*> freed(objects.begin(), objects.begin() + kCount / 2);
    for (void* const object : freed) {
      pool.giveBack(object);
    }
    for (int i = 0; i < kCount / 2; ++i) {
      EXPECT_EQ(freed.erase(pool.take()), 1U) << i;
    }
    for (void* const object : objects) {
      pool.giveBack(object);
    }
  }
}

}  // namespace
