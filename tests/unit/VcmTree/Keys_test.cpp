#include "VCM/VcmTree/Keys.h"

#include <gtest/gtest.h>

#include "support/Messages.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"

using vcm::VcmRecord;

namespace {

using KeyReplaced = ReplacedHost<&HostReplacements::createsatkey>;

std::int64_t keyOf(std::int32_t satNum, std::string epoch) {
  epoch.resize(vcm::kEpochTextLength, ' ');
  return vcm::FieldsToSatKey(
      satNum, std::span<const char, vcm::kEpochTextLength>(epoch.data(), vcm::kEpochTextLength));
}

VcmRecord recordAt(std::int32_t satNum, const vcm::InputDate& epoch) {
  VcmRecord record;
  record.satNum = satNum;
  record.epoch = epoch;
  return record;
}

TEST(Keys, GrowWithSatelliteThenEpochAndAgreeWithTheTextForms) {
  const std::pair<VcmRecord, const char*> rows[] = {
      {recordAt(4, {2056, 366, 23, 59, 59.999}), "2056366235959.999"},
      {recordAt(5, {1957, 1, 0, 0, 0.0}), "57001."},
      {recordAt(5, {2024, 100, 12, 0, 0.0}), "24100.5"},
      {recordAt(5, {2024, 100, 12, 0, 0.25}), "2024100120000.25"},
      {recordAt(6, {1957, 1, 0, 0, 0.0}), "57001.0"}};
  std::int64_t last = 0;
  for (const auto& [record, text] : rows) {
    const std::int64_t key = vcm::createSatKeyFrVcm(record);
    EXPECT_GT(key, last) << text;
    EXPECT_EQ(keyOf(record.satNum, text), key) << text;
    last = key;
  }
  EXPECT_EQ(vcm::createSatKeyFrVcm(satelliteAt(-1)), vcm::kNoKey);
  for (const char* const unreadable : {"", "24100", "24367.5", "x4100.5", "2024100250000.0"}) {
    EXPECT_EQ(keyOf(5, unreadable), vcm::kNoKey) << unreadable;
  }
}

TEST(Keys, EpochTextReachesTheHostLeftAdjustedAndFilledWithZeros) {
  // clang-format off
  const std::pair<const char*, const char*> rows[] = {  // the first two characters stay as they are
      {"      24100.5", "24100.50000000000000"}, {"24  1.5", "24001.50000000000000"}, {"", "  000000000000000000"},
      {" 2024 99 1 2 3. 5", "2024099010203.050000"}, {"4 100.5", "4 100.50000000000000"}};
  // clang-format on
  for (const auto& [given, expected] : rows) {
    std::string handed;
    const KeyReplaced replaced(
        [&](auto satNum, auto type, const char* text, auto days) -> std::int64_t {
          handed.assign(text, vcm::kEpochTextLength);
          return *satNum == 5 && *type == 5 && days == nullptr ? 4711 : -2;
        });
    EXPECT_EQ(keyOf(5, given), 4711) << given;
    EXPECT_EQ(handed, expected) << given;
  }
}

TEST(Keys, ASatelliteIsFoundAtTheFirstNodeFromTheRoot) {
  // Keys and satellite numbers as they are added, and the key that satellite 7 is found by.
  const std::pair<std::vector<std::pair<std::int64_t, std::int32_t>>, std::int64_t> rows[] = {
      {{}, vcm::kNoKey},
      {{{21, 8}}, vcm::kNoKey},
      {{{11, 7}, {21, 7}, {31, 7}}, 21},           // the root, not the smallest
      {{{21, 8}, {11, 7}, {31, 7}, {5, 7}}, 11},   // a node before its smaller keys
      {{{21, 8}, {11, 8}, {31, 7}, {15, 7}}, 15},  // all of the left side before the right
      {{{21, 8}, {11, 8}, {31, 7}}, 31}};
  TraceCapture trace;
  for (const auto& [added, expected] : rows) {
    emptyStore();
    for (const auto& [key, satNum] : added) {
      const KeyReplaced replaced([k = key](auto...) { return k; });
      ASSERT_EQ(vcm::AddVcmToMem(satelliteAt(satNum)), key);
    }
    EXPECT_EQ(vcm::GetSatKey(7), expected);
    EXPECT_EQ(trace.takeErrors(), Lines(expected == vcm::kNoKey ? 1U : 0U,
                                        "GetSatKey: Unable to locate satellite number         7 "
                                        "in the VCM binary tree."));
  }
  emptyStore();
}

}  // namespace
