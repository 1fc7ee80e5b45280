// The store: every loaded record, in one tree ordered by satKey.
//
// The store owns its nodes and records; a record goes in and comes out as a deep copy. All
// operations may be called from any thread: those that change the tree hold the store's gate for
// updating, those that read it hold it for reading. Messages go to the host's error trace.
#ifndef VCM_VCMTREE_STORE_H
#define VCM_VCMTREE_STORE_H

#include <cstdint>
#include <span>

#include "Host/TraceLine.h"
#include "Templates/TreeTemplate.h"
#include "VCM/VcmTypes/VcmBinTree.h"

namespace vcm {

// Result codes of store operations.
inline constexpr std::int32_t kStored = 0;
inline constexpr std::int32_t kNotFound = 2;
inline constexpr std::int32_t kDuplicate = 3;     // inside an insertion only
inline constexpr std::int64_t kDuplicateKey = 0;  // what AddVcmToMem returns for one

// satNum of a record that VcmFindRec did not find.
inline constexpr std::int32_t kNoSatellite = -123;

// The process-wide store.
extern VcmMedia mediaVcm;

// What the tree does with the store's nodes.
struct StorePolicy {
  static void linked(VcmBinTree& node);
  static void release(VcmBinTree* node);
};
using StoreTree = TreeTemplate<VcmBinTree, StorePolicy>;

// Validates a record, makes its key and inserts a deep copy into mediaVcm. Returns the key, which
// is the next free one when another record has the first; kDuplicateKey when an identical record is
// stored already; kNoKey when it is invalid, has no key or finds no memory.
std::int64_t AddVcmToMem(const VcmRecord& record);

// Links a prepared node, whose key may move on to the next free one, and returns the key last
// tried. Status kStored or kDuplicate; with kDuplicate the node is not linked. A record that finds
// no key in 99 tries counts as a duplicate.
std::int64_t VcmAddNode(VcmMedia& media, VcmBinTree& node, std::int32_t& status);

// Copies a stored record. Not found: satNum is kNoSatellite and the optional message says why.
void VcmFindRec(const VcmMedia& media, std::int64_t satKey, VcmRecord& record,
                TraceLine* message = nullptr);

// Borrows a stored record, null when there is none. For an ordinary key this enters the store's
// gate and stays inside, also when nothing was found: the caller ends with VcmEndRead. For a direct
// address no gate is held and the record is safe only while directAddressGate is: see
// BorrowedRecord.
void VcmFindRecPtr(const VcmMedia& media, std::int64_t satKey, const VcmRecord*& record,
                   TraceLine* message = nullptr);

// Replaces a stored record by a deep copy. Status kStored or kNotFound.
void VcmUpdateRec(VcmMedia& media, std::int64_t satKey, const VcmRecord& record,
                  std::int32_t& status);

// Gives a stored record the maneuver cards that followed it; a record removed meanwhile loses them.
void VcmAttachExtraLines(VcmMedia& media, std::int64_t satKey, std::span<const ExtraLine> lines);

// Removes one satellite. Status kStored or kNotFound.
void VcmRemoveNode(VcmMedia& media, std::int64_t satKey, std::int32_t& status);

// Removes everything. The status must be 0 on entry and stays 0: what RemoveDMA reports is only
// logged, deliberately.
void VcmEmptyTree(VcmMedia& media, std::int32_t& status);

// Enter and leave the store's gate as a reader.
void VcmBeginRead();
void VcmEndRead();

// The record of a node reached by a walk; null when its direct-address object is gone. The caller
// is inside a StoreReading.
VcmRecord* recordOf(const VcmBinTree& node);

// Keeps the tree and all records still for a walk.
class StoreReading {
 public:
  StoreReading();
  ~StoreReading();
  StoreReading(const StoreReading&) = delete;
  StoreReading& operator=(const StoreReading&) = delete;
};

// A stored record borrowed for a scope, whatever its kind of key. False when there is none: then no
// gate is held, and a message may be sent.
class BorrowedRecord {
 public:
  BorrowedRecord(const VcmMedia& media, std::int64_t satKey);
  ~BorrowedRecord();
  BorrowedRecord(const BorrowedRecord&) = delete;
  BorrowedRecord& operator=(const BorrowedRecord&) = delete;

  explicit operator bool() const { return record_ != nullptr; }
  const VcmRecord& operator*() const { return *record_; }

 private:
  void giveBack() const;

  bool direct_;
  const VcmRecord* record_ = nullptr;
};

}  // namespace vcm

#endif
