// What a program would keep without the library: a std::map from key to record.
#ifndef BENCHMARKS_MAPPEDRECORDS_H
#define BENCHMARKS_MAPPEDRECORDS_H

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "Lookups.h"
#include "VCM/VcmTypes/VcmRecord.h"

// The records lie apart from the map's nodes, which are allocated one after the other in the order of
// loading. The sequence number stands in the node, where it costs a listing least.
class MappedRecords {
 public:
  struct Entry {
    const vcm::VcmRecord* record;
    std::int32_t sequence;
  };

  explicit MappedRecords(const Keys& loaded);

  const vcm::VcmRecord& find(std::int64_t key) const { return *map_.find(key)->second.record; }

  // The keys in an order of VcmGetLoaded: a walk that collects what is sorted by, and a sort.
  void list(std::int32_t order, Keys& keys) const;

 private:
  struct Place {
    std::int64_t satNum;
    std::int64_t epoch;  // in milliseconds, years of equal length: all that an order needs
    std::int64_t key;
    friend bool operator<(const Place& a, const Place& b) {
      if (a.satNum != b.satNum) {
        return a.satNum < b.satNum;
      }
      return a.epoch != b.epoch ? a.epoch < b.epoch : a.key < b.key;
    }
  };
  struct Turn {
    std::int32_t sequence;
    std::int64_t key;
    friend bool operator<(const Turn& a, const Turn& b) { return a.sequence < b.sequence; }
  };

  std::vector<std::unique_ptr<const vcm::VcmRecord>> records_;
  std::map<std::int64_t, Entry> map_;
};

#endif
