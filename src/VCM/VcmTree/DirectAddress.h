// Direct addresses: records that live in objects shared with the host framework, whose keys are
// made of the objects' addresses.
//
// Objects come from a pool that never gives memory back, so that a removed object stays readable as
// dead and any key can be judged before it is followed. A gate of its own guards the pool, the
// objects and their records: it may be entered while the store's gate is held, never the other way
// round.
#ifndef VCM_VCMTREE_DIRECTADDRESS_H
#define VCM_VCMTREE_DIRECTADDRESS_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "VCM/VcmTree/ReadGate.h"
#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

// Laid out as the host framework's other libraries expect it.
struct DmaObject {
  DmaObject* self = nullptr;  // the object's own address while it is alive
  std::int32_t type = 0;      // kVcmElsetType for a message, 0 while being built
  std::array<std::byte, 12> reserved{};
  VcmRecord* rec = nullptr;  // owned; null once the message is removed
  // Data that other libraries hang on the object: it is freed only when both are null. While an
  // object waits in the pool the first links it to the next.
  std::array<void*, 2> references{};
};
static_assert(sizeof(DmaObject) == 48 && offsetof(DmaObject, rec) == 24 &&
              offsetof(DmaObject, references) == 32);

// What a key turns out to be.
enum class DmaState {
  invalidKey,  // below 1
  dead,        // no living object: never issued, removed, or garbage
  otherType,   // a living object that holds no message
  noRecord,    // a living object whose message was removed
  alive
};

extern ReadGate directAddressGate;

// Takes an object from the pool, alive and untyped; null when memory is exhausted. The caller holds
// the gate for updating.
DmaObject* allocateDmaObject();

// Judges a key; `object` is set unless the state is invalidKey or dead or the object is foreign to
// the pool. The caller holds the gate.
DmaState resolveDma(std::int64_t satKey, DmaObject*& object);

std::int64_t keyOfDma(const DmaObject& object);

// The four below take the gate themselves.

// Puts a deep copy of a record into a new object and returns its key; on exhausted memory logs why
// and returns kNoKey.
std::int64_t AddDMA(const VcmRecord& record);

// Releases the record of an object, and the object itself unless other data hangs on it. Returns 0,
// or 2 with a line in the error trace.
std::int32_t RemoveDMA(std::int64_t satKey);

// Copies a record out, or replaces it by a deep copy. Nothing is done unless the result is alive
// (or noRecord, for a replacement).
DmaState copyDmaRecord(std::int64_t satKey, VcmRecord& record);
DmaState replaceDmaRecord(std::int64_t satKey, const VcmRecord& record);

}  // namespace vcm

#endif
