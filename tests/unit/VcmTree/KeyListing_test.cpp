#include "VCM/VcmTree/KeyListing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "VCM/VcmTree/Keys.h"
#include "support/RandomRecords.h"
#include "support/StoreAccess.h"

using vcm::mediaVcm;
using vcm::VcmRecord;

namespace {

using Keys = std::vector<std::int64_t>;

struct Stored {
  std::int64_t key;
  VcmRecord record;
};

// What a listing should be; `stored` comes in the order of loading.
Keys sorted(std::vector<Stored> stored, std::int32_t order) {
  const bool bySatellite = order == vcm::kBySatellite || order == vcm::kBySatelliteReverse;
  const auto rank = [&](const Stored& s) {
    return std::tuple(bySatellite ? s.record.satNum : 0,
                      bySatellite ? vcm::inputDateToDs50(s.record.epoch) : 0.0,
                      order == vcm::kAsLoaded ? 0 : s.key);
  };
  std::ranges::stable_sort(stored, {}, rank);
  Keys keys(stored.size());
  std::ranges::transform(stored, keys.begin(), &Stored::key);
  if (order == vcm::kBySatelliteReverse) {
    std::reverse(keys.begin(), keys.end());
  }
  return keys;
}

// Lists behind one key that is there already, and looks that nothing else is touched.
Keys listed(std::int32_t order) {
  constexpr std::int64_t kUntouched = -77;
  Keys keys(static_cast<std::size_t>(storedCount()) + 2, kUntouched);
  std::int32_t count = 1;
  vcm::VcmGetTreeKeys(mediaVcm, count, keys.data(), order);
  EXPECT_EQ(count, static_cast<std::int32_t>(keys.size()) - 1);
  EXPECT_TRUE(keys.front() == kUntouched && keys.back() == kUntouched);
  return {keys.begin() + 1, keys.end() - 1};
}

// Random adds, updates and removals: the store agrees with a list, its listings with a sort.
void agreesWithASort(std::uint64_t seed, bool directKeysToo) {
  RandomRecords random(seed);
  VcmRecord record = random.nextSmall(9);
  std::vector<Stored> stored;
  emptyStore();
  for (int step = 0; step < 1000; ++step) {
    SCOPED_TRACE("seed " + std::to_string(seed) + " step " + std::to_string(step));
    if (random.integer(0, 3) > 0) {
      record = random.nextSmall(random.integer(0, 1) == 0 ? 9 : 999999999);
    }
    record.eciPos[1] = random.integer(0, 9);  // often another state of the same epoch
    if (directKeysToo && random.integer(0, 1) == 0) {
      useDirectAddresses();
    }
    const std::int64_t key = vcm::AddVcmToMem(record);
    useOrdinaryKeys();
    ASSERT_NE(key, vcm::kNoKey);
    if (key != vcm::kDuplicateKey) {
      stored.push_back({key, record});
    }
    const auto any = stored.begin() + random.integer(0, static_cast<int>(stored.size()) - 1);
    if (step % 5 == 1) {
      ASSERT_EQ(updateStored(any->key, any->record = random.nextSmall(9)), vcm::kStored);
    } else if (step % 5 < 4) {
      ASSERT_EQ(removeStored(any->key), vcm::kStored);
      stored.erase(any);
    }
  }
  for (const std::int32_t order : {0, 1, 2, 3, 4, -1, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(listed(order), sorted(stored, order)) << "order " << order << " seed " << seed;
  }
  for (const auto& [key, expected] : stored) {
    vcm::VcmFindRec(mediaVcm, key, record);
    EXPECT_TRUE(vcm::equal(record, expected)) << "key " << key << " seed " << seed;
  }
  emptyStore();
  EXPECT_EQ(listed(0), Keys{});
}

TEST(KeyListing, AgreesWithASort) { agreesWithASort(1, false); }
TEST(KeyListing, OfBothKindsOfKeysAgreesWithASort) { agreesWithASort(2, true); }

}  // namespace
