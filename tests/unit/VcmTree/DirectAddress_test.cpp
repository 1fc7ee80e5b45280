#include "VCM/VcmTree/DirectAddress.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <memory>
#include <random>

#include "VCM/VcmTree/Keys.h"
#include "support/Messages.h"
#include "support/RandomCount.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"
#include "vcm/Vcm.h"

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

// Every exported function that takes a key, by the name that its message begins with.
char text[VCM_TEXT_LENGTH];
double numbers[VCM_NUM_ARRAY_LENGTH];
std::int32_t integer;
const std::pair<std::string, std::int32_t (*)(std::int64_t)> kExports[] = {
    {"VcmGetLines", [](auto key) { return VcmGetLines(key, text); }},
    {"VcmGetField", [](auto key) { return VcmGetField(key, VCM_FIELD_BTERM, text); }},
    {"VcmSetField", [](auto key) { return VcmSetField(key, VCM_FIELD_BTERM, "1"); }},
    {"GetSatToFields", [](auto key) { return VcmRetrieveAllData(key, text, numbers); }},
    {"VcmUpdateSatFrFields", [](auto key) { return VcmUpdateSatFrFields(key, text, numbers); }},
    {"VcmGetAllFields", [](auto key) {
       char* const t = text;
       double* const n = numbers;
       std::int32_t* const i = &integer;
       return VcmGetAllFields(key, i, t, t, i, n, n, t, i, i, t, t, t, t, t, n, n, n, n, i, i, n, n,
                              i, t, t, t, t, t, t, n, n, n);
     }}};

VcmRecord satellite(std::int32_t satNum) {
  VcmRecord record = satelliteAt(satNum);
  record.extraLines.assign(1, vcm::ExtraLine("MANEUV"));
  return record;
}

constexpr const char* kUnknown = ": Unable to locate satKey # in the VCM binary tree.";

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
  // What the exports say to a key that stands for no message, and that nothing stored has changed.
  void expectRefused(std::int64_t key, const std::string& removeMessage) {
    const std::string before = storeImage();
    for (const auto& [name, call] : kExports) {
      EXPECT_EQ(call(key), 2) << name << " of key " << key;
      EXPECT_EQ(trace_.takeErrors(), Lines{withKey(name + kUnknown, key)});
    }
    EXPECT_EQ(VcmRemoveSat(key), 2) << "key " << key;
    EXPECT_EQ(trace_.takeErrors(), Lines{withKey(removeMessage, key)});
    EXPECT_TRUE(storeImage() == before) << "key " << key;
  }
  void expectAnswers(std::int64_t key, const Answers& answers) {
    EXPECT_EQ(find(key, answers.find, answers.findPointer), vcm::kNoSatellite) << "key " << key;
    EXPECT_EQ(trace_.takeErrors(), Lines{}) << "key " << key;
    EXPECT_EQ(updateStored(key, satellite(1)), 2) << "key " << key;
    EXPECT_EQ(trace_.takeErrors(), Lines{answers.update}) << "key " << key;
    expectRefused(key, answers.remove);
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
  const std::int64_t removed = vcm::AddVcmToMem(satellite(5));
  ASSERT_EQ(removeStored(removed), vcm::kStored);
  std::array<std::int64_t, 6> onStack{};
  const std::int64_t freed = keyAt(std::make_unique<DmaObject>().get());
  DmaObject notOfThePool;
  notOfThePool.self = &notOfThePool;
  notOfThePool.type = vcm::kVcmElsetType;
  // Inside an object, where it looks as if another began.
  DmaObject& object = objectOf(vcm::AddVcmToMem(satellite(5)));
  object.references = {&object.references, reinterpret_cast<void*>(std::intptr_t{5})};
  for (const std::int64_t key : {std::int64_t{0}, std::int64_t{-5}, INT64_MIN}) {
    expectAnswers(key, kInvalid);
  }
  // Dead, never issued, on the stack, freed, and of others.
  for (const std::int64_t key :
       {removed, std::int64_t{10}, std::int64_t{0x7FFFFFFFF000} * 10, INT64_MAX - 1,
        keyAt(onStack.data()), freed, keyAt(&notOfThePool), keyAt(&object.references)}) {
    expectAnswers(key, kDead);
  }
  object.references = {};
}

TEST_F(DirectAddress, RandomKeysAreNeverFollowed) {
  useOrdinaryKeys();
  const std::int64_t ordinary = vcm::AddVcmToMem(satellite(4));
  useDirectAddresses();
  const std::int64_t direct = vcm::AddVcmToMem(satellite(5));
  std::mt19937_64 random(1);  // one seed: a failure comes back
  const auto around = [&random](std::int64_t middle, std::int64_t most) {
    return middle + std::uniform_int_distribution<std::int64_t>(-most, most)(random);
  };
  const int count = randomCount("VCM_RANDOM_KEYS", 30'000);
  for (int i = 0; i < count && !HasFailure(); ++i) {
    const std::int64_t address = direct / 10;
    const std::int64_t keys[] = {static_cast<std::int64_t>(random()), around(address, 4000) * 10,
                                 around(direct, 1000), around(ordinary, 1000)};
    const std::int64_t key = keys[i % 4];
    if (key != direct && key != ordinary) {
      expectRefused(key, key < 1 ? kInvalid.remove
                         : key % 2 == 0
                             ? kDead.remove
                             : "RemoveNode: Unable to locate this key # in its binary tree.");
    }
  }
}

// Whatever an object begins with, it is none where its end cannot be read.
TEST_F(DirectAddress, ObjectsThatCannotBeReadToTheirEnd) {
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  for (const bool unmapped : {false, true}) {
    void* const pages =
        mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(pages, MAP_FAILED);
    char* const end = static_cast<char*>(pages) + page;
    ASSERT_EQ(unmapped ? munmap(end, page) : mprotect(end, page, PROT_NONE), 0);
    for (std::size_t readable = 0; readable <= sizeof(DmaObject); readable += sizeof(void*)) {
      SCOPED_TRACE(readable);
      DmaObject object;
      object.self = reinterpret_cast<DmaObject*>(end - readable);
      object.type = 4;
      std::memcpy(end - readable, &object, readable);
      expectAnswers(keyAt(object.self), readable < sizeof(DmaObject) ? kDead : kOtherType);
    }
    munmap(pages, unmapped ? page : 2 * page);
  }
}

TEST_F(DirectAddress, ObjectsOfOtherTypesAreLeftAlone) {
  DmaObject* pooled = nullptr;
  {
    const vcm::ReadGate::Updating gate(vcm::directAddressGate);
    pooled = vcm::allocateDmaObject();
  }
  pooled->type = 4;
  expectAnswers(vcm::keyOfDma(*pooled), kOtherType);
  EXPECT_TRUE(pooled->self == pooled && pooled->type == 4 && pooled->rec == nullptr);
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
    expectRefused(key, "RemoveNode: Unable to locate this key # in its binary tree.");
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
