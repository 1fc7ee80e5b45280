// What the store should hold: a plain map of keys to messages, which knows how keys are found.
#ifndef FUZZ_SUPPORT_STOREMODEL_H
#define FUZZ_SUPPORT_STOREMODEL_H

#include <cstdint>
#include <map>
#include <vector>

#include "support/ArrayForm.h"

namespace fuzz {

class StoreModel {
 public:
  struct Entry {
    ArrayForm message;
    std::int64_t sequence;  // in the order of loading
  };

  // The ordinary key that a message will get: its own, or the next that is free. 0 for a duplicate.
  std::int64_t ordinaryKeyFor(const ArrayForm& message) const;
  void add(std::int64_t satKey, const ArrayForm& message) {
    entries_[satKey] = {message, ++added_};
  }
  bool remove(std::int64_t satKey) { return entries_.erase(satKey) > 0; }
  void clear() { entries_.clear(); }

  // Null for a key that is not stored.
  ArrayForm* find(std::int64_t satKey);
  bool holdsSatellite(double satNum) const;
  std::size_t size() const { return entries_.size(); }
  const std::map<std::int64_t, Entry>& entries() const { return entries_; }
  std::vector<std::int64_t> listed(std::int32_t order) const;

 private:
  std::map<std::int64_t, Entry> entries_;
  std::int64_t added_ = 0;
};

}  // namespace fuzz

#endif
