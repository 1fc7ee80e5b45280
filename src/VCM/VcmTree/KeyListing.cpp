#include "VCM/VcmTree/KeyListing.h"

#include <algorithm>
#include <vector>

#include "Host/HostCore.h"
#include "VCM/VcmFormats/NumberWriting.h"
#include "VCM/VcmTree/Keys.h"
#include "VCM/VcmTree/Store.h"

namespace vcm {

namespace {

// The text that an order sorts by. A record that is gone sorts first.
void writeSortText(const VcmBinTree& node, std::int32_t order, char* text) {
  if (order == kAsLoaded) {
    constexpr int kSequenceWidth = 12;
    copyPadded("", text, kSortTextLength);
    writeZeroFilled(text, kSequenceWidth, node.seqNum);
  } else if (const VcmRecord* const record = recordOf(node)) {
    FieldsToStr(*record, text);
  }
}

struct SortList {
  std::vector<char> texts;
  std::vector<std::int64_t> keys;
};

SortList getTreeCombKeys(const VcmMedia& media, std::int32_t order) {
  const StoreReading reading;
  const auto count = static_cast<std::size_t>(StoreTree::getTreeCount(media.root));
  SortList list{std::vector<char>(count * kSortTextLength, ' '), {}};
  list.keys.reserve(count);
  StoreTree::walkDown(media.root, [&](const VcmBinTree& node) {
    writeSortText(node, order, list.texts.data() + list.keys.size() * kSortTextLength);
    list.keys.push_back(node.satKey);
  });
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
  quicksortiterative(list.texts.data(), &kLength, list.keys.data(), &listed);
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
