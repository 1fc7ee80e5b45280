// The 64-bit key of a satellite at an epoch: bit 0 set, the satellite number and below it the
// epoch.
//
// Bit 63 stays clear and bit 0 set, so that keys are positive and odd. Of the 62 bits between, the
// upper 19 hold the satellite number and the lower 43 the epoch; a number that needs more bits
// takes them from the epoch's low end, whose steps get coarser.
#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string_view>

#include "Gregorian.h"
#include "Host/HostCalendar.h"

namespace {

constexpr std::int64_t kNoKey = -1;
constexpr std::int32_t kLargestSatNum = 999'999'999;
constexpr int kBodyBits = 62;
constexpr int kNumberBits = 19;
constexpr int kEpochBits = kBodyBits - kNumberBits;

// Steps of a millisecond up to the year 2193, then coarse ones as far as the calendar goes.
constexpr std::int64_t kFineSteps = (std::int64_t{1} << kEpochBits) / 8 * 7;
constexpr std::int64_t kMillisecondsPerCoarseStep = 256;
constexpr double kMillisecondsPerDay = 86'400'000.0;

constexpr std::size_t kEpochTextLength = 20;

std::int64_t epochSteps(std::int64_t milliseconds) {
  if (milliseconds < kFineSteps) {
    return milliseconds;
  }
  return kFineSteps + (milliseconds - kFineSteps) / kMillisecondsPerCoarseStep;
}

std::int64_t keyOf(std::int32_t satNum, std::int64_t milliseconds) {
  const int numberBits =
      std::max(kNumberBits, static_cast<int>(std::bit_width(static_cast<std::uint32_t>(satNum))));
  const std::int64_t body = std::int64_t{satNum} << (kBodyBits - numberBits) |
                            epochSteps(milliseconds) >> (numberBits - kNumberBits);
  return body << 1 | 1;
}

// The number that fills the whole field, or none.
std::optional<std::int32_t> digitsOf(std::string_view field) {
  std::int32_t value = 0;
  const char* end = field.data() + field.size();
  if (field.empty() || field.front() == '-' ||
      std::from_chars(field.data(), end, value).ptr != end) {
    return std::nullopt;
  }
  return value;
}

// A fraction between 0 and 1, given the digits behind its point; there may be none.
std::optional<double> fractionOf(std::string_view digits) {
  if (digits.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::nullopt;
  }
  std::array<char, kEpochTextLength + 2> text{'0', '.'};
  char* end = std::copy(digits.begin(), digits.end(), text.begin() + 2);
  double value = 0;
  std::from_chars(text.data(), end, value);
  return value;
}

struct EpochFields {
  std::optional<std::int32_t> year, dayOfYear, hour, minute, second;
  std::optional<double> fractionOfSecond, fractionOfDay;
};

// YYDDD.DDDDDDDD. A blank in the year's columns is not a digit of it.
EpochFields dayFormFields(std::string_view text) {
  std::string_view year = text.substr(0, 2);
  year.remove_prefix(year.front() == ' ' ? 1 : 0);
  year.remove_suffix(year.back() == ' ' ? 1 : 0);
  return {digitsOf(year), digitsOf(text.substr(2, 3)), 0, 0, 0, 0.0, fractionOf(text.substr(6))};
}

// YYYYDDDHHMMSS.SSS
EpochFields secondFormFields(std::string_view text) {
  return {digitsOf(text.substr(0, 4)),
          digitsOf(text.substr(4, 3)),
          digitsOf(text.substr(7, 2)),
          digitsOf(text.substr(9, 2)),
          digitsOf(text.substr(11, 2)),
          fractionOf(text.substr(14)),
          0.0};
}

std::optional<double> daysOf(const EpochFields& fields) {
  if (!fields.year || !fields.dayOfYear || !fields.hour || !fields.minute || !fields.second ||
      !fields.fractionOfSecond || !fields.fractionOfDay) {
    return std::nullopt;
  }
  std::int32_t year = fixyr(&*fields.year);
  const std::int32_t daysInYear = hleap(&year) != 0 ? 366 : 365;
  // Second 60 is a leap second.
  if (*fields.dayOfYear < 1 || *fields.dayOfYear > daysInYear || *fields.hour > 23 ||
      *fields.minute > 59 || *fields.second > 60) {
    return std::nullopt;
  }
  const double seconds = *fields.second + *fields.fractionOfSecond;
  return tcomps2utc(&*fields.dayOfYear, &*fields.hour, &*fields.minute, &seconds, &year) +
         *fields.fractionOfDay;
}

std::optional<double> daysOf(const char* epochText) {
  std::string_view text(epochText, strnlen(epochText, kEpochTextLength));
  text = text.substr(0, text.find_last_not_of(' ') + 1);
  constexpr std::size_t kDayFormPoint = 5;
  constexpr std::size_t kSecondFormPoint = 13;
  if (text.size() > kDayFormPoint && text[kDayFormPoint] == '.') {
    return daysOf(dayFormFields(text));
  }
  if (text.size() > kSecondFormPoint && text[kSecondFormPoint] == '.') {
    return daysOf(secondFormFields(text));
  }
  return std::nullopt;
}

}  // namespace

std::int64_t createsatkey(const std::int32_t* satNum, const std::int32_t* /*elsetType*/,
                          const char* epochText, const double* ds50Utc) {
  if (*satNum < 0 || *satNum > kLargestSatNum || (epochText == nullptr) == (ds50Utc == nullptr)) {
    return kNoKey;
  }
  const std::optional<double> days = ds50Utc != nullptr ? *ds50Utc : daysOf(epochText);
  // 1950 January 1 is day 1. Not-a-number fails this as well.
  if (!days || !(*days >= 1 && *days < hostcalendar::kCalendarEnd)) {
    return kNoKey;
  }
  return keyOf(*satNum, std::llround((*days - 1) * kMillisecondsPerDay));
}
