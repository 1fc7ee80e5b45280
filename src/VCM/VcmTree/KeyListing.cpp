#include "VCM/VcmTree/KeyListing.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "Host/HostCore.h"
#include "VCM/VcmFormats/ColumnWriting.h"
#include "VCM/VcmTree/Keys.h"
#include "VCM/VcmTree/Store.h"

namespace vcm {

namespace {

// The text that an order sorts by. A record that is gone sorts first.
void writeSortText(const VcmBinTree& node, std::int32_t order, char* text) {
  if (order == kAsLoaded) {
    constexpr int kSequenceWidth = 12;
    writeZeroFilled<kSequenceWidth>(text, node.seqNum);
    copyPadded("", text + kSequenceWidth, kSortTextLength - kSequenceWidth);
  } else if (const VcmRecord* const record = recordOf(node)) {
    FieldsToStr(*record, text);
  } else {
    copyPadded("", text, kSortTextLength);
  }
}

// Asks for what a sort text is made of, so that it is on its way when its turn comes: records lie all
// over the memory.
void prefetchRecord(const VcmBinTree& node) {
  if (node.rec != nullptr) {
    __builtin_prefetch(&node.rec->satNum);
    __builtin_prefetch(&node.rec->epoch.seconds);
  }
}

struct SortList {
  explicit SortList(std::size_t count)
      : texts(std::make_unique_for_overwrite<char[]>(count * kSortTextLength)) {
    keys.reserve(count);
  }
  std::unique_ptr<char[]> texts;
  std::vector<std::int64_t> keys;
};

SortList getTreeCombKeys(const VcmMedia& media, std::int32_t order) {
  const StoreReading reading;
  std::vector<const VcmBinTree*> nodes;
  StoreTree::walkDown(media.root, [&](const VcmBinTree& node) { nodes.push_back(&node); });
  SortList list(nodes.size());
  char* text = list.texts.get();
  for (std::size_t i = 0; i < nodes.size(); ++i, text += kSortTextLength) {
    constexpr std::size_t kAhead = 16;
    if (order != kAsLoaded && i + kAhead < nodes.size()) {
      prefetchRecord(*nodes[i + kAhead]);
    }
    writeSortText(*nodes[i], order, text);
    list.keys.push_back(nodes[i]->satKey);
  }
  return list;
}

std::int64_t findAssociatedKey(const VcmBinTree* node, std::int32_t satNum) {
  if (node == nullptr) {
    return kNoKey;
  }
  const VcmRecord* const record = recordOf(*node);
  if (record != nullptr && record->satNum == satNum) {
    return node->satKey;
  }
  const std::int64_t key = findAssociatedKey(node->left, satNum);
  return key != kNoKey ? key : findAssociatedKey(node->right, satNum);
}

}  // namespace

std::int32_t VcmGetNumOfTreeNodes(const VcmMedia& media) {
  const StoreReading reading;
  return StoreTree::getTreeCount(media.root);
}

void VcmGetTreeKeys(const VcmMedia& media, std::int32_t& count, std::int64_t* keys,
                    std::int32_t order) {
  if (!listingEntersGate(order)) {
    StoreTree::walkUp(media.root, [&](const VcmBinTree& node) { keys[count++] = node.satKey; });
    return;
  }
  SortList list = getTreeCombKeys(media, order);
  constexpr std::int32_t kLength = kSortTextLength;
  const auto listed = static_cast<std::int32_t>(list.keys.size());
  quicksortiterative(list.texts.get(), &kLength, list.keys.data(), &listed);
  std::int64_t* const first = keys + count;
  if (order == kBySatelliteReverse) {
    std::reverse_copy(list.keys.begin(), list.keys.end(), first);
  } else {
    std::copy(list.keys.begin(), list.keys.end(), first);
  }
  count += listed;
}

std::int64_t VcmSatKeyGet(const VcmMedia& media, std::int32_t satNum) {
  const StoreReading reading;
  return findAssociatedKey(media.root, satNum);
}

std::int64_t GetSatKey(std::int32_t satNum) {
  const std::int64_t key = VcmSatKeyGet(mediaVcm, satNum);
  if (key == kNoKey) {
    constexpr int kNumberColumns = 9;
    TraceLine()
        .text("GetSatKey: Unable to locate satellite number ")
        .number(satNum, kNumberColumns)
        .text(" in the VCM binary tree.")
        .error();
  }
  return key;
}

}  // namespace vcm
