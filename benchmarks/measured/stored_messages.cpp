// Reads fields and lists keys of what is stored, ours and a std::map's in turns; and reads fields with
// one thread and with two.
// usage: stored_messages INPUT ROUNDS
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>
#include <thread>

#include "MappedRecords.h"

namespace {

constexpr std::size_t kTextLength = VCM_FIELD_VALUE_LENGTH;
using Text = std::array<char, kTextLength>;

// A field that is read, and how the map's record is written as the same text.
struct FieldRead {
  const char* name;
  const char* peerName;
  std::int32_t index;
  const char* format;
  double (*value)(const vcm::VcmRecord& record);
};

constexpr std::array<FieldRead, 2> kFields = {{
    {"eciPosX", "map-eciPosX", VCM_FIELD_ECIPOSX, "%.15f",
     [](const vcm::VcmRecord& record) { return record.eciPos[0]; }},
    {"bDot", "map-bDot", VCM_FIELD_BDOT, "%.16E",
     [](const vcm::VcmRecord& record) { return record.bDot; }},
}};

// Enough of the text to show that it was written.
std::uint64_t beginningOf(const Text& text) {
  std::uint64_t beginning = 0;
  std::memcpy(&beginning, text.data(), sizeof beginning);
  return beginning;
}

void write(const MappedRecords& map, const FieldRead& field, std::int64_t key, Text& text) {
  std::snprintf(text.data(), text.size(), field.format,  // NOLINT: the formats stand above
                field.value(map.find(key)));
}

std::uint64_t readField(std::int64_t key, std::int32_t index) {
  Text text;
  VcmGetField(key, index, text.data());
  return beginningOf(text);
}

// The whole texts: the same digits, whatever the width of the exponent.
bool sameTexts(const MappedRecords& map, const FieldRead& field, const Keys& keys) {
  Text ours;
  Text peer;
  for (const std::int64_t key : keys) {
    VcmGetField(key, field.index, ours.data());
    write(map, field, key, peer);
    const std::string_view text(ours.data(), ours.size());
    if (std::strtod(std::string(text.substr(0, text.find(' '))).c_str(), nullptr) !=
            std::strtod(peer.data(), nullptr) ||
        beginningOf(ours) != beginningOf(peer)) {
      return false;
    }
  }
  return true;
}

bool readFields(const MappedRecords& map, const Keys& keys, bool warmUp) {
  for (const FieldRead& field : kFields) {
    Lookups ours;
    Lookups peer;
    if (!inTurns(
            keys, [&field](std::int64_t key) { return readField(key, field.index); },
            [&](std::int64_t key) {
              Text text;
              write(map, field, key, text);
              return beginningOf(text);
            },
            ours, peer)) {
      return false;
    }
    if (!warmUp) {
      report(field.name, ours.seconds);
      report(field.peerName, peer.seconds);
    }
  }
  return true;
}

bool list(MappedRecords& map, std::size_t count, bool warmUp) {
  struct Order {
    std::int32_t order;
    const char* name;
    const char* peerName;
  };
  constexpr std::array<Order, 3> kOrders = {{
      {VCM_ORDER_SATELLITE, "list-satellite", "map-list-satellite"},
      {VCM_ORDER_SATELLITE_REVERSE, "list-reverse", "map-list-reverse"},
      {VCM_ORDER_LOADED, "list-loaded", "map-list-loaded"},
  }};
  Keys ours(count);
  Keys peer(count);
  for (const Order& order : kOrders) {
    const double seconds = secondsOf([&] { VcmGetLoaded(order.order, ours.data()); });
    const double peerSeconds = secondsOf([&] { map.list(order.order, peer); });
    if (ours != peer) {
      return false;
    }
    if (!warmUp) {
      report(order.name, seconds);
      report(order.peerName, peerSeconds);
    }
  }
  return true;
}

std::uint64_t readAll(const Keys& keys) {
  std::uint64_t sum = 0;
  for (const std::int64_t key : keys) {
    sum += readField(key, VCM_FIELD_ECIPOSX);
  }
  return sum;
}

// Seconds per field, in all: each of the two threads reads every key, in an order of its own.
bool readWithThreads(const Keys& keys, bool warmUp) {
  const Keys otherOrder(keys.rbegin(), keys.rend());
  const auto count = static_cast<double>(keys.size());
  std::uint64_t one = 0;
  std::uint64_t first = 0;
  std::uint64_t second = 0;
  const double alone = secondsOf([&] { one = readAll(keys); });
  const double together = secondsOf([&] {
    std::thread other([&] { second = readAll(otherOrder); });
    first = readAll(keys);
    other.join();
  });
  if (!warmUp) {
    report("one-thread", alone / count);
    report("two-threads", together / (2.0 * count));
  }
  return first == one && second == one;
}

int fail(const char* what) {
  std::cerr << "stored_messages: " << what << " differ\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: stored_messages INPUT ROUNDS\n";
    return 2;
  }
  VcmInit();
  VcmLoadFile(argv[1]);
  const Keys loaded = loadedKeys(VCM_ORDER_LOADED);
  MappedRecords map(loaded);
  const Keys keys = shuffled(loaded);
  for (const FieldRead& field : kFields) {
    if (!sameTexts(map, field, keys)) {
      return fail(field.name);
    }
  }
  const int rounds = std::atoi(argv[2]);
  // The first round warms up.
  for (int round = -1; round < rounds; ++round) {
    const bool warmUp = round < 0;
    if (!readFields(map, keys, warmUp)) {
      return fail("fields");
    }
    if (!list(map, keys.size(), warmUp)) {
      return fail("listings");
    }
    if (!readWithThreads(keys, warmUp)) {
      return fail("fields of two threads");
    }
  }
  reportCheck("messages", static_cast<double>(keys.size()));
  return 0;
}
