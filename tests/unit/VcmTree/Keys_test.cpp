#include "VCM/VcmTree/Keys.h"

#include <gtest/gtest.h>

#include "support/Messages.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"

namespace {

using KeyReplaced = ReplacedHost<&HostReplacements::createsatkey>;

TEST(Keys, EpochTextReachesTheHostLeftAdjustedAndFilledWithZeros) {
  // clang-format off
  const std::pair<std::string, const char*> rows[] = {  // the first two characters stay as they are
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
    std::array<char, vcm::kEpochTextLength> epoch;
    vcm::copyPadded(given, epoch.data(), epoch.size());
    EXPECT_EQ(vcm::FieldsToSatKey(5, epoch), 4711) << given;
    EXPECT_EQ(handed, expected) << given;
  }
}

TEST(Keys, ASatelliteIsFoundAtTheFirstNodeFromTheRoot) {
  // Keys and satellite numbers as they are added, and the key that satellite 7 is found by.
  const std::pair<std::vector<std::pair<std::int64_t, std::int32_t>>, std::int64_t> rows[] = {
      {{{21, 8}}, vcm::kNoKey},
      {{{11, 7}, {21, 7}, {31, 7}}, 21},           // the root, not the smallest
      {{{21, 8}, {11, 7}, {31, 7}, {5, 7}}, 11},   // a node before its smaller keys
      {{{21, 8}, {11, 8}, {31, 7}, {15, 7}}, 15},  // all of the left side before the right
      {{{21, 8}, {11, 8}, {31, 7}}, 31}};
  const TraceCapture trace;
  for (const auto& [added, expected] : rows) {
    emptyStore();
    for (const auto& [key, satNum] : added) {
      const KeyReplaced replaced([k = key](auto...) { return k; });
      ASSERT_EQ(vcm::AddVcmToMem(satelliteAt(satNum)), key);
    }
    EXPECT_EQ(vcm::GetSatKey(7), expected);
  }
  emptyStore();
}

}  // namespace
