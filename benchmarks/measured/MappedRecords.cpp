#include "MappedRecords.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "vcm/Vcm.h"

namespace {

std::int32_t integerAt(const char* text, std::size_t first, std::size_t width) {
  std::int32_t value = 0;
  std::from_chars(text + first, text + first + width, value);
  return value;
}

// What lookups and listings use; the rest of the record only takes room.
std::unique_ptr<const vcm::VcmRecord> copyOf(std::int64_t key) {
  std::array<char, VCM_CHAR_ARRAY_LENGTH> texts;
  std::array<double, VCM_NUM_ARRAY_LENGTH> numbers;
  VcmRetrieveAllData(key, texts.data(), numbers.data());
  auto record = std::make_unique<vcm::VcmRecord>();
  record->satNum = static_cast<std::int32_t>(numbers[VCM_NUM_SATNUM]);
  std::copy_n(&numbers[VCM_NUM_ECIPOS], record->eciPos.size(), record->eciPos.begin());
  record->bDot = numbers[VCM_NUM_BDOT];

  std::array<char, VCM_FIELD_VALUE_LENGTH> date;
  VcmGetField(key, VCM_FIELD_EPOCH, date.data());  // yyyydddhhmmss.sss
  record->epoch.year = integerAt(date.data(), 0, 4);
  record->epoch.dayOfYear = integerAt(date.data(), 4, 3);
  record->epoch.hour = integerAt(date.data(), 7, 2);
  record->epoch.minute = integerAt(date.data(), 9, 2);
  record->epoch.seconds = integerAt(date.data(), 11, 2) + integerAt(date.data(), 14, 3) / 1000.0;
  return record;
}

std::int64_t sortable(const vcm::InputDate& date) {
  constexpr std::int64_t kDays = 366;
  const std::int64_t minutes =
      ((date.year * kDays + date.dayOfYear) * 24 + date.hour) * 60 + date.minute;
  return minutes * 60'000 + std::llround(date.seconds * 1000.0);
}

}  // namespace

MappedRecords::MappedRecords(const Keys& loaded) {
  for (const std::int64_t key : loaded) {
    records_.push_back(copyOf(key));
  }
  std::int32_t sequence = 0;
  for (const std::int64_t key : loaded) {
    const vcm::VcmRecord* const record = records_[static_cast<std::size_t>(sequence)].get();
    map_[key] = {record, ++sequence};
  }
}

void MappedRecords::list(std::int32_t order, Keys& keys) const {
  const auto keyOf = [](const auto& entry) { return entry.key; };
  if (order == VCM_ORDER_LOADED) {
    std::vector<Turn> turns;
    turns.reserve(map_.size());
    for (const auto& [key, entry] : map_) {
      turns.push_back({entry.sequence, key});
    }
    std::sort(turns.begin(), turns.end());
    std::transform(turns.begin(), turns.end(), keys.begin(), keyOf);
    return;
  }
  std::vector<Place> places;
  places.reserve(map_.size());
  for (const auto& [key, entry] : map_) {
    places.push_back({entry.record->satNum, sortable(entry.record->epoch), key});
  }
  if (order == VCM_ORDER_SATELLITE) {
    std::sort(places.begin(), places.end());
  } else {
    std::sort(places.begin(), places.end(), [](const Place& a, const Place& b) { return b < a; });
  }
  std::transform(places.begin(), places.end(), keys.begin(), keyOf);
}
