#include "VCM/VcmTree/Store.h"

#include <memory>
#include <new>

#include "Host/HostCore.h"
#include "VCM/VcmTree/DirectAddress.h"
#include "VCM/VcmTree/Keys.h"
#include "VCM/VcmTree/ReadGate.h"
#include "VCM/VcmTree/Validation.h"

namespace vcm {

VcmMedia mediaVcm;

namespace {

// Guards mediaVcm and any other store: there is one gate for all.
constinit ReadGate storeGate;

// Given out when a node is linked, under the gate; never reused, never reset.
std::int32_t seqNum = 0;

void say(TraceLine* message, std::string_view text) {
  if (message != nullptr) {
    *message = TraceLine().text(text);
  }
}

// The record that the node with an ordinary key owns, null when there is none. The caller holds the gate.
VcmRecord* ownedRecord(const VcmMedia& media, std::int64_t satKey) {
  const VcmBinTree* const node = StoreTree::find(media.root, satKey);
  return node == nullptr ? nullptr : node->rec;
}

// Nodes of direct addresses own no record and equal no node that does.
bool sameRecord(const VcmBinTree& a, const VcmBinTree& b) {
  return a.rec == b.rec || (a.rec != nullptr && b.rec != nullptr && equal(*a.rec, *b.rec));
}

// The key of a record's satellite number and epoch; a line in the error trace when there is none.
std::int64_t makeKey(const VcmRecord& record) {
  const std::int64_t satKey = createSatKeyFrVcm(record);
  if (satKey == kNoKey) {
    constexpr int kNumberColumns = 9;
    TraceLine()
        .text("AddRecToMem: Unable to make a key for satellite number ")
        .number(record.satNum, kNumberColumns)
        .text(" and its epoch.")
        .error();
  }
  return satKey;
}

struct NodeRelease {
  void operator()(VcmBinTree* node) const { freeVcmBinTree(node); }
};
using OwnedNode = std::unique_ptr<VcmBinTree, NodeRelease>;

}  // namespace

void StorePolicy::linked(VcmBinTree& node) {
  seqNum += seqNum < INT32_MAX ? 1 : 0;
  node.seqNum = seqNum;
}

void StorePolicy::release(VcmBinTree* node) {
  if (isDirectAddress(node->satKey)) {
    RemoveDMA(node->satKey);
  }
  freeVcmBinTree(node);
}

// ---- adding -------------------------------------------------------------------------------------

std::int64_t AddVcmToMem(const VcmRecord& record) {
  if (ValidateVcmValues(record) != kGood) {
    return kNoKey;
  }
  const bool direct = usesDirectAddresses();
  const std::int64_t satKey = direct ? AddDMA(record) : makeKey(record);
  if (satKey == kNoKey) {
    return kNoKey;
  }
  OwnedNode node(new (std::nothrow) VcmBinTree);
  if (node == nullptr) {
    TraceLine()
        .text("AddRecToMem: Unable to allocate memory for key ")
        .key(satKey)
        .text(".")
        .error();
    if (direct) {
      RemoveDMA(satKey);
    }
    return kNoKey;
  }
  node->satKey = satKey;
  node->rec = direct ? nullptr : new VcmRecord(record);
  std::int32_t status = kStored;
  const std::int64_t usedKey = VcmAddNode(mediaVcm, *node, status);
  if (status == kDuplicate) {
    TraceLine().text("AddRecToMem: Duplicated record/key ").key(usedKey).text(" found.").error();
    return kDuplicateKey;
  }
  static_cast<void>(node.release());  // the tree's now: another thread may have removed it already
  return usedKey;
}

std::int64_t VcmAddNode(VcmMedia& media, VcmBinTree& node, std::int32_t& status) {
  // A deliberate cap. The last try looks but does not link: what is reported as a duplicate is not
  // kept.
  constexpr int kLastTry = 100;
  const ReadGate::Updating gate(storeGate);
  status = kDuplicate;
  for (int tries = 1; tries < kLastTry; ++tries) {
    const VcmBinTree* const twin = StoreTree::add(media.root, &node);
    if (twin == nullptr) {
      status = kStored;
      return node.satKey;
    }
    if (sameRecord(*twin, node)) {
      return node.satKey;
    }
    node.satKey = nextsatkey(&node.satKey);
  }
  const VcmBinTree* const twin = StoreTree::find(media.root, node.satKey);
  if (twin != nullptr && !sameRecord(*twin, node)) {
    node.satKey = nextsatkey(&node.satKey);
  }
  return node.satKey;
}

// ---- finding ------------------------------------------------------------------------------------

void VcmFindRec(const VcmMedia& media, std::int64_t satKey, VcmRecord& record, TraceLine* message) {
  freeVcmRecord(record);
  record.satNum = kNoSatellite;
  say(message, "");
  if (isDirectAddress(satKey)) {
    if (copyDmaRecord(satKey, record) == DmaState::invalidKey) {
      say(message, "FindRec: Invalid DMA key (<=0).");
    }
    return;
  }
  const ReadGate::Reading gate(storeGate);
  if (media.root == nullptr) {
    say(message, "FindRec: Search tree is empty.");
  } else if (const VcmRecord* const stored = ownedRecord(media, satKey)) {
    record = *stored;
  } else {
    say(message, "FindRec: search key doens't exist.");
  }
}

namespace {

// Looks a direct address up; the caller holds directAddressGate.
const VcmRecord* findDirect(std::int64_t satKey, TraceLine* message) {
  DmaObject* object = nullptr;
  switch (resolveDma(satKey, object)) {
    case DmaState::invalidKey:
      say(message, "FindRecPtr: Invalid DMA key (<=0).");
      return nullptr;
    case DmaState::dead:
    case DmaState::otherType:
      say(message, "FindRecPtr: Invalid DMA key.");
      return nullptr;
    case DmaState::noRecord:
      say(message, "FindRecPtr: Prop data doesn't exist.");
      return nullptr;
    case DmaState::alive:
      break;
  }
  return object->rec;
}

// Looks an ordinary key up; the caller is inside the store's gate.
const VcmRecord* findInTree(const VcmMedia& media, std::int64_t satKey, TraceLine* message) {
  if (const VcmRecord* const record = ownedRecord(media, satKey)) {
    return record;
  }
  say(message, media.root == nullptr ? "FindRecPtr: Search tree is empty."
                                     : "FindRecPtr: search key doens't exist.");
  return nullptr;
}

}  // namespace

void VcmFindRecPtr(const VcmMedia& media, std::int64_t satKey, const VcmRecord*& record,
                   TraceLine* message) {
  say(message, "");
  if (isDirectAddress(satKey)) {
    record = findDirect(satKey, message);
  } else {
    VcmBeginRead();
    record = findInTree(media, satKey, message);
  }
}

VcmRecord* recordOf(const VcmBinTree& node) {
  if (node.rec != nullptr) {
    return node.rec;
  }
  DmaObject* object = nullptr;
  return resolveDma(node.satKey, object) == DmaState::alive ? object->rec : nullptr;
}

// ---- changing -----------------------------------------------------------------------------------

void VcmUpdateRec(VcmMedia& media, std::int64_t satKey, const VcmRecord& record,
                  std::int32_t& status) {
  status = kStored;
  if (isDirectAddress(satKey)) {
    const DmaState state = replaceDmaRecord(satKey, record);
    if (state == DmaState::alive || state == DmaState::noRecord) {
      return;
    }
    status = kNotFound;
    logError(state == DmaState::invalidKey
                 ? "UpdateRec: Invalid DMA key (<=0)."
                 : "UpdateRec: rec/DMA doesn't exist or was already deallocated");
    return;
  }
  const ReadGate::Updating gate(storeGate);
  if (VcmRecord* const stored = ownedRecord(media, satKey)) {
    *stored = record;
    return;
  }
  status = kNotFound;
  TraceLine()
      .text("UpdateRec: Unable to locate key ")
      .key(satKey)
      .text(" in its binary tree.")
      .error();
}

void VcmAttachExtraLines(VcmMedia& media, std::int64_t satKey, std::span<const ExtraLine> lines) {
  const ReadGate::Updating gate(storeGate);
  const ReadGate::Updating objects(directAddressGate);
  if (const VcmBinTree* const node = StoreTree::find(media.root, satKey)) {
    if (VcmRecord* const record = recordOf(*node)) {
      record->extraLines.assign(lines.begin(), lines.end());
    }
  }
}

void VcmRemoveNode(VcmMedia& media, std::int64_t satKey, std::int32_t& status) {
  status = kStored;
  const bool direct = isDirectAddress(satKey);
  if (direct && satKey < 1) {
    status = kNotFound;
    logError("RemoveNode: Invalid DMA key (<=0).");
    return;
  }
  // Object and node go within one update, so that the address cannot come back in between.
  const ReadGate::Updating gate(storeGate);
  if (direct) {
    status = RemoveDMA(satKey);
    if (status != kStored) {
      return;
    }
  }
  const OwnedNode node(StoreTree::remove(media.root, satKey));
  if (node == nullptr) {
    status = kNotFound;
    TraceLine()
        .text("RemoveNode: Unable to locate this key ")
        .key(satKey)
        .text(" in its binary tree.")
        .error();
  }
}

void VcmEmptyTree(VcmMedia& media, std::int32_t& status) {
  if (status != kStored) {
    return;
  }
  const ReadGate::Updating gate(storeGate);
  StoreTree::emptyTreeRecursive(media.root);
}

// ---- the gate -----------------------------------------------------------------------------------

void VcmBeginRead() { storeGate.lock_shared(); }
void VcmEndRead() { storeGate.unlock_shared(); }

StoreReading::StoreReading() {
  VcmBeginRead();
  directAddressGate.lock_shared();
}

StoreReading::~StoreReading() {
  directAddressGate.unlock_shared();
  VcmEndRead();
}

// Asks only once what kind of key it is: the host's answer changes when direct addresses are switched
// on, and the gate that was entered is the one to leave.
BorrowedRecord::BorrowedRecord(const VcmMedia& media, std::int64_t satKey)
    : direct_(isDirectAddress(satKey)) {
  if (direct_) {
    directAddressGate.lock_shared();
    record_ = findDirect(satKey, nullptr);
  } else {
    VcmBeginRead();
    record_ = findInTree(media, satKey, nullptr);
  }
  if (record_ == nullptr) {
    giveBack();
  }
}

BorrowedRecord::~BorrowedRecord() {
  if (record_ != nullptr) {
    giveBack();
  }
}

void BorrowedRecord::giveBack() const {
  if (direct_) {
    directAddressGate.unlock_shared();
  } else {
    VcmEndRead();
  }
}

}  // namespace vcm
