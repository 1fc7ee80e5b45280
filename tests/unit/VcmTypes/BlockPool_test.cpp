#include "VCM/VcmTypes/BlockPool.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace {

TEST(BlockPool, ObjectsLieApartAndComeBackFirst) {
  using Object = std::array<int, 10>;
  vcm::BlockPool pool(sizeof(Object));
  constexpr int kCount = 50'000;  // blocks of both kinds
  for (int round = 0; round < 2; ++round) {
    std::vector<Object*> objects;
    for (int i = 0; i < kCount; ++i) {
      objects.push_back(static_cast<Object*>(pool.take()));
      objects.back()->fill(i);
    }
    Object filled;
    for (int i = 0; i < kCount; ++i) {
      filled.fill(i);
      ASSERT_EQ(*objects[static_cast<std::size_t>(i)], filled);
    }
    // What was given back is used again before anything new.
    std::set<void*> freed(objects.begin(), objects.begin() + kCount / 2);
    for (void* const object : freed) {
      pool.giveBack(object);
    }
    while (!freed.empty()) {
      ASSERT_EQ(freed.erase(pool.take()), 1U) << freed.size();
    }
    for (Object* const object : objects) {
      pool.giveBack(object);
    }
  }
}

}  // namespace
