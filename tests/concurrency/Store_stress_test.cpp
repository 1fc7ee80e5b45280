// Threads against each other on one store, for the thread sanitizer and for half-made records.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <thread>
#include <vector>

#include "VCM/VcmTree/Keys.h"
#include "support/RandomRecords.h"
#include "support/StoreAccess.h"

using vcm::mediaVcm;
using vcm::VcmRecord;

namespace {

constexpr int kLasting = 20;  // satellites 1 to 20: updated, never removed
constexpr int kSteps = 2500;  // of each thread
constexpr int kWriters = 2;

// Every part of a record tells the same value, so that a half-made one shows.
VcmRecord recordOf(int satNum, int value) {
  VcmRecord record;
  record.satNum = satNum;
  record.epoch = {2024, 1 + value % 300, 0, 0, 0.0};
  record.eciPos[0] = record.eciVel[0] = record.bTerm = record.covMtx.back() = value;
  record.extraLines.assign(static_cast<std::size_t>(1 + value % 2),
                           vcm::ExtraLine(std::to_string(value)));
  return record;
}

bool isWhole(const VcmRecord& record) {
  const VcmRecord same = recordOf(record.satNum, static_cast<int>(record.bTerm));
  return vcm::equal(record, same) && record.covMtx == same.covMtx &&
         record.extraLines == same.extraLines;
}

// A record that lasts must be there; any record must be whole.
void find(std::int64_t key, bool lasts) {
  VcmRecord copy;
  vcm::VcmFindRec(mediaVcm, key, copy);
  EXPECT_TRUE(copy.satNum == vcm::kNoSatellite ? !lasts : isWhole(copy)) << "key " << key;
  const vcm::BorrowedRecord borrowed(mediaVcm, key);
  EXPECT_TRUE(borrowed ? isWhole(*borrowed) : !lasts) << "key " << key;
}

// With true as parameter, direct addresses beside ordinary keys.
class StoreStress : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    emptyStore();
    for (int satNum = 1; satNum <= kLasting; ++satNum) {
      if (GetParam() && satNum > kLasting / 2) {
        useDirectAddresses();
      }
      lasting_[satNum] = vcm::AddVcmToMem(recordOf(satNum, 0));
    }
  }
  void TearDown() override { emptyStore(); }

  // Adds and removes records of a satellite of its own; updates those that last.
  void write(int writer) {
    RandomRecords random(static_cast<std::uint64_t>(writer));
    std::vector<std::int64_t> keys;
    for (int step = 0; step < kSteps; ++step) {
      SCOPED_TRACE("writer " + std::to_string(writer) + " step " + std::to_string(step));
      const int value = random.integer(0, 999);
      const int satNum = random.integer(1, kLasting);
      if (step % 2 == 0 || keys.empty()) {
        const std::int64_t key = vcm::AddVcmToMem(recordOf(kLasting + 1 + writer, value));
        EXPECT_NE(key, vcm::kNoKey);
        if (key != vcm::kDuplicateKey) {
          keys.push_back(fleeting_ = key);
        }
      } else if (random.integer(0, 1) == 0) {
        EXPECT_EQ(updateStored(lasting_.at(satNum), recordOf(satNum, value)), vcm::kStored);
      } else {
        std::swap(keys[static_cast<std::size_t>(value) % keys.size()], keys.back());
        EXPECT_EQ(removeStored(keys.back()), vcm::kStored);
        keys.pop_back();
      }
    }
    left_ += static_cast<std::int32_t>(keys.size());
  }

  void read(int reader) {
    RandomRecords random(100 + static_cast<std::uint64_t>(reader));
    for (int step = 0; step < kSteps; ++step) {
      const int satNum = random.integer(1, kLasting);
      const std::int64_t key = lasting_.at(satNum);
      find(key, true);
      find(fleeting_, false);
      EXPECT_EQ(vcm::GetSatKey(satNum), key);
      if (step % 8 == 0) {
        list(random.integer(0, 3));
      }
    }
  }

  void list(std::int32_t order) {
    EXPECT_GE(storedCount(), kLasting);
    std::vector<std::int64_t> keys(kLasting + kWriters * kSteps);
    std::int32_t count = 0;
    if (vcm::listingEntersGate(order)) {
      vcm::VcmGetTreeKeys(mediaVcm, count, keys.data(), order);
    } else {
      const vcm::StoreReading reading;
      vcm::VcmGetTreeKeys(mediaVcm, count, keys.data(), order);
      vcm::StoreTree::walkUp(mediaVcm.root, [](const vcm::VcmBinTree& node) {
        EXPECT_TRUE(isWhole(*vcm::recordOf(node))) << "key " << node.satKey;
      });
    }
    const auto end = keys.begin() + count;
    std::sort(keys.begin(), end);
    EXPECT_EQ(std::adjacent_find(keys.begin(), end), end) << "order " << order;
    for (const auto& [satNum, key] : lasting_) {
      EXPECT_TRUE(std::binary_search(keys.begin(), end, key)) << "order " << order;
    }
  }

  std::map<int, std::int64_t> lasting_;    // satellite number and key
  std::atomic<std::int64_t> fleeting_{1};  // the key added last
  std::atomic<std::int32_t> left_{0};      // of the records added
};

TEST_P(StoreStress, ReadersSeeWholeRecordsAndEveryChangeCounts) {
  std::vector<std::thread> threads;
  for (int i = 0; i < kWriters; ++i) {
    threads.emplace_back([this, i] { write(i); });
    threads.emplace_back([this, i] { read(i); });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(storedCount(), kLasting + left_);
}

TEST_P(StoreStress, EmptyingAmongAddsAndReads) {
  std::atomic<bool> adding{true};
  std::thread adder([&] {
    for (int step = 0; step < kSteps; ++step) {
      fleeting_ = vcm::AddVcmToMem(recordOf(1 + step % 50, step % 1000));
      EXPECT_NE(fleeting_, vcm::kNoKey) << "step " << step;
    }
    adding = false;
  });
  std::thread reader([&] {
    while (adding) {
      find(fleeting_, false);
    }
  });
  for (std::int32_t status = vcm::kStored; adding;) {
    vcm::VcmEmptyTree(mediaVcm, status);
  }
  adder.join();
  reader.join();
  emptyStore();
  EXPECT_EQ(storedCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(Keys, StoreStress, testing::Bool(), [](const auto& suite) {
  return std::string(suite.param ? "Both" : "Ordinary");
});

}  // namespace
