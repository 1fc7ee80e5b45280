#include "VCM/VcmTree/DirectAddress.h"

#include <sys/uio.h>
#include <unistd.h>

#include <new>
#include <span>

#include "Host/HostCore.h"
#include "Host/TraceLine.h"
#include "VCM/VcmTree/Keys.h"

namespace vcm {

namespace {

std::int64_t addressOf(const void* pointer) { return reinterpret_cast<std::intptr_t>(pointer); }

// Slabs of objects, each twice as large as the one before. Guarded by the gate.
class Pool {
 public:
  DmaObject* take() {
    if (oldestFree_ == nullptr && !grow()) {
      return nullptr;
    }
    DmaObject* const object = oldestFree_;
    oldestFree_ = static_cast<DmaObject*>(object->references[0]);
    *object = DmaObject{};
    object->self = object;
    return object;
  }

  // The object queues up behind all that are free, so that a stale key stays dead for long.
  void giveBack(DmaObject& object) {
    object = DmaObject{};
    if (oldestFree_ == nullptr) {
      oldestFree_ = &object;
    } else {
      newestFree_->references[0] = &object;
    }
    newestFree_ = &object;
  }

  bool contains(const DmaObject* object) const {
    const std::int64_t address = addressOf(object);
    for (const std::span<DmaObject> slab : std::span(slabs_).first(slabCount_)) {
      const std::int64_t first = addressOf(slab.data());
      if (address >= first && address < first + static_cast<std::int64_t>(slab.size_bytes())) {
        return (address - first) % static_cast<std::int64_t>(sizeof(DmaObject)) == 0;
      }
    }
    return false;
  }

 private:
  bool grow() {
    constexpr std::size_t kFirstSlab = 64;
    if (slabCount_ == slabs_.size()) {
      return false;
    }
    const std::size_t size = kFirstSlab << slabCount_;
    DmaObject* const objects = new (std::nothrow) DmaObject[size];
    if (objects == nullptr) {
      return false;
    }
    slabs_[slabCount_++] = {objects, size};
    for (std::size_t i = 0; i < size; ++i) {
      giveBack(objects[i]);
    }
    return true;
  }

  std::array<std::span<DmaObject>, 32> slabs_;  // the last would hold 10^11 objects
  std::size_t slabCount_ = 0;
  DmaObject* oldestFree_ = nullptr;
  DmaObject* newestFree_ = nullptr;
};

constinit Pool pool;

// Copies an object that did not come from the pool, through the kernel: its address may be
// anything.
bool peekForeign(DmaObject* address, DmaObject& copy) {
  const iovec local{&copy, sizeof(copy)};
  const iovec remote{address, sizeof(copy)};
  return process_vm_readv(getpid(), &local, 1, &remote, 1, 0) == static_cast<ssize_t>(sizeof(copy));
}

bool isAlive(const DmaObject& object, std::int64_t satKey) {
  return object.self != nullptr && addressOf(object.self) == satkeytoaddr(&satKey);
}

}  // namespace

constinit ReadGate directAddressGate;

DmaObject* allocateDmaObject() { return pool.take(); }

std::int64_t keyOfDma(const DmaObject& object) {
  constexpr std::int64_t kKeyPerAddress = 10;
  return addressOf(&object) * kKeyPerAddress;
}

DmaState resolveDma(std::int64_t satKey, DmaObject*& object) {
  object = nullptr;
  if (satKey < 1) {
    return DmaState::invalidKey;
  }
  auto* const address = static_cast<DmaObject*>(keytocptr(&satKey));
  if (address == nullptr) {
    return DmaState::dead;
  }
  if (!pool.contains(address)) {
    DmaObject copy;
    const bool othersObject =
        peekForeign(address, copy) && isAlive(copy, satKey) && !VcmElsetType(copy.type);
    return othersObject ? DmaState::otherType : DmaState::dead;
  }
  if (!isAlive(*address, satKey)) {
    return DmaState::dead;
  }
  object = address;
  if (!VcmElsetType(object->type)) {
    return DmaState::otherType;
  }
  return object->rec == nullptr ? DmaState::noRecord : DmaState::alive;
}

std::int64_t AddDMA(const VcmRecord& record) {
  const ReadGate::Updating gate(directAddressGate);
  DmaObject* const object = allocateDmaObject();
  if (object == nullptr) {
    logError("AddRecToMem: Cannot allocate memory for a new dma.");
    return kNoKey;
  }
  object->rec = new (std::nothrow) VcmRecord(record);
  if (object->rec == nullptr) {
    pool.giveBack(*object);
    logError("AddRecToMem: Cannot allocate memory for a new rec.");
    return kNoKey;
  }
  object->type = kVcmElsetType;
  return keyOfDma(*object);
}

std::int32_t RemoveDMA(std::int64_t satKey) {
  const ReadGate::Updating gate(directAddressGate);
  DmaObject* object = nullptr;
  switch (resolveDma(satKey, object)) {
    case DmaState::invalidKey:
    case DmaState::dead:
      logError("RemoveDMA: /DMA doesn't exist or was already deallocated");
      return kRejected;
    case DmaState::otherType:
      logError("RemoveDMA: This DMA object isn't a correct object.");
      return kRejected;
    case DmaState::noRecord:
    case DmaState::alive:
      break;
  }
  delete object->rec;
  object->rec = nullptr;
  if (object->references[0] == nullptr && object->references[1] == nullptr) {
    pool.giveBack(*object);
  }
  return kGood;
}

DmaState copyDmaRecord(std::int64_t satKey, VcmRecord& record) {
  const ReadGate::Reading gate(directAddressGate);
  DmaObject* object = nullptr;
  const DmaState state = resolveDma(satKey, object);
  if (state == DmaState::alive) {
    record = *object->rec;
  }
  return state;
}

DmaState replaceDmaRecord(std::int64_t satKey, const VcmRecord& record) {
  const ReadGate::Updating gate(directAddressGate);
  DmaObject* object = nullptr;
  const DmaState state = resolveDma(satKey, object);
  if (state == DmaState::alive) {
    *object->rec = record;
  } else if (state == DmaState::noRecord) {
    object->rec = new VcmRecord(record);
  }
  return state;
}

}  // namespace vcm
