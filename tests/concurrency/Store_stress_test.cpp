// Threads against each other on one store, for the thread sanitizer and for half-made records. The
// environment variable VCM_STRESS_OPERATIONS tells how many operations there are in all.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <thread>
#include <vector>

#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmTree/Keys.h"
#include "concurrency/StressWorker.h"
#include "host/HostTrace.h"
#include "support/RandomCount.h"
#include "support/StoreAccess.h"
#include "vcm/Vcm.h"

using vcm::mediaVcm;
using vcm::VcmRecord;

namespace {

// With true as parameter, direct addresses beside ordinary keys.
class StoreStress : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    emptyStore();
    hosttracesink(&StoreStress::hear, this);
    for (int satNum = 1; satNum <= kLasting; ++satNum) {
      if (GetParam() && satNum > kLasting / 2) {
        useDirectAddresses();
      }
      lasting_.push_back(vcm::AddVcmToMem(recordOf(satNum, 0)));
    }
    for (int i = 0; i < kThreads; ++i) {
      workers_.emplace_back(i);
    }
  }
  void TearDown() override {
    hosttracesink(nullptr, nullptr);
    emptyStore();
  }

  // Of what is logged, the counts that every load ends with.
  static void hear(std::int32_t /*isError*/, const char* text, std::int32_t length, void* context) {
    const std::string line(text, static_cast<std::size_t>(length));
    int total = 0, loaded = 0, dup = 0;
    if (std::sscanf(line.c_str(), "Total VCMs = %d, Loaded = %d, Dup = %d", &total, &loaded,
                    &dup) == 3) {
      EXPECT_TRUE(total == kInFile && loaded + dup == total) << line;
      static_cast<StoreStress*>(context)->stored_ += loaded;
    }
  }

 public:
  struct Operation {
    int share;
    const char* name;
    void (StoreStress::*run)(Worker&);
  };

  // All threads, each with the next operation, until the part of all operations is used up.
  void storm(double part, const std::vector<Operation>& mix) {
    const auto wanted =
        static_cast<std::int64_t>(part * randomCount("VCM_STRESS_OPERATIONS", 40'000));
    const std::jthread watchdog([this](const std::stop_token& stop) { watch(stop); });
    int shares = 0;
    std::for_each(mix.begin(), mix.end(), [&](const Operation& one) { shares += one.share; });
    std::vector<std::jthread> threads;
    for (Worker& worker : workers_) {
      threads.emplace_back([&] {
        while (begun_.fetch_add(1) < wanted) {
          auto drawn = mix.begin();
          for (int left = worker.anyOf(0, shares - 1); left >= drawn->share; ++drawn) {
            left -= drawn->share;
          }
          worker.doing = drawn->name;
          (this->*drawn->run)(worker);
        }
        worker.doing = "nothing more";
      });
    }
  }

  // A gate that never opens is a failed run, not one without end.
  void watch(const std::stop_token& stop) {
    std::mutex mutex;
    std::unique_lock<std::mutex> lock(mutex);
    std::condition_variable_any never;
    for (std::int64_t last = -1, now = 0; !stop.stop_requested(); last = now) {
      now = begun_;
      if (now == last) {
        std::cerr << "No operation was finished for a minute. The threads are at";
        for (const Worker& worker : workers_) {
          std::cerr << ' ' << worker.doing;
        }
        std::cerr << std::endl;
        std::abort();
      }
      never.wait_for(lock, stop, std::chrono::minutes(1), [] { return false; });
    }
  }

  void add(Worker& worker) {
    const VcmRecord record = recordOf(worker.satNum(), worker.anyOf(0, 999));
    const std::int64_t key = vcm::AddVcmToMem(record);
    EXPECT_NE(key, vcm::kNoKey);
    if (key != vcm::kDuplicateKey) {
      worker.keys.push_back(fleeting_ = key);
      ++stored_;
    }
  }

  void remove(std::int64_t key) {
    EXPECT_EQ(removeStored(key), vcm::kStored) << "key " << key;
    --stored_;
  }
  void removeOne(Worker& worker) {
    if (const int count = static_cast<int>(worker.keys.size()); count > 0) {
      const auto at = static_cast<std::size_t>(worker.anyOf(0, count - 1));
      std::swap(worker.keys[at], worker.keys.back());
      remove(worker.keys.back());
      worker.keys.pop_back();
    }
  }

  static std::size_t anyLasting(Worker& worker) {
    return static_cast<std::size_t>(worker.anyOf(0, kLasting - 1));
  }
  void update(Worker& worker) {
    const std::size_t i = anyLasting(worker);
    const VcmRecord record = recordOf(static_cast<int>(i) + 1, worker.anyOf(0, 999));
    EXPECT_EQ(updateStored(lasting_[i], record), vcm::kStored) << i;
  }
  void findSatellite(Worker& worker) {
    const int satNum = worker.anyOf(1, kFirstLoaded + kInFile * kThreads - 1);
    const bool lasts = satNum <= kLasting;
    const std::int64_t key = vcm::VcmSatKeyGet(mediaVcm, satNum);
    EXPECT_TRUE(!lasts || key == lasting_[static_cast<std::size_t>(satNum) - 1]) << satNum;
    find(key, lasts);
  }

  // A record that lasts must be there; any record must be whole.
  void findLasting(Worker& worker) { find(lasting_[anyLasting(worker)], true); }
  void findFleeting(Worker& /*worker*/) { find(fleeting_, false); }
  static void find(std::int64_t key, bool lasts) {
    VcmRecord copy;
    vcm::VcmFindRec(mediaVcm, key, copy);
    EXPECT_TRUE(copy.satNum == vcm::kNoSatellite ? !lasts : isWhole(copy)) << "key " << key;
    const vcm::BorrowedRecord borrowed(mediaVcm, key);
    EXPECT_TRUE(borrowed ? isWhole(*borrowed) : !lasts) << "key " << key;
  }

  void list(Worker& worker) {
    const std::int32_t order = worker.anyOf(0, 3);
    std::array<std::int64_t, 2000> keys{};  // 0 is the key of none
    VcmGetLoaded(order, keys.data());
    const auto end = std::find(keys.begin(), keys.end(), 0);
    std::sort(keys.begin(), end);
    EXPECT_EQ(std::adjacent_find(keys.begin(), end), end) << "order " << order;
    for (const std::int64_t key : lasting_) {
      EXPECT_TRUE(std::binary_search(keys.begin(), end, key)) << "order " << order;
    }
  }

  void load(Worker& worker) { EXPECT_EQ(VcmLoadFile(worker.toLoad.path().c_str()), 0); }
  void unload(Worker& worker) {
    for (int satNum = worker.firstLoaded(); satNum < worker.firstLoaded() + kInFile; ++satNum) {
      std::int64_t key = vcm::kNoKey;
      while ((key = vcm::VcmSatKeyGet(mediaVcm, satNum)) != vcm::kNoKey) {
        remove(key);
      }
    }
  }

  void save(Worker& worker) {
    EXPECT_EQ(VcmSaveFile(worker.saved.path().c_str(), 0), 0);
    const vcm::OpenFile file(std::fopen(worker.saved.path().c_str(), "r"));
    vcm::CardReader cards(file.get());
    vcm::SkipLines(cards, static_cast<int>(vcm::kFileHeading.size()));
    int lasting = 0;
    while (cards.next()) {
      const VcmRecord record = vcm::ReadVCMFrFileUnit(cards, vcm::CardType::multiLineHeader);
      EXPECT_TRUE(isWhole(record)) << record.satNum;
      lasting += record.satNum <= kLasting ? 1 : 0;
    }
    EXPECT_EQ(lasting, kLasting);
  }

  void empty(Worker& /*worker*/) { EXPECT_EQ(VcmRemoveAllSats(), 0); }

 protected:
  std::deque<Worker> workers_;
  std::vector<std::int64_t> lasting_;
  std::atomic<std::int64_t> fleeting_{1};  // the key added last
  std::atomic<std::int64_t> begun_{0};     // operations
  std::atomic<std::int32_t> stored_{kLasting};
};

TEST_P(StoreStress, ReadersSeeWholeRecordsAndEveryChangeCounts) {
  // Removals outweigh adds, so that the store stays small; what takes long comes seldom.
  storm(0.48, {{180, "add", &StoreStress::add},
               {200, "remove", &StoreStress::removeOne},
               {150, "update", &StoreStress::update},
               {200, "find what lasts", &StoreStress::findLasting},
               {200, "find what may go", &StoreStress::findFleeting},
               {60, "find a satellite", &StoreStress::findSatellite},
               {30, "list", &StoreStress::list},
               {8, "load", &StoreStress::load},
               {4, "unload", &StoreStress::unload},
               {2, "save", &StoreStress::save}});
  EXPECT_EQ(storedCount(), stored_);
  for (const Worker& worker : workers_) {
    for (const std::int64_t key : worker.keys) {
      VcmRecord record;
      vcm::VcmFindRec(mediaVcm, key, record);
      EXPECT_TRUE(record.satNum == worker.satNum() && isWhole(record)) << "key " << key;
    }
  }
}

TEST_P(StoreStress, EmptyingAmongAddsAndReads) {
  storm(0.02, {{50, "add", &StoreStress::add},
               {45, "find", &StoreStress::findFleeting},
               {4, "load", &StoreStress::load},
               {1, "empty", &StoreStress::empty}});
  emptyStore();
  EXPECT_EQ(storedCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(Keys, StoreStress, testing::Bool(), [](const auto& suite) {
  return std::string(suite.param ? "Both" : "Ordinary");
});

}  // namespace
