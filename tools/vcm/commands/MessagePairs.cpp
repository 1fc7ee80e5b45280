#include "commands/MessagePairs.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <span>
#include <utility>
#include <vector>

#include "VCM/VcmTree/Store.h"
#include "files/MessageFile.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

struct Place {
  std::int32_t satNum;
  std::int64_t milliseconds;  // since 1950: no key tells more
  auto operator<=>(const Place&) const = default;
};

struct Message {
  Place place;
  std::int32_t loaded;
  const vcm::VcmRecord* record;
};

std::vector<Message> sorted(const vcm::VcmMedia& media) {
  constexpr double kMillisecondsPerDay = 86400e3;
  std::vector<Message> messages;
  vcm::StoreTree::walkUp(media.root, [&messages](const vcm::VcmBinTree& node) {
    if (const vcm::VcmRecord* const record = vcm::recordOf(node)) {
      const double days = vcm::inputDateToDs50(record->epoch);
      messages.push_back(
          {{record->satNum, std::llround(days * kMillisecondsPerDay)}, node.seqNum, record});
    }
  });
  std::sort(messages.begin(), messages.end(), [](const Message& a, const Message& b) {
    return std::pair(a.place, a.loaded) < std::pair(b.place, b.loaded);
  });
  return messages;
}

// Takes the messages of the first place off the front.
std::span<Message> takeGroup(std::span<Message>& messages) {
  const auto end = std::find_if(
      messages.begin(), messages.end(),
      [place = messages.front().place](const Message& other) { return other.place != place; });
  const auto group = messages.first(static_cast<std::size_t>(end - messages.begin()));
  messages = messages.subspan(group.size());
  return group;
}

// Hands on the pairs that are the same and leaves null records behind.
void takeSame(std::span<Message> a, std::span<Message> b, const AreSame& areSame,
              const TakePair& take) {
  std::size_t next = 0;  // files that are alike have their messages in the same order
  for (Message& message : a) {
    for (std::size_t tried = 0; tried < b.size(); ++tried) {
      Message& other = b[(next + tried) % b.size()];
      if (other.record != nullptr && areSame(*message.record, *other.record)) {
        take(std::exchange(message.record, nullptr), std::exchange(other.record, nullptr));
        next += tried + 1;
        break;
      }
    }
  }
}

void takeGroups(std::span<Message> a, std::span<Message> b, const AreSame& areSame,
                const TakePair& take) {
  if (a.size() > 1 || b.size() > 1) {
    takeSame(a, b, areSame, take);
  }
  const auto isLeft = [](const Message& message) { return message.record != nullptr; };
  auto left = std::find_if(a.begin(), a.end(), isLeft);
  auto right = std::find_if(b.begin(), b.end(), isLeft);
  while (left != a.end() || right != b.end()) {
    take(left != a.end() ? left->record : nullptr, right != b.end() ? right->record : nullptr);
    left = left != a.end() ? std::find_if(left + 1, a.end(), isLeft) : left;
    right = right != b.end() ? std::find_if(right + 1, b.end(), isLeft) : right;
  }
}

}  // namespace

TakenMessages::TakenMessages() : count_(VcmGetCount()) {
  std::swap(media_.root, vcm::mediaVcm.root);
  startAfresh();
}

TakenMessages::~TakenMessages() {
  std::int32_t status = vcm::kStored;
  vcm::VcmEmptyTree(media_, status);
}

void pairMessages(const TakenMessages& a, const TakenMessages& b, const AreSame& areSame,
                  const TakePair& take) {
  const vcm::StoreReading reading;
  std::vector<Message> all = sorted(a.media());
  std::vector<Message> others = sorted(b.media());
  std::span<Message> left = all;
  std::span<Message> right = others;
  while (!left.empty() || !right.empty()) {
    const bool takesLeft =
        right.empty() || (!left.empty() && left.front().place <= right.front().place);
    const bool takesRight =
        left.empty() || (!right.empty() && right.front().place <= left.front().place);
    takeGroups(takesLeft ? takeGroup(left) : std::span<Message>(),
               takesRight ? takeGroup(right) : std::span<Message>(), areSame, take);
  }
}

}  // namespace vcmtool
