// Finds records by key, in the store's own way and in a std::map's. Neither touches the record.
// usage: find_records INPUT ROUNDS
#include <cstdlib>
#include <iostream>
#include <map>

#include "Lookups.h"
#include "VCM/VcmTree/Store.h"

namespace {

using RecordMap = std::map<std::int64_t, const vcm::VcmRecord*>;

const vcm::VcmRecord* find(std::int64_t key) {
  const vcm::BorrowedRecord record(vcm::mediaVcm, key);
  return record ? &*record : nullptr;
}

std::uint64_t asNumber(const vcm::VcmRecord* record) {
  return reinterpret_cast<std::uintptr_t>(record);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: find_records INPUT ROUNDS\n";
    return 2;
  }
  VcmInit();
  VcmLoadFile(argv[1]);
  const Keys loaded = loadedKeys(VCM_ORDER_LOADED);
  RecordMap map;
  for (const std::int64_t key : loaded) {
    map[key] = find(key);
  }
  const Keys keys = shuffled(loaded);
  // The first round warms up.
  for (int round = -1; round < std::atoi(argv[2]); ++round) {
    Lookups ours;
    Lookups peer;
    if (!inTurns(
            keys, [](std::int64_t key) { return asNumber(find(key)); },
            [&map](std::int64_t key) { return asNumber(map.find(key)->second); }, ours, peer)) {
      std::cerr << "find_records: different records were found\n";
      return 1;
    }
    if (round >= 0) {
      report("find", ours.seconds);
      report("map-find", peer.seconds);
    }
  }
  reportCheck("messages", static_cast<double>(keys.size()));
  return 0;
}
