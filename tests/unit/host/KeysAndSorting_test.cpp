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
  using Row = std::pair<std::string, std::int64_t>;
  std::mt19937 random(42);
  for (int i = 0; i < 8 * 8 * 11; ++i) {
    constexpr std::int32_t kLengths[] = {0, 1, 2, 8, 12, 32, 33, 70};
    constexpr std::int32_t kCounts[] = {-1, 0, 1, 2, 3, 24, 25, 26, 255, 300, 5000};
    const std::int32_t length = kLengths[i / 8 % 8], count = kCounts[i / 64];
    const auto n = static_cast<Size>(std::max(count, 0)), width = static_cast<Size>(length);
    std::string texts;
    std::vector<std::int64_t> carried;
    std::vector<Row> rows, sorted;
    for (Size row = 0; row < n; ++row) {
      // Digits, whose values rise, fall, do both, rise three times, are few or any; then bytes, two or any.
      const Size values[] = {row,         n - row,      std::min(row, n - row),
                             row * 3 % n, random() % 5, random()};
      std::string text = std::string(width, '0') + std::to_string(values[std::min(i % 8, 5)]);
      text.erase(0, text.size() - width);
      for (char& c : text) {
        c = i % 8 < 6 ? c : static_cast<char>(i % 8 == 6 ? random() % 2 * 255 : random());
      }
      texts += text;
      carried.push_back(static_cast<int>(random() % 100) - 50);
      rows.emplace_back(text, carried.back());
    }
    quicksortiterative(texts.data(), &length, carried.data(), &count);
    std::sort(rows.begin(), rows.end());
    for (Size row = 0; row < n; ++row) {
      sorted.emplace_back(texts.substr(row * width, width), carried[row]);
    }
    ASSERT_EQ(sorted, rows) << "kind " << i % 8 << ", " << count << " texts of " << length;
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

TEST(KeyModes, NextKeys) {
  for (const auto& [key, next] :
       {std::pair<std::int64_t, std::int64_t>{1, 3}, {INT64_MAX - 2, INT64_MAX}, {INT64_MAX, 1}}) {
    EXPECT_EQ(nextsatkey(&key), next);
  }
}

}  // namespace
