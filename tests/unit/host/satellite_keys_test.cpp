#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

#include "Host/HostCalendar.h"

namespace {

constexpr std::int32_t kElsetType = 5;

std::int64_t keyFromDays(std::int32_t satNum, double ds50) {
  return createsatkey(&satNum, &kElsetType, nullptr, &ds50);
}

std::int64_t keyFromText(std::int32_t satNum, std::string epoch) {
  epoch.resize(20, ' ');
  return createsatkey(&satNum, &kElsetType, epoch.c_str(), nullptr);
}

double days(std::int32_t year, std::int32_t dayOfYear, std::int32_t hour, std::int32_t minute,
            double seconds) {
  return tcomps2utc(&dayOfYear, &hour, &minute, &seconds, &year);
}

TEST(SatelliteKeys, GrowWithTheEpochAndArePositiveAndOdd) {
  const double coarsestStep = 2.1 / 86400;
  std::vector<double> epochs;
  for (int day = 1; day < 2940203; day += day < 89000 ? 11 : 997) {
    epochs.push_back(day);
    // From 2193 on the steps of long satellite numbers are minutes long.
    epochs.push_back(day + (day < 89000 ? coarsestStep : 0.5));
  }
  for (const std::int32_t satNum : {0, 1, 5, 25544, 524287, 524288, 99999999, 999999999}) {
    std::int64_t last = 0;
    for (const double epoch : epochs) {
      const std::int64_t key = keyFromDays(satNum, epoch);
      ASSERT_GT(key, last) << satNum << " at " << epoch;
      ASSERT_EQ(key % 2, 1) << satNum << " at " << epoch;
      last = key;
    }
  }
}

TEST(SatelliteKeys, TellMillisecondsApartUpToSixDigitNumbers) {
  const double epoch = days(2024, 100, 12, 0, 0);
  const double next = days(2024, 100, 12, 0, 0.001);
  EXPECT_EQ(keyFromDays(524287, next), keyFromDays(524287, epoch) + 2);
  EXPECT_LT(keyFromDays(524286, next), keyFromDays(524287, epoch));
  // Later than any fine step, one satellite's keys still end before the next one's begin.
  EXPECT_LT(keyFromDays(7, days(9999, 365, 23, 59, 59.999)), keyFromDays(8, 1.0));
  EXPECT_LT(keyFromDays(999999998, days(9999, 365, 0, 0, 0)), keyFromDays(999999999, 1.0));
}

TEST(SatelliteKeys, TextAndDaysOfOneInstantAgree) {
  constexpr unsigned kSeed = 7;
  std::mt19937 random(kSeed);
  for (int i = 0; i < 20000; ++i) {
    const auto pick = [&random](unsigned below) {
      return static_cast<std::int32_t>(random() % below);
    };
    const std::int32_t year = 1957 + pick(100);
    const std::int32_t day = 1 + pick(365);
    const std::int32_t hour = pick(24);
    const std::int32_t minute = pick(60);
    const std::int32_t millisecond = pick(60000);
    const std::int32_t satNum = pick(1000000000);
    char text[32];
    std::snprintf(text, sizeof text, "%04d%03d%02d%02d%02d.%03d", year, day, hour, minute,
                  millisecond / 1000, millisecond % 1000);
    const double ds50 = days(year, day, hour, minute, millisecond / 1000.0);
    ASSERT_EQ(keyFromText(satNum, text), keyFromDays(satNum, ds50)) << text << " of " << satNum;

    const std::int32_t fraction = pick(100000000);
    std::snprintf(text, sizeof text, "%02d%03d.%08d", year % 100, day, fraction);
    ASSERT_EQ(keyFromText(satNum, text),
              keyFromDays(satNum, days(year, day, 0, 0, 0) + fraction / 1e8))
        << text << " of " << satNum;
  }
}

TEST(SatelliteKeys, EpochTexts) {
  const std::pair<const char*, double> readable[] = {
      {"24100.5", days(2024, 100, 12, 0, 0)},
      {"24100.50000000000000", days(2024, 100, 12, 0, 0)},
      {"24100.", days(2024, 100, 0, 0, 0)},
      {"4 100.5", days(2004, 100, 12, 0, 0)},
      {" 4100.5", days(2004, 100, 12, 0, 0)},
      {"57001.0", days(1957, 1, 0, 0, 0)},
      {"24366.0", days(2024, 366, 0, 0, 0)},
      {"2024100120000.000000", days(2024, 100, 12, 0, 0)},
      {"2024100120000.", days(2024, 100, 12, 0, 0)},
      {"2016366235960.5", days(2017, 1, 0, 0, 0.5)},
  };
  for (const auto& [text, ds50] : readable) {
    EXPECT_EQ(keyFromText(25544, text), keyFromDays(25544, ds50)) << text;
    EXPECT_NE(keyFromText(25544, text), -1) << text;
  }
  const char* unreadable[] = {"",
                              "24",
                              "24100",
                              "24100 .5",
                              "24100.5x",
                              "24100.5 5",
                              "24100.5.5",
                              "24100.-5",
                              "  100.5",
                              "24 10.5",
                              "x4100.5",
                              "24000.5",
                              "23366.5",
                              "24367.5",
                              "-1100.5",
                              "24-10.5",
                              "2024100120000",
                              "2024100240000.0",
                              "2024100126000.0",
                              "2024100120061.0",
                              "20241001200 0.0",
                              "202410012-100.0",
                              "2024100120000.0e1",
                              "1949365000000.0",
                              "24.100.5"};
  for (const char* text : unreadable) {
    EXPECT_EQ(keyFromText(25544, text), -1) << text;
  }
}

TEST(SatelliteKeys, TextEndsAtATerminator) {
  const std::string epoch("24100.5\0#junk behind.", 20);
  EXPECT_EQ(keyFromText(5, epoch), keyFromText(5, "24100.5"));
}

TEST(SatelliteKeys, Failures) {
  const double epoch = 27000;
  EXPECT_NE(keyFromDays(999999999, epoch), -1);
  EXPECT_EQ(keyFromDays(1000000000, epoch), -1);
  EXPECT_EQ(keyFromDays(-1, epoch), -1);
  const double noEpochs[] = {0.99,
                             -5,
                             days(10000, 1, 0, 0, 0),
                             1e300,
                             -1e300,
                             std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()};
  for (const double ds50 : noEpochs) {
    EXPECT_EQ(keyFromDays(5, ds50), -1) << ds50;
  }
  const std::int32_t satNum = 5;
  const std::string text = "24100.5             ";
  EXPECT_EQ(createsatkey(&satNum, &kElsetType, nullptr, nullptr), -1);
  EXPECT_EQ(createsatkey(&satNum, &kElsetType, text.c_str(), &epoch), -1);
}

}  // namespace
