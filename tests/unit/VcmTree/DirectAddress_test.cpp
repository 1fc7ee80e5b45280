#include "VCM/VcmTree/DirectAddress.h"

#include <gtest/gtest.h>

#include <memory>

#include "VCM/VcmTree/Keys.h"
#include "support/Messages.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"

using vcm::DmaObject;
using vcm::mediaVcm;
using vcm::VcmRecord;

namespace {

static_assert(offsetof(DmaObject, self) == 0 && offsetof(DmaObject, type) == sizeof(void*));

// What the store says to a key, operation by operation.
struct Answers {
  const char *find, *findPointer, *update, *remove;
};
const Answers kInvalid{"FindRec: Invalid DMA key (<=0).", "FindRecPtr: Invalid DMA key (<=0).",
                       "UpdateRec: Invalid DMA key (<=0).", "RemoveNode: Invalid DMA key (<=0)."};
const Answers kDead{"", "FindRecPtr: Invalid DMA key.",
                    "UpdateRec: rec/DMA doesn't exist or was already deallocated",
                    "RemoveDMA: /DMA doesn't exist or was already deallocated"};
const Answers kOtherType{"", kDead.findPointer, kDead.update,
                         "RemoveDMA: This DMA object isn't a correct object."};

VcmRecord satellite(std::int32_t satNum) {
  VcmRecord record = satelliteAt(satNum);
  record.extraLines.assign(1, vcm::ExtraLine("MANEUV"));
  return record;
}

std::int64_t keyAt(const void* address) { return reinterpret_cast<std::int64_t>(address) * 10; }
DmaObject& objectOf(std::int64_t key) { return *static_cast<DmaObject*>(keytocptr(&key)); }

// The number of the satellite found, by copy and through the pointer, with the messages of both.
std::int32_t find(std::int64_t key, const char* findMessage = "", const char* pointerMessage = "") {
  VcmRecord copy;
  vcm::TraceLine message;
  vcm::VcmFindRec(mediaVcm, key, copy, &message);
  EXPECT_EQ(message.view(), vcm::TraceLine().text(findMessage).view()) << "key " << key;
  const vcm::ReadGate::Reading gate(vcm::directAddressGate);
  const VcmRecord* borrowed = &copy;
  vcm::VcmFindRecPtr(mediaVcm, key, borrowed, &message);
  EXPECT_EQ(message.view(), vcm::TraceLine().text(pointerMessage).view()) << "key " << key;
  EXPECT_EQ(borrowed != nullptr ? borrowed->satNum : vcm::kNoSatellite, copy.satNum);
  EXPECT_EQ(copy.extraLineCount(), borrowed != nullptr ? 1 : 0);
  return copy.satNum;
}

class DirectAddress : public testing::Test {
 protected:
  void SetUp() override {
    emptyStore();
    useDirectAddresses();
  }
  void TearDown() override { EXPECT_EQ(emptyStore(), vcm::kStored); }
  void expectAnswers(std::int64_t key, const Answers& answers) {
    EXPECT_EQ(find(key, answers.find, answers.findPointer), vcm::kNoSatellite) << "key " << key;
    EXPECT_EQ(trace_.takeErrors(), Lines{}) << "key " << key;
    EXPECT_EQ(updateStored(key, satellite(1)), 2) << "key " << key;
    EXPECT_EQ(removeStored(key), 2) << "key " << key;
    EXPECT_EQ(trace_.takeErrors(), (Lines{answers.update, answers.remove})) << "key " << key;
  }
  TraceCapture trace_;
};

TEST_F(DirectAddress, IdenticalRecordsLiveApart) {
  const std::int64_t key = vcm::AddVcmToMem(satellite(5));
  const std::int64_t twin = vcm::AddVcmToMem(satellite(5));
  ASSERT_TRUE(key > 0 && twin > 0 && key != twin);
  EXPECT_TRUE(objectOf(key).self == &objectOf(key) && objectOf(key).type == 5);
  EXPECT_EQ(updateStored(twin, satellite(6)), vcm::kStored);
  EXPECT_EQ(find(key), 5);
  EXPECT_EQ(find(twin), 6);
  EXPECT_EQ(removeStored(key), vcm::kStored);
  EXPECT_EQ(trace_.takeErrors(), Lines{});
  EXPECT_EQ(vcm::GetSatKey(6), twin);
  EXPECT_EQ(storedCount(), 1);
}

TEST_F(DirectAddress, GarbageIsNeverFollowed) {
  const std::int64_t good = vcm::AddVcmToMem(satellite(5));
  const std::int64_t removed = vcm::AddVcmToMem(satellite(5));
  ASSERT_EQ(removeStored(removed), vcm::kStored);
  std::array<std::int64_t, 6> onStack{};
  const std::int64_t freed = keyAt(std::make_unique<DmaObject>().get());
  DmaObject notOfThePool;
  notOfThePool.self = &notOfThePool;
  notOfThePool.type = vcm::kVcmElsetType;
  constexpr std::int64_t kUnmapped = 0x7FFFFFFFF000;
  const auto check = [&](std::int64_t key, const Answers& answers) {
    expectAnswers(key, answers);
    EXPECT_TRUE(storedCount() == 1 && find(good) == 5) << key;
  };
  for (const std::int64_t key : {std::int64_t{0}, std::int64_t{-5}, INT64_MIN}) {
    check(key, kInvalid);
  }
  // Dead, no multiple of ten, at an odd address, inside an object, never issued, and of others.
  for (const std::int64_t key :
       {removed, good + 2, good + 10, keyAt(&objectOf(good).type), keyAt(&objectOf(good) + 1000),
        std::int64_t{10}, kUnmapped * 10, INT64_MAX - 1, keyAt(onStack.data()), freed,
        keyAt(&notOfThePool)}) {
    check(key, kDead);
  }
}

TEST_F(DirectAddress, ObjectsOfOtherTypesAreLeftAlone) {
  DmaObject foreign;
  foreign.self = &foreign;
  DmaObject* pooled = nullptr;
  {
    const vcm::ReadGate::Updating gate(vcm::directAddressGate);
    pooled = vcm::allocateDmaObject();
  }
  for (DmaObject* const object : {&foreign, pooled}) {
    object->type = 4;
    expectAnswers(vcm::keyOfDma(*object), kOtherType);
    EXPECT_TRUE(object->self == object && object->type == 4 && object->rec == nullptr);
  }
  pooled->type = vcm::kVcmElsetType;
  EXPECT_EQ(vcm::RemoveDMA(vcm::keyOfDma(*pooled)), vcm::kGood);
}

TEST_F(DirectAddress, AReferencedObjectOutlivesItsRecord) {
  for (const std::size_t reference : {0U, 1U}) {
    const std::int64_t key = vcm::AddVcmToMem(satellite(5));
    objectOf(key).references[reference] = &trace_;
    EXPECT_EQ(removeStored(key), vcm::kStored);
    EXPECT_EQ(storedCount(), 0);
    EXPECT_EQ(find(key, "", "FindRecPtr: Prop data doesn't exist."), vcm::kNoSatellite);
    EXPECT_EQ(updateStored(key, satellite(6)), vcm::kStored);
    EXPECT_EQ(find(key), 6);
    objectOf(key).references[reference] = nullptr;
    EXPECT_EQ(vcm::RemoveDMA(key), vcm::kGood);
    EXPECT_EQ(trace_.takeErrors(), Lines{});
    expectAnswers(key, kDead);
  }
}

// The host's answer changes when direct addresses are switched on: the gate left must be the one
// that was entered, so the question is put once.
TEST_F(DirectAddress, BorrowingAsksOnceWhatKindOfKeyItIs) {
  int asked = 0;
  const ReplacedHost<&HostReplacements::isdma> changing([&](auto...) { return asked++; });
  { const vcm::BorrowedRecord borrowed(mediaVcm, 8); }
  EXPECT_EQ(asked, 1);
}

TEST_F(DirectAddress, NodesOfDeadObjectsAreHarmless) {
  const std::int64_t dead = vcm::AddVcmToMem(satellite(5));
  const std::int64_t alive = vcm::AddVcmToMem(satellite(4));
  EXPECT_EQ(vcm::RemoveDMA(dead), vcm::kGood);
  expectAnswers(dead, kDead);
  EXPECT_EQ(vcm::GetSatKey(5), vcm::kNoKey);
  std::array<std::int64_t, 2> keys{};
  std::int32_t listed = 0;
  vcm::VcmGetTreeKeys(mediaVcm, listed, keys.data(), vcm::kBySatellite);
  EXPECT_EQ(keys, (std::array{dead, alive}));
  trace_.takeErrors();
  emptyStore();
  EXPECT_EQ(trace_.takeErrors(), Lines{kDead.remove});
  EXPECT_EQ(storedCount(), 0);
}

}  // namespace
