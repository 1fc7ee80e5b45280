#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "../../../host/core/BoundedQuicksort.h"
#include "Host/HostCore.h"

namespace {

using Row = std::pair<std::string, std::int64_t>;

std::vector<Row> sortedByHost(const std::vector<Row>& rows, std::size_t textLength) {
  std::string texts;
  std::vector<std::int64_t> carried;
  for (const auto& [text, number] : rows) {
    texts += text;
    carried.push_back(number);
  }
  const auto length = static_cast<std::int32_t>(textLength);
  const auto count = static_cast<std::int32_t>(rows.size());
  quicksortiterative(texts.data(), &length, carried.data(), &count);
  std::vector<Row> sorted;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    sorted.emplace_back(texts.substr(i * textLength, textLength), carried[i]);
  }
  return sorted;
}

// Bytes compare as unsigned, as std::string's do.
std::string digits(std::size_t value, std::size_t length) {
  std::string text = std::to_string(value);
  text.insert(0, length > text.size() ? length - text.size() : 0, '0');
  return text.substr(text.size() - length);
}

TEST(Quicksort, AgreesWithTheStandardSort) {
  constexpr unsigned kSeed = 42;
  std::mt19937 random(kSeed);
  const std::pair<const char*, std::function<std::size_t(std::size_t, std::size_t)>> patterns[] = {
      {"sorted", [](std::size_t i, std::size_t) { return i; }},
      {"reversed", [](std::size_t i, std::size_t n) { return n - i; }},
      {"equal", [](std::size_t, std::size_t) { return 7; }},
      {"organ pipe", [](std::size_t i, std::size_t n) { return std::min(i, n - i); }},
      {"few values", [&](std::size_t, std::size_t) { return random() % 5; }},
      {"random", [&](std::size_t, std::size_t) { return random(); }},
  };
  for (const std::size_t length : {0U, 1U, 2U, 12U, 31U, 32U, 33U, 70U}) {
    for (const std::size_t count : {0U, 1U, 2U, 3U, 24U, 25U, 26U, 255U, 300U, 5000U}) {
      for (const auto& [name, valueAt] : patterns) {
        std::vector<Row> rows;
        for (std::size_t i = 0; i < count; ++i) {
          rows.emplace_back(digits(valueAt(i, count), length),
                            static_cast<int>(random() % 100) - 50);
        }
        const std::vector<Row> sorted = sortedByHost(rows, length);
        std::sort(rows.begin(), rows.end());
        ASSERT_EQ(sorted, rows) << name << ", length " << length << ", count " << count << ", seed "
                                << kSeed;
      }
    }
  }
}

TEST(Quicksort, BytesOfAnyValue) {
  constexpr unsigned kSeed = 43;
  std::mt19937 random(kSeed);
  for (const std::size_t length : {1U, 8U, 32U, 33U}) {
    // With few letters texts differ late, with many early.
    for (const unsigned letters : {2U, 256U}) {
      std::vector<Row> rows(3000);
      for (auto& [text, number] : rows) {
        text.resize(length);
        std::generate(text.begin(), text.end(), [&] {
          return static_cast<char>(letters == 2 ? random() % 2 * 255 : random() % letters);
        });
        number = static_cast<std::int64_t>(random());
      }
      const std::vector<Row> sorted = sortedByHost(rows, length);
      std::sort(rows.begin(), rows.end());
      ASSERT_EQ(sorted, rows) << "length " << length << ", letters " << letters << ", seed "
                              << kSeed;
    }
  }
}

TEST(Quicksort, CountsBelowOneDoNothing) {
  const std::int32_t length = 3;
  const std::int32_t count = -1;
  quicksortiterative(nullptr, &length, nullptr, &count);
}

// McIlroy's adversary: answers each comparison so that the pivot turns out as bad as it can,
// whatever the way it is chosen. Values are settled only as the sort asks for them.
class Adversary {
 public:
  explicit Adversary(std::size_t count) : values_(count, kOpen) {}

  bool less(std::size_t a, std::size_t b) {
    ++comparisons;
    if (values_[a] == kOpen && values_[b] == kOpen) {
      values_[a == candidate_ ? a : b] = settled_++;
    }
    if (values_[a] == kOpen) {
      candidate_ = a;
    } else if (values_[b] == kOpen) {
      candidate_ = b;
    }
    return values_[a] < values_[b];
  }

  std::size_t comparisons = 0;

 private:
  static constexpr std::size_t kOpen = std::numeric_limits<std::size_t>::max();
  std::vector<std::size_t> values_;
  std::size_t settled_ = 0;
  std::size_t candidate_ = 0;
};

TEST(Quicksort, NoInputMakesItQuadratic) {
  constexpr std::size_t kCount = 1 << 14;
  Adversary adversary(kCount);
  const auto less = [&adversary](std::size_t a, std::size_t b) { return adversary.less(a, b); };
  std::vector<std::size_t> indexes(kCount);
  for (std::size_t i = 0; i < kCount; ++i) {
    indexes[i] = i;
  }
  hostcore::boundedQuicksort(indexes.data(), indexes.data() + kCount, less);
  EXPECT_TRUE(std::is_sorted(indexes.begin(), indexes.end(), less));
  // 14 is the binary logarithm; a quadratic run takes ten times as many comparisons.
  EXPECT_LT(adversary.comparisons, 10 * kCount * 14);
}

TEST(Quicksort, EqualElementsTakeFewComparisons) {
  constexpr std::size_t kCount = 1 << 14;
  std::size_t comparisons = 0;
  std::vector<int> equals(kCount, 3);
  hostcore::boundedQuicksort(equals.data(), equals.data() + kCount, [&comparisons](int a, int b) {
    ++comparisons;
    return a < b;
  });
  EXPECT_LT(comparisons, 4 * kCount);
}

}  // namespace
