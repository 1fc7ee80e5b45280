// Looking up by key, ours and the peer's in turns: what the programs that load once share.
#ifndef BENCHMARKS_LOOKUPS_H
#define BENCHMARKS_LOOKUPS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <vector>

#include "Measuring.h"
#include "vcm/Vcm.h"

using Keys = std::vector<std::int64_t>;

inline Keys loadedKeys(std::int32_t order) {
  Keys keys(static_cast<std::size_t>(VcmGetCount()));
  VcmGetLoaded(order, keys.data());
  return keys;
}

inline Keys shuffled(Keys keys) {
  constexpr std::uint64_t kSeed = 20'260'101;
  std::shuffle(keys.begin(), keys.end(), std::mt19937_64(kSeed));
  return keys;
}

// What looking every key up took, and the sum of what each lookup gave.
struct Lookups {
  double seconds = 0.0;
  std::uint64_t sum = 0;

  template <class Look>
  void add(std::span<const std::int64_t> keys, Look& look) {
    seconds += secondsOf([&] {
      std::uint64_t found = 0;
      for (const std::int64_t key : keys) {
        found += look(key);
      }
      sum += found;
    });
  }
};

// Looks every key up with both, part by part in turns. False when they do not find the same.
template <class Ours, class Peer>
bool inTurns(const Keys& keys, Ours&& look, Peer&& peerLook, Lookups& ours, Lookups& peer) {
  constexpr std::size_t kParts = 20;
  const std::size_t size = keys.size() / kParts + 1;
  bool oursFirst = true;
  for (std::size_t begin = 0; begin < keys.size(); begin += size) {
    const std::span part(keys.data() + begin, std::min(size, keys.size() - begin));
    if (oursFirst) {
      ours.add(part, look);
      peer.add(part, peerLook);
    } else {
      peer.add(part, peerLook);
      ours.add(part, look);
    }
    oursFirst = !oursFirst;
  }
  return ours.sum == peer.sum;
}

#endif
