// A thread of the stress, and the records that tell on a store.
#ifndef CONCURRENCY_STRESSWORKER_H
#define CONCURRENCY_STRESSWORKER_H

#include <atomic>
#include <random>
#include <string>
#include <vector>

#include "VCM/VcmCardReading/InputFile.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "support/Messages.h"

inline constexpr int kLasting = 20;  // satellites 1 to 20: updated, never removed
inline constexpr int kThreads = 4;   // each adds a satellite of its own behind those
inline constexpr int kFirstLoaded = kLasting + 1 + kThreads;  // and loads two others of its own
inline constexpr int kInFile = 2;

// Every part of a record tells the same value, so that a half-made one shows.
inline vcm::VcmRecord recordOf(int satNum, int value) {
  vcm::VcmRecord record;
  record.satNum = satNum;
  record.epoch = {2024, 1 + value % 300, 0, 0, 0.0};
  record.eciPos[0] = record.eciVel[0] = record.bTerm = record.covMtx.back() = value;
  record.covMtxSize = vcm::kCovarianceDimension;
  record.extraLines.assign(static_cast<std::size_t>(1 + value % 2),
                           vcm::ExtraLine("MANEUV " + std::to_string(value)));
  return record;
}

// What is loaded gets its maneuver cards a little later; what is saved loses them.
inline bool isWhole(const vcm::VcmRecord& record) {
  const vcm::VcmRecord same = recordOf(record.satNum, static_cast<int>(record.bTerm));
  return vcm::equal(record, same) && record.covMtx == same.covMtx &&
         (record.extraLines.empty() || record.extraLines == same.extraLines);
}

// One of the threads, and what it alone adds and removes.
struct Worker {
  explicit Worker(int given) : number(given), random(static_cast<std::uint64_t>(given)) {
    const vcm::OpenFile file(std::fopen(toLoad.path().c_str(), "w"));
    vcm::LineOutput output(file.get());
    for (int i = 0; i < kInFile; ++i) {
      const vcm::VcmRecord record = recordOf(firstLoaded() + i, 10 * number + i);
      vcm::Vcm2Lines(record, output);
      for (const vcm::ExtraLine& card : record.extraLines) {
        output.line(card.view());
      }
    }
  }
  int satNum() const { return kLasting + 1 + number; }
  int firstLoaded() const { return kFirstLoaded + kInFile * number; }
  int anyOf(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }

  int number;
  std::mt19937_64 random;
  std::vector<std::int64_t> keys;
  TemporaryFile toLoad, saved;
  std::atomic<const char*> doing{"nothing"};
};

#endif
