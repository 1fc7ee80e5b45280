#include "VCM/VcmTypes/BlockPool.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace {

TEST(BlockPool, ObjectsLieApartAndComeBackFirst) {
  using Object = std::array<int, 10>;
  vcm::BlockPool pool(sizeof(Object));
  for (int round = 0; round < 2; ++round) {
    std::vector<Object*> objects(50'000);  // blocks of both kinds
    for (Object*& object : objects) {
      object = static_cast<Object*>(pool.take());
      object->fill(static_cast<int>(&object - objects.data()));
    }
    Object filled;
    for (Object* const& object : objects) {
      filled.fill(static_cast<int>(&object - objects.data()));
      ASSERT_EQ(*object, filled);
    }
    // What was given back is used again before anything new.
    std::set<void*> freed(objects.begin(), objects.begin() + 25'000);
    std::for_each(freed.begin(), freed.end(), [&](void* object) { pool.giveBack(object); });
    while (!freed.empty()) {
      ASSERT_EQ(freed.erase(pool.take()), 1U) << freed.size();
    }
    std::for_each(objects.begin(), objects.end(), [&](void* object) { pool.giveBack(object); });
  }
}

}  // namespace
