#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <tuple>

#include "Host/HostCalendar.h"

namespace {

struct Date {
  std::int32_t year, dayOfYear, hour, minute;
  double seconds;

  bool operator==(const Date&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Date& date) {
  return out << date.year << "/" << date.dayOfYear << " " << date.hour << ":" << date.minute << ":"
             << date.seconds;
}

double days(Date date) {
  return tcomps2utc(&date.dayOfYear, &date.hour, &date.minute, &date.seconds, &date.year);
}

Date dateOf(double ds50) {
  Date date{-1, -1, -1, -1, -1};
  dyklok(&ds50, &date.year, &date.dayOfYear, &date.hour, &date.minute, &date.seconds);
  return date;
}

TEST(Dates, KnownDays) {
  EXPECT_EQ(days({1950, 1, 0, 0, 0}), 1.0);
  EXPECT_EQ(days({1956, 1, 12, 0, 0}), 2192.5);
  EXPECT_EQ(days({2000, 1, 0, 0, 0}), 18263.0);
  EXPECT_EQ(days({2016, 366, 23, 59, 60}), 24473.0);
  EXPECT_EQ(days({1949, 365, 0, 0, 0}), 0.0);
  EXPECT_EQ(days({1900, 1, 0, 0, 0}), -18261.0);
}

TEST(Dates, EveryDayComesBack) {
  double ds50 = days({1956, 1, 0, 0, 0});
  for (std::int32_t year = 1956; year <= 2100; ++year) {
    const bool leap = year % 4 == 0 && year != 2100;
    ASSERT_EQ(hleap(&year) != 0, leap) << year;
    for (std::int32_t day = 1; day <= (leap ? 366 : 365); ++day, ++ds50) {
      const Date date{year, day, 0, 0, 0};
      ASSERT_EQ(days(date), ds50) << date;
      ASSERT_EQ(dateOf(ds50), date) << date;
    }
  }
}

TEST(Dates, MillisecondsComeBack) {
  constexpr unsigned kSeed = 20240501;
  std::mt19937 random(kSeed);
  for (int i = 0; i < 100000; ++i) {
    const auto pick = [&random](unsigned below) {
      return static_cast<std::int32_t>(random() % below);
    };
    const Date date{1957 + pick(170), 1 + pick(365), pick(24), pick(60), pick(60000) / 1000.0};
    ASSERT_EQ(dateOf(days(date)), date) << date << ", seed " << kSeed;
  }
}

TEST(Dates, RoundingCarriesThroughEveryUnit) {
  const double tenthOfMicrosecond = 1e-7 / 86400;
  EXPECT_EQ(dateOf(1.0 - tenthOfMicrosecond), (Date{1950, 1, 0, 0, 0}));
  EXPECT_EQ(dateOf(days({2023, 365, 23, 59, 59.9999999})), (Date{2024, 1, 0, 0, 0}));
  EXPECT_EQ(dateOf(days({2024, 60, 9, 59, 59.9999999})), (Date{2024, 60, 10, 0, 0}));
}

TEST(Dates, WhatIsNoDateGivesZeros) {
  EXPECT_EQ(dateOf(-711856.0), (Date{1, 1, 0, 0, 0}));
  EXPECT_EQ(dateOf(days({9999, 365, 0, 0, 0})), (Date{9999, 365, 0, 0, 0}));
  EXPECT_EQ(dateOf(std::nextafter(days({10000, 1, 0, 0, 0}), 0.0)).year, 9999);
  const double beyond[] = {-711856.5,
                           days({10000, 1, 0, 0, 0}),
                           1e300,
                           -1e300,
                           std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()};
  for (const double ds50 : beyond) {
    EXPECT_EQ(dateOf(ds50), (Date{0, 0, 0, 0, 0})) << ds50;
  }
}

TEST(Dates, TwoDigitYears) {
  const std::pair<std::int32_t, std::int32_t> table[] = {
      {57, 1957}, {99, 1999}, {0, 2000}, {56, 2056}, {100, 100}, {-1, -1}, {2024, 2024}};
  for (const auto& [given, expected] : table) {
    EXPECT_EQ(fixyr(&given), expected) << given;
    std::int32_t year = given;
    const std::int32_t day = 1;
    const std::int32_t zero = 0;
    const double seconds = 0;
    EXPECT_EQ(tcomps2utc(&day, &zero, &zero, &seconds, &year), days({expected, 1, 0, 0, 0}));
    EXPECT_EQ(year, expected) << given;
  }
}

TEST(Dates, LeapYears) {
  for (const auto& [year, leap] : {std::pair{1900, 0}, {2000, 1}, {2023, 0}, {2024, 1}, {-4, 1}}) {
    EXPECT_EQ(hleap(&year), leap) << year;
  }
}

TEST(Dates, MonthAndDay) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  const std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int32_t> table[] = {
      {2023, 1, 1, 1},
      {2023, 31, 1, 31},
      {2023, 32, 2, 1},
      {2023, 59, 2, 28},
      {2023, 60, 3, 1},
      {2024, 60, 2, 29},
      {2024, 61, 3, 1},
      {2023, 365, 12, 31},
      {2024, 366, 12, 31},
      {2023, 366, 12, 32},
      {2023, 0, 1, 0},
      {2023, -5, 1, -5},
      {2024, 182, 6, 30},
      {2024, kMost, 12, kMost - 335},
      {kLeast, kLeast, 1, kLeast}};
  for (const auto& [year, dayOfYear, month, dayOfMonth] : table) {
    std::int32_t gotMonth = 0;
    std::int32_t gotDay = 0;
    jul2mmdd(&year, &dayOfYear, &gotMonth, &gotDay);
    EXPECT_EQ(std::pair(gotMonth, gotDay), std::pair(month, dayOfMonth))
        << year << "/" << dayOfYear;
  }
}

// Run under the sanitizers, this finds any arithmetic that overflows.
TEST(Dates, ExtremeFieldsStayDefined) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  EXPECT_GT(days({kMost, kMost, kMost, kMost, 1e300}), 1e200);
  EXPECT_LT(days({kLeast, kLeast, kLeast, kLeast, 0}), -1e11);
  EXPECT_TRUE(std::isnan(days({2024, 1, 0, 0, std::numeric_limits<double>::quiet_NaN()})));
}

}  // namespace
