#include "VCM/VcmTree/Keys.h"

#include <gtest/gtest.h>

#include "support/Messages.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"
#include "vcm/Vcm.h"

namespace {

using KeyReplaced = ReplacedHost<&HostReplacements::createsatkey>;

TEST(Keys, BlanksInAnEpochTextAreZeros) {
  for (const auto& [given, same] : {std::pair("      24100.5", "24100.50000000000000"),
                                    {"24  1.5", "24001.5"},
                                    {" 2024 99 1 2 3. 5", "2024099010203.05"},
                                    {"4 100.5", "04100.5"}}) {  // but for the first two characters
    EXPECT_EQ(VcmFieldsToSatKey(5, given), VcmFieldsToSatKey(5, same)) << given;
    EXPECT_GT(VcmFieldsToSatKey(5, given), 0) << given;
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
