#include "support/StoreModel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <tuple>

namespace fuzz {

namespace {

// Messages that agree in these are duplicates.
bool same(const ArrayForm& a, const ArrayForm& b) {
  constexpr int kCompared[] = {VCM_NUM_SATNUM,     VCM_NUM_EPOCH,      VCM_NUM_ECIPOS,
                               VCM_NUM_ECIPOS + 1, VCM_NUM_ECIPOS + 2, VCM_NUM_ECIVEL,
                               VCM_NUM_ECIVEL + 1, VCM_NUM_ECIVEL + 2, VCM_NUM_BTERM,
                               VCM_NUM_AGOM};
  return std::all_of(std::begin(kCompared), std::end(kCompared), [&](int i) {
    return a.numbers[static_cast<std::size_t>(i)] == b.numbers[static_cast<std::size_t>(i)];
  });
}

// The key of a message's satellite number and epoch: whole minutes of 2024, by way of the text form.
std::int64_t ownKey(const ArrayForm& message) {
  constexpr double kFirstOf2024 = 27029.0;
  constexpr int kMinutesInDay = 1440;
  const long minute = std::lround((message.numbers[VCM_NUM_EPOCH] - kFirstOf2024) * kMinutesInDay);
  std::array<char, 64> epoch;  // more than any minute takes
  std::snprintf(epoch.data(), epoch.size(), "2024%03ld%02ld%02ld00.000", minute / kMinutesInDay + 1,
                minute % kMinutesInDay / 60, minute % 60);
  return VcmFieldsToSatKey(static_cast<std::int32_t>(message.numbers[VCM_NUM_SATNUM]),
                           epoch.data());
}

}  // namespace

std::int64_t StoreModel::ordinaryKeyFor(const ArrayForm& message) const {
  constexpr std::int64_t kStep = 2;
  std::int64_t satKey = ownKey(message);
  for (auto at = entries_.find(satKey); at != entries_.end(); at = entries_.find(satKey += kStep)) {
    if (same(at->second.message, message)) {
      return 0;
    }
  }
  return satKey;
}

ArrayForm* StoreModel::find(std::int64_t satKey) {
  const auto at = entries_.find(satKey);
  return at == entries_.end() ? nullptr : &at->second.message;
}

bool StoreModel::holdsSatellite(double satNum) const {
  return std::any_of(entries_.begin(), entries_.end(), [satNum](const auto& entry) {
    return entry.second.message.numbers[VCM_NUM_SATNUM] == satNum;
  });
}

std::vector<std::int64_t> StoreModel::listed(std::int32_t order) const {
  const auto place = [&](std::int64_t satKey) {
    const Entry& entry = entries_.at(satKey);
    const std::vector<double>& numbers = entry.message.numbers;
    const bool bySatellite = order == VCM_ORDER_SATELLITE || order == VCM_ORDER_SATELLITE_REVERSE;
    return std::tuple(bySatellite ? numbers[VCM_NUM_SATNUM] : 0.0,
                      bySatellite ? numbers[VCM_NUM_EPOCH] : 0.0,
                      order == VCM_ORDER_LOADED ? entry.sequence : 0, satKey);
  };
  std::vector<std::int64_t> keys;
  for (const auto& entry : entries_) {
    keys.push_back(entry.first);
  }
  std::sort(keys.begin(), keys.end(), [&](auto a, auto b) { return place(a) < place(b); });
  if (order == VCM_ORDER_SATELLITE_REVERSE) {
    std::reverse(keys.begin(), keys.end());
  }
  return keys;
}

}  // namespace fuzz
