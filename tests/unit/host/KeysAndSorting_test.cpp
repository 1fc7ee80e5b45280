#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <numeric>
#include <random>

#include "../../../host/core/BoundedQuicksort.h"
#include "Host/HostCore.h"
#include "host/HostKeyModes.h"

namespace {

using Size = std::size_t;

TEST(Quicksort, AgreesWithTheStandardSort) {
  std::mt19937 random(42);
  const auto check = [&random](int kind, std::int32_t length, std::int32_t count) {
    const auto n = static_cast<Size>(std::max(count, 0));
    const auto width = static_cast<Size>(length);
    std::string texts;
    std::vector<std::int64_t> carried;
    std::vector<std::pair<std::string, std::int64_t>> rows;
    for (Size i = 0; i < n; ++i) {
      // Digits, whose values rise, fall, do both, rise three times, are few or any; then bytes, two or
      // any.
      const Size values[] = {i, n - i, std::min(i, n - i), i * 3 % (n + 1), random() % 5, random(),
                             0, 0};
      std::string text = std::string(width, '0') + std::to_string(values[kind]);
      text.erase(0, text.size() - width);
      for (char& c : text) {
        c = kind < 6 ? c : static_cast<char>(kind == 6 ? random() % 2 * 255 : random());
      }
      texts += text;
      carried.push_back(static_cast<int>(random() % 100) - 50);
      rows.emplace_back(text, carried.back());
    }
    quicksortiterative(texts.data(), &length, carried.data(), &count);
    std::sort(rows.begin(), rows.end());
    for (Size i = 0; i < n; ++i) {
      ASSERT_EQ(std::pair(texts.substr(i * width, width), carried[i]), rows[i])
          << "kind " << kind << ", row " << i << " of " << count << " x " << length;
    }
  };
  for (int kind = 0; kind < 8; ++kind) {
    for (const std::int32_t length : {0, 1, 2, 8, 12, 32, 33, 70}) {
      for (const std::int32_t count : {-1, 0, 1, 2, 3, 24, 25, 26, 255, 300, 5000}) {
        ASSERT_NO_FATAL_FAILURE(check(kind, length, count));
      }
    }
  }
}

TEST(Quicksort, NoInputMakesItQuadratic) {
  constexpr Size kCount = 1 << 14;
  constexpr Size kOpen = SIZE_MAX;
  std::vector<Size> values(kCount, kOpen), indexes(kCount);
  std::iota(indexes.begin(), indexes.end(), Size{0});
  Size settled = 0, candidate = 0, comparisons = 0;
  // McIlroy's adversary answers so that the pivot turns out as bad as it can, whatever the way it
  // is chosen. Values are settled only as the sort asks for them.
  const auto less = [&](Size a, Size b) {
    ++comparisons;
    if (values[a] == kOpen && values[b] == kOpen) {
      values[a == candidate ? a : b] = settled++;
    }
    if (values[a] == kOpen || values[b] == kOpen) {
      candidate = values[a] == kOpen ? a : b;
    }
    return values[a] < values[b];
  };
  hostcore::boundedQuicksort(indexes.data(), indexes.data() + kCount, less);
  EXPECT_TRUE(std::is_sorted(indexes.begin(), indexes.end(), less));
  // 14 is the binary logarithm; a quadratic run takes ten times as many comparisons.
  EXPECT_LT(comparisons, 10 * kCount * 14);
  comparisons = 0;
  std::fill(values.begin(), values.end(), 3);
  hostcore::boundedQuicksort(indexes.data(), indexes.data() + kCount, less);
  EXPECT_LT(comparisons, 4 * kCount) << "equal elements";
}

// In a process of its own, where nothing has switched direct addresses on before.
TEST(KeyModesDeathTest, ModesAreKeptApartAndAddressesKnownFromTheFirstSwitchOn) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  const auto switchModes = [] {
    const auto show = [] {
      for (const std::int64_t key : {12345, 12340, -1}) {
        std::cerr << isdma(&key);
      }
      std::cerr << " " << elsetkeymodeget() << allkeymodeget() << "; ";
    };
    for (const std::int32_t mode : {2, 1, 0, 3}) {
      (mode < 3 ? elsetkeymodeset : allkeymodeset)(&mode);
      show();
    }
    std::_Exit(useAllKeyMode);
  };
  EXPECT_EXIT(switchModes(), testing::ExitedWithCode(0), "000 20; 011 10; 011 00; 011 03");
}

TEST(KeyModes, AddressesInKeysAndNextKeys) {
  int object = 0;
  const auto address = reinterpret_cast<std::intptr_t>(&object);
  const std::int64_t key = address * 10;
  EXPECT_EQ(satkeytoaddr(&key), address);
  EXPECT_EQ(keytocptr(&key), &object);
  for (const std::int64_t none : {key + 2, key + 5, -key, std::int64_t{0}, INT64_MAX}) {
    EXPECT_EQ(satkeytoaddr(&none), 0) << none;
    EXPECT_EQ(keytocptr(&none), nullptr) << none;
  }
  const std::int64_t ends[] = {1, INT64_MAX - 2, INT64_MAX};
  EXPECT_EQ(nextsatkey(&ends[0]), 3);
  EXPECT_EQ(nextsatkey(&ends[1]), INT64_MAX);
  EXPECT_EQ(nextsatkey(&ends[2]), 1);
}

}  // namespace
