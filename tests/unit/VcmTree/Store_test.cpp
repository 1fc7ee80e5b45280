#include "VCM/VcmTree/Store.h"

#include <gtest/gtest.h>

#include <cmath>
#include <new>
#include <vector>

#include "VCM/VcmTree/DirectAddress.h"
#include "VCM/VcmTree/Keys.h"
#include "support/Messages.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"

using vcm::mediaVcm;
using vcm::VcmRecord;

// How often this thread still gets memory where it asks with std::nothrow. What it gets comes from
// the throwing form, so that it is given back to the right heap, be it a sanitizer's.
static thread_local int objectsLeft = INT32_MAX;
static thread_local int arraysLeft = INT32_MAX;

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return objectsLeft-- > 0 ? ::operator new(size) : nullptr;
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return arraysLeft-- > 0 ? ::operator new[](size) : nullptr;
}

namespace {

using ExtraLines = std::vector<vcm::ExtraLine>;
using KeyReplaced = ReplacedHost<&HostReplacements::createsatkey>;

constexpr std::int64_t kKey = 1001;  // what a replaced host makes for every record

class Store : public testing::Test {
 protected:
  void SetUp() override { emptyStore(); }
  void TearDown() override { EXPECT_EQ(emptyStore(), vcm::kStored); }
  TraceCapture trace_;
};

TEST_F(Store, KeepsDeepCopies) {
  VcmRecord given = satelliteAt(5), copy;
  given.extraLines.assign(2, vcm::ExtraLine("MANEUV 1"));
  const std::int64_t key = vcm::AddVcmToMem(given);
  given.extraLines[1].assign("CHANGED");
  for (int time = 0; time < 2; ++time) {
    vcm::VcmFindRec(mediaVcm, key, copy);
    EXPECT_EQ(copy.extraLines, ExtraLines(2, vcm::ExtraLine("MANEUV 1")));
    copy.extraLines[0].assign("CHANGED");
  }
  // An update may change the satellite; its key stays.
  EXPECT_EQ(updateStored(key, given = satelliteAt(6)), vcm::kStored);
  vcm::VcmAttachExtraLines(mediaVcm, key, ExtraLines(3, vcm::ExtraLine("MANEUV 2")));
  vcm::VcmAttachExtraLines(mediaVcm, key + 2, ExtraLines(3));  // no such record: nothing happens
  std::int32_t status = vcm::kNotFound;
  vcm::VcmEmptyTree(mediaVcm, status);  // does nothing when it begins with a failure
  vcm::VcmFindRec(mediaVcm, key, copy);
  EXPECT_TRUE(vcm::equal(copy, given));
  EXPECT_EQ(copy.extraLines, ExtraLines(3, vcm::ExtraLine("MANEUV 2")));
}

TEST_F(Store, SaysThatAKeyIsUnknown) {
  const auto check = [this](std::int64_t key, const std::string& why) {
    VcmRecord record = satelliteAt(1);
    record.extraLines.resize(1);
    vcm::TraceLine messages[2];
    vcm::VcmFindRec(mediaVcm, key, record, &messages[0]);
    EXPECT_TRUE(record.satNum == -123 && record.extraLines.empty()) << record.satNum;
    const VcmRecord* borrowed = &record;
    vcm::VcmFindRecPtr(mediaVcm, key, borrowed, &messages[1]);
    vcm::VcmEndRead();
    EXPECT_EQ(borrowed, nullptr);
    EXPECT_EQ(messages[0].view(), vcm::TraceLine().text("FindRec: " + why).view());
    EXPECT_EQ(messages[1].view(), vcm::TraceLine().text("FindRecPtr: " + why).view());
    EXPECT_EQ(updateStored(key, satelliteAt(1)), 2);
    EXPECT_EQ(trace_.takeErrors(),
              Lines{withKey("UpdateRec: Unable to locate key # in its binary tree.", key)});
  };
  check(41, "Search tree is empty.");
  const std::int64_t key = vcm::AddVcmToMem(satelliteAt(5));
  check(key + 2, "search key doens't exist.");
  // What was not found has left the gate: a writer gets in.
  EXPECT_EQ(removeStored(key), vcm::kStored);
}

TEST_F(Store, RecordsOfOneStateAreDuplicates) {
  const KeyReplaced replaced([](auto...) { return kKey; });
  // clang-format off
  void (*const changes[])(VcmRecord&) = {
      [](auto&) {}, [](auto& r) { r.satNum = 6; }, [](auto& r) { r.epoch.year = 2025; },
      [](auto& r) { r.epoch.dayOfYear = 99; }, [](auto& r) { r.epoch.hour = 11; },
      [](auto& r) { r.epoch.minute = 1; }, [](auto& r) { r.epoch.seconds = 1e-12; },
      [](auto& r) { r.eciPos[2] = 1e-300; }, [](auto& r) { r.eciVel[0] = 1e-300; },
      [](auto& r) { r.bTerm = 1e-300; }, [](auto& r) { r.agom = 1e-300; }};
  // clang-format on
  std::int64_t key = kKey;
  for (const auto change : changes) {
    VcmRecord record = satelliteAt(5);
    change(record);
    EXPECT_EQ(vcm::AddVcmToMem(record), key);
    // Nothing else of a record counts, nor does the sign of a zero.
    record.eciVel[1] = -0.0;
    record.j2kPos[0] = record.efgVel[2] = record.bDot = record.covMtx[0] = record.wtdRms = 1.0;
    record.commonName.assign("OTHER");
    record.extraLines.resize(1);
    EXPECT_EQ(vcm::AddVcmToMem(record), 0) << key;
    key += 2;
  }
  const VcmRecord unlikeItself = satelliteAt(5, std::nan(""));
  EXPECT_EQ(vcm::AddVcmToMem(unlikeItself), key);
  EXPECT_EQ(vcm::AddVcmToMem(unlikeItself), key + 2);
}

TEST_F(Store, IsUnchangedWhenMemoryRunsOut) {
  const auto addFails = [this](int granted, const std::string& message) {
    const std::int32_t before = storedCount();
    objectsLeft = granted;
    EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(5)), vcm::kNoKey);
    objectsLeft = INT32_MAX;
    EXPECT_EQ(storedCount(), before);
    EXPECT_EQ(trace_.takeErrors(), Lines{message});
  };
  const std::string noNode = "AddRecToMem: Unable to allocate memory for key #.";
  const std::string noRecord = "AddRecToMem: Cannot allocate memory for a new rec.";
  addFails(0, withKey(noNode, vcm::createSatKeyFrVcm(satelliteAt(5))));
  useDirectAddresses();
  // Nothing stays stored, so that there is no block of nodes to take one from.
  EXPECT_EQ(removeStored(vcm::AddVcmToMem(satelliteAt(5))), vcm::kStored);
  std::vector<std::int64_t> taken;
  arraysLeft = 0;
  while (vcm::DmaObject* const object = vcm::allocateDmaObject()) {
    object->type = vcm::kVcmElsetType;
    taken.push_back(vcm::keyOfDma(*object));
  }
  addFails(INT32_MAX, "AddRecToMem: Cannot allocate memory for a new dma.");
  arraysLeft = INT32_MAX;
  // One object is free from here on: whatever fails gives it back.
  const std::int64_t last = taken.back();
  taken.pop_back();
  EXPECT_EQ(vcm::RemoveDMA(last), vcm::kStored);
  addFails(0, noRecord);
  addFails(0, noRecord);
  addFails(1, withKey(noNode, last));
  EXPECT_EQ(vcm::AddVcmToMem(satelliteAt(5)), last);
  for (const std::int64_t key : taken) {
    EXPECT_EQ(vcm::RemoveDMA(key), vcm::kStored);
  }
}

}  // namespace
