// What the suites work on: the messages of the sample catalogue, and a store filled with them.
#ifndef BENCHMARKS_CATALOGUE_H
#define BENCHMARKS_CATALOGUE_H

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "VCM/VcmCardReading/OneLineParser.h"
#include "VCM/VcmTree/Store.h"
#include "vcm/Vcm.h"

inline constexpr const char* kCatalogueLines = VCM_SAMPLES_DIR "/catalogue.vcm";
inline constexpr const char* kCatalogueOneLine = VCM_SAMPLES_DIR "/catalogue.one";

inline const std::vector<std::string>& oneLineMessages() {
  static const std::vector<std::string> messages = [] {
    std::ifstream file(kCatalogueOneLine);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
      lines.push_back(line);
    }
    return lines;
  }();
  return messages;
}

inline const std::vector<vcm::VcmRecord>& catalogueRecords() {
  static const std::vector<vcm::VcmRecord> records = [] {
    std::vector<vcm::VcmRecord> parsed;
    std::transform(oneLineMessages().begin(), oneLineMessages().end(), std::back_inserter(parsed),
                   [](const std::string& line) { return vcm::Vcm1Line2Vcm(line); });
    return parsed;
  }();
  return records;
}

// Gives one after the other, over and over.
template <class Container>
class Cycle {
 public:
  explicit Cycle(const Container& all) : all_(all) {}
  const auto& next() {
    at_ = at_ + 1 < all_.size() ? at_ + 1 : 0;
    return all_[at_];
  }

 private:
  const Container& all_;
  std::size_t at_ = 0;
};

// The catalogue's records with satellite numbers from 1 up to the size of the store.
class FilledStore {
 public:
  explicit FilledStore(std::int64_t size) {
    Cycle records(catalogueRecords());
    for (std::int32_t satNum = 1; satNum <= size; ++satNum) {
      vcm::VcmRecord record = records.next();
      record.satNum = satNum;
      keys_.push_back(vcm::AddVcmToMem(record));
    }
    std::shuffle(keys_.begin(), keys_.end(), std::mt19937_64(1));
  }
  ~FilledStore() { VcmRemoveAllSats(); }
  FilledStore(const FilledStore&) = delete;
  FilledStore& operator=(const FilledStore&) = delete;

  // Shuffled.
  const std::vector<std::int64_t>& keys() const { return keys_; }

 private:
  std::vector<std::int64_t> keys_;
};

inline constexpr std::int64_t kSmallStore = 1'000;
inline constexpr std::int64_t kLargeStore = 100'000;

#endif
