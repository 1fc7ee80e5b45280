#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "Host/HostCalendar.h"

namespace {

using Int = std::int32_t;
// Year, day of year, hour, minute and seconds.
using Date = std::tuple<Int, Int, Int, Int, double>;

constexpr double kEnd = 2940203;  // the day after 9999 December 31
const Int kOne = 1;

double days(Date date) {
  auto& [year, dayOfYear, hour, minute, seconds] = date;
  return tcomps2utc(&dayOfYear, &hour, &minute, &seconds, &year);
}

Date dateOf(double ds50) {
  Date date{-1, -1, -1, -1, -1};
  auto& [year, dayOfYear, hour, minute, seconds] = date;
  dyklok(&ds50, &year, &dayOfYear, &hour, &minute, &seconds);
  return date;
}

std::pair<Int, Int> monthAndDay(Int year, Int dayOfYear) {
  Int month = 0, day = 0;
  jul2mmdd(&year, &dayOfYear, &month, &day);
  return {month, day};
}

std::int64_t keyFromDays(Int satNum, double ds50) {
  return createsatkey(&satNum, &kOne, nullptr, &ds50);
}

std::int64_t keyFromText(Int satNum, std::string epoch) {
  epoch.resize(20, ' ');
  return createsatkey(&satNum, &kOne, epoch.c_str(), nullptr);
}

TEST(Calendar, EveryDayComesBack) {
  double ds50 = -18626;  // 1899 January 1
  for (Int year = 1899; year <= 2101; ++year) {
    const bool leap = year % 4 == 0 && year != 1900 && year != 2100;
    ASSERT_EQ(hleap(&year) != 0, leap) << year;
    Int dayOfYear = 0;
    for (Int month = 1; month <= 12; ++month) {
      const Int length = month == 2 ? (leap ? 29 : 28) : 30 + (month + month / 8) % 2;
      for (Int day = 1; day <= length; ++day, ++ds50) {
        const Date date{year, ++dayOfYear, 0, 0, 0};
        ASSERT_EQ(dateOf(ds50), date);
        ASSERT_EQ(days(date), ds50) << year << "/" << dayOfYear;
        ASSERT_EQ(monthAndDay(year, dayOfYear), std::pair(month, day)) << year << "/" << dayOfYear;
      }
    }
  }
}

TEST(Calendar, CarriesAndEdges) {
  EXPECT_EQ(dateOf(1.0 - 1e-7 / 86400), (Date{1950, 1, 0, 0, 0}));
  EXPECT_EQ(dateOf(days({2016, 366, 23, 59, 60})), (Date{2017, 1, 0, 0, 0}));
  EXPECT_EQ(dateOf(-711856), (Date{1, 1, 0, 0, 0}));
  for (const double ds50 : {-711856.5, kEnd, 1e300, -1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(dateOf(ds50), Date()) << ds50;
    EXPECT_EQ(keyFromDays(5, ds50), -1) << ds50;
  }
  EXPECT_EQ(monthAndDay(2023, 366), std::pair(12, 32));
  // Run under the sanitizers, these find any arithmetic that overflows.
  EXPECT_GT(days({INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX, 1e300}), 1e200);
  EXPECT_LT(days({INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, 0}), -1e11);
}

TEST(SatelliteKeys, GrowWithNumberAndEpochAndAreOdd) {
  // Numbers of more bits leave the epoch fewer: their keys may lie among those of others.
  for (const std::vector<Int>& group :
       {std::vector{0, 1, 5, 524286, 524287}, {524288, 524289}, {999999998, 999999999}}) {
    std::int64_t last = 0;
    for (const Int satNum : group) {
      // As close as the steps of long numbers tell apart: two seconds up to 2193, then minutes.
      for (int day = 1; day < kEnd; day += day < 89000 ? 11 : 997) {
        for (const double epoch : {day + 0.0, day + (day < 89000 ? 2.1 / 86400 : 0.5)}) {
          const std::int64_t before = std::exchange(last, keyFromDays(satNum, epoch));
          ASSERT_TRUE(last > before && last % 2 == 1) << satNum << " at " << epoch;
        }
      }
    }
  }
}

TEST(SatelliteKeys, TextAndDaysOfOneInstantAgree) {
  std::mt19937 random(7);
  const auto pick = [&random](unsigned below) { return static_cast<Int>(random() % below); };
  for (int i = 0; i < 20000; ++i) {
    const Date date{1957 + pick(100), 1 + pick(365), pick(24), pick(60), pick(60000) / 1000.0};
    ASSERT_EQ(dateOf(days(date)), date);
    ASSERT_EQ(keyFromDays(1, days(date) - 0.0004 / 86400), keyFromDays(1, days(date)));
    const auto& [year, day, hour, minute, seconds] = date;
    const Int fraction = pick(100000000), satNum = pick(1000000000);
    char text[32];
    std::snprintf(text, sizeof text, "%04d%03d%02d%02d%06.3f", year, day, hour, minute, seconds);
    ASSERT_EQ(keyFromText(satNum, text), keyFromDays(satNum, days(date))) << satNum << " " << text;
    std::snprintf(text, sizeof text, "%02d%03d.%08d", year % 100, day, fraction);
    const double ds50 = days({year, day, 0, 0, 0}) + fraction / 1e8;
    ASSERT_EQ(keyFromText(satNum, text), keyFromDays(satNum, ds50)) << satNum << " " << text;
  }
}

TEST(SatelliteKeys, EpochsThatCanAndCannotBeRead) {
  const double day = days({2024, 100, 0, 0, 0});
  // clang-format off
  const std::pair<std::string, double> readable[] = {
      {"24100.", day}, {"24100.50000000000000", day + .5}, {{"24100.5\0#junk behind.", 20}, day + .5},
      {"2024100120000.", day + .5}, {"2024100120000.000000", day + .5}, {"24366.0", day + 266},
      {"4 100.5", day + .5 - 7305}, {" 4100.5", day + .5 - 7305}, {"2016366235960.5", 24473 + .5 / 86400}};
  const char* unreadable[] = {
      "", "24", "24100", "24100 .5", "24100.5x", "24100.5 5", "24100.5.5", "24100.-5", "  100.5", "24 10.5",
      "x4100.5", "24000.5", "23366.5", "24367.5", "-1100.5", "24-10.5", "24.100.5", "2024100120000",
      "2024100240000.0", "2024100126000.0", "2024100120061.0", "20241001200 0.0", "202410012-100.0",
      "2024100120000.0e1", "1949365000000.0"};
  // clang-format on
  for (const auto& [text, ds50] : readable) {
    EXPECT_EQ(keyFromText(25544, text), keyFromDays(25544, ds50)) << text;
  }
  for (const char* text : unreadable) {
    EXPECT_EQ(keyFromText(25544, text), -1) << text;
  }
  EXPECT_EQ(keyFromDays(5, 0.99), -1);
  EXPECT_TRUE(keyFromDays(-1, day) == -1 && keyFromDays(1000000000, day) == -1);
  EXPECT_EQ(createsatkey(&kOne, &kOne, "24100.5             ", &day), -1);
}

}  // namespace
