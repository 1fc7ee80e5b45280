#include "VCM/VcmTree/Store.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "VCM/VcmTree/Keys.h"
#include "support/AllocationFailure.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"

using vcm::mediaVcm;
using vcm::VcmRecord;

namespace {

using Messages = std::vector<std::string>;
using ExtraLines = std::vector<vcm::ExtraLine>;

constexpr std::int64_t kKey = 1001;  // what a replaced host makes for every record

// A text, a key in 19 columns, a text.
std::string withKey(const std::string& before, std::int64_t key, const std::string& after) {
  const std::string digits = std::to_string(key);
  return before + std::string(19 - digits.size(), ' ') + digits + after;
}

std::string duplicateOf(std::int64_t key) {
  return withKey("AddRecToMem: Duplicated record/key ", key, " found.");
}

class Store : public testing::Test {
 protected:
  void SetUp() override { emptyStore(); }
  void TearDown() override {
    EXPECT_EQ(emptyStore(), vcm::kStored);
    EXPECT_EQ(mediaVcm.root, nullptr);
  }
  TraceCapture trace_;
};

TEST_F(Store, KeepsDeepCopies) {
  VcmRecord given = satelliteAt(5);
  given.extraLines.assign(2, vcm::ExtraLine("MANEUV 1"));
  const std::int64_t key = vcm::AddVcmToMem(given);
  given.extraLines[1].assign("CHANGED");
  VcmRecord copy = satelliteAt(1);
  for (int time = 0; time < 2; ++time) {
    vcm::TraceLine message = vcm::TraceLine().text("OLD");
    vcm::VcmFindRec(mediaVcm, key, copy, &message);
    EXPECT_EQ(message.view(), vcm::TraceLine().view());
    EXPECT_EQ(copy.extraLines, ExtraLines(2, vcm::ExtraLine("MANEUV 1")));
    copy.extraLines[0].assign("CHANGED");
  }
  // An update may change the satellite; its key and its number in the order of loading stay.
  const std::int32_t seqNum = mediaVcm.root->seqNum;
  EXPECT_EQ(updateStored(key, given = satelliteAt(6)), vcm::kStored);
  EXPECT_EQ(mediaVcm.root->seqNum, seqNum);
  vcm::VcmAttachExtraLines(mediaVcm, key, ExtraLines(3, vcm::ExtraLine("MANEUV 2")));
  vcm::VcmAttachExtraLines(mediaVcm, key + 2, ExtraLines(3));  // no such record: nothing happens
  const VcmRecord* borrowed = nullptr;
  vcm::VcmFindRecPtr(mediaVcm, key, borrowed);
  ASSERT_NE(borrowed, nullptr);
  EXPECT_TRUE(borrowed != &given && vcm::equal(*borrowed, given));
  EXPECT_EQ(borrowed->extraLines, ExtraLines(3, vcm::ExtraLine("MANEUV 2")));
  vcm::VcmEndRead();
  EXPECT_EQ(removeStored(key), vcm::kStored);
  EXPECT_EQ(storedCount(), 0);
  EXPECT_EQ(trace_.takeErrors(), Messages{});
}

TEST_F(Store, SaysThatAKeyIsUnknown) {
  const auto check = [this](std::int64_t key, const std::string& why) {
    VcmRecord record = satelliteAt(1);
    record.extraLines.resize(1);
    vcm::TraceLine message;
    vcm::VcmFindRec(mediaVcm, key, record, &message);
    EXPECT_TRUE(record.satNum == -123 && record.extraLines.empty()) << record.satNum;
    EXPECT_EQ(message.view(), vcm::TraceLine().text("FindRec: " + why).view());
    const VcmRecord* borrowed = &record;
    vcm::VcmFindRecPtr(mediaVcm, key, borrowed, &message);
    vcm::VcmEndRead();
    EXPECT_EQ(borrowed, nullptr);
    EXPECT_EQ(message.view(), vcm::TraceLine().text("FindRecPtr: " + why).view());
    EXPECT_EQ(trace_.takeErrors(), Messages{});
    EXPECT_EQ(updateStored(key, satelliteAt(1)), 2);
    EXPECT_EQ(removeStored(key), 2);
    const Messages errors = {
        withKey("UpdateRec: Unable to locate key ", key, " in its binary tree."),
        withKey("RemoveNode: Unable to locate this key ", key, " in its binary tree.")};
    EXPECT_EQ(trace_.takeErrors(), errors);
  };
  check(41, "Search tree is empty.");
  const std::int64_t key = vcm::AddVcmToMem(satelliteAt(5));
  for (const std::int64_t unknown : {std::int64_t{1}, key - 2, key + 2, INT64_MAX}) {
    check(unknown, "search key doens't exist.");
  }
  // What was not found has left the gate: a writer gets in.
  EXPECT_EQ(removeStored(key), vcm::kStored);
}

TEST_F(Store, RefusesWhatIsInvalidOrHasNoKey) {
  EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(-1)), vcm::kNoKey);
  EXPECT_EQ(trace_.takeErrors().size(), 1U);
  const ReplacedHost<&HostReplacements::createsatkey> replaced([](auto...) { return -1; });
  EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(5)), vcm::kNoKey);
  EXPECT_EQ(trace_.takeErrors(), Messages{"AddRecToMem: Unable to make a key for satellite number "
                                          "        5 and its epoch."});
  EXPECT_EQ(storedCount(), 0);
}

TEST_F(Store, RecordsOfOneStateAreDuplicates) {
  const ReplacedHost<&HostReplacements::createsatkey> replaced([](auto...) { return kKey; });
  std::vector<VcmRecord> others(11, satelliteAt(5));
  others[1].satNum = 6;
  others[2].epoch.year = 2025;
  others[3].epoch.dayOfYear = 99;
  others[4].epoch.hour = 11;
  others[5].epoch.minute = 1;
  others[6].epoch.seconds = 1e-12;
  others[7].eciPos[2] = 1e-300;
  others[8].eciVel[0] = 1e-300;
  others[9].bTerm = 1e-300;
  others[10].agom = 1e-300;
  std::int64_t key = kKey;
  for (VcmRecord& record : others) {
    EXPECT_EQ(vcm::AddVcmToMem(record), key);
    // Nothing else of a record counts, nor does the sign of a zero.
    record.eciVel[1] = -0.0;
    record.j2kPos[0] = record.efgVel[2] = record.bDot = record.covMtx[0] = record.wtdRms = 1.0;
    record.commonName.assign("OTHER");
    record.extraLines.resize(1);
    EXPECT_EQ(vcm::AddVcmToMem(record), 0) << key;
    EXPECT_EQ(trace_.takeErrors(), Messages{duplicateOf(key)});
    key += 2;
  }
  VcmRecord unlikeItself = satelliteAt(5, std::nan(""));
  EXPECT_EQ(vcm::AddVcmToMem(unlikeItself), key);
  EXPECT_EQ(vcm::AddVcmToMem(unlikeItself), key + 2);
}

TEST_F(Store, OneKeyServesNinetyNineRecords) {
  constexpr std::int64_t kStep = 1000;
  std::int64_t first = kKey;
  const ReplacedHost<&HostReplacements::createsatkey> key([&first](auto...) { return first; });
  const ReplacedHost<&HostReplacements::nextsatkey> next([](auto last) { return *last + kStep; });
  for (int i = 0; i < 99; ++i) {
    ASSERT_EQ(vcm::AddVcmToMem(satelliteAt(5, i)), kKey + i * kStep);
  }
  // The hundredth key is tried, but nothing is kept there.
  constexpr std::int64_t kLast = kKey + 99 * kStep;
  EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(6)), 0);
  EXPECT_EQ(trace_.takeErrors(), Messages{duplicateOf(kLast)});
  EXPECT_EQ(storedCount(), 99);
  // Where another record has the hundredth, the key moves on once more.
  first = kLast;
  EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(6)), kLast);
  first = kKey;
  EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(6)), 0);
  EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(7)), 0);
  EXPECT_EQ(trace_.takeErrors(), (Messages{duplicateOf(kLast), duplicateOf(kLast + kStep)}));
  EXPECT_EQ(storedCount(), 100);
}

TEST_F(Store, SequenceNumbersOnlyGrow) {
  vcm::AddVcmToMem(satelliteAt(1));
  const std::int32_t last = mediaVcm.root->seqNum;
  emptyStore();
  // Neither emptying nor a duplicate nor the search for a free key uses up a number.
  for (const auto& record :
       {satelliteAt(2), satelliteAt(2), satelliteAt(2, 1.0), satelliteAt(2, 2.0)}) {
    vcm::AddVcmToMem(record);
  }
  std::vector<std::int32_t> numbers;
  vcm::StoreTree::walkUp(mediaVcm.root, [&](auto& node) { numbers.push_back(node.seqNum); });
  EXPECT_EQ(numbers, (std::vector<std::int32_t>{last + 1, last + 2, last + 3}));
  // Emptying that begins with a failure does nothing.
  std::int32_t status = vcm::kNotFound;
  vcm::VcmEmptyTree(mediaVcm, status);
  EXPECT_TRUE(status == vcm::kNotFound && storedCount() == 3);
}

TEST_F(Store, IsUnchangedWhenMemoryRunsOut) {
  const auto addFails = [this](int granted) {
    const std::int32_t before = storedCount();
    const AllocationFailure failure(AllocationFailure::ofObjects, granted);
    EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(5)), vcm::kNoKey);
    EXPECT_EQ(storedCount(), before);
    const Messages errors = trace_.takeErrors();
    return errors.size() == 1 ? errors[0] : testing::PrintToString(errors);
  };
  const std::string noNode = "AddRecToMem: Unable to allocate memory for key ";
  EXPECT_EQ(addFails(0), withKey(noNode, vcm::createSatKeyFrVcm(satelliteAt(5)), "."));
  useDirectAddresses();
  std::int64_t last = vcm::AddVcmToMem(satelliteAt(5));
  const AllocationFailure noMoreObjects(AllocationFailure::ofArrays);
  for (std::int64_t key = last; key != vcm::kNoKey; key = vcm::AddVcmToMem(satelliteAt(5))) {
    last = key;
  }
  EXPECT_EQ(trace_.takeErrors(), Messages{"AddRecToMem: Cannot allocate memory for a new dma."});
  // One object is free from here on: whatever fails gives it back.
  EXPECT_EQ(removeStored(last), vcm::kStored);
  EXPECT_EQ(addFails(0), "AddRecToMem: Cannot allocate memory for a new rec.");
  EXPECT_EQ(addFails(0), "AddRecToMem: Cannot allocate memory for a new rec.");
  EXPECT_EQ(addFails(1), withKey(noNode, last, "."));
  EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(5)), last);
}

}  // namespace
