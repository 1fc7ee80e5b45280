// The messages of two files side by side.
#ifndef VCM_TOOLS_MESSAGEPAIRS_H
#define VCM_TOOLS_MESSAGEPAIRS_H

#include <functional>

#include "VCM/VcmTypes/VcmBinTree.h"

namespace vcmtool {

// All that the store holds, taken out of it. What was loaded is then at home here.
class TakenMessages {
 public:
  TakenMessages();
  ~TakenMessages();
  TakenMessages(const TakenMessages&) = delete;
  TakenMessages& operator=(const TakenMessages&) = delete;

  const vcm::VcmMedia& media() const { return media_; }
  std::int32_t count() const { return count_; }

 private:
  vcm::VcmMedia media_;
  std::int32_t count_;
};

using AreSame = std::function<bool(const vcm::VcmRecord& a, const vcm::VcmRecord& b)>;
// One of the two is null for a message that stands alone.
using TakePair = std::function<void(const vcm::VcmRecord* a, const vcm::VcmRecord* b)>;

// Goes through both by satellite and epoch. Messages of the same satellite and millisecond are a pair:
// of several, first those that are the same, then the others in the order of loading.
void pairMessages(const TakenMessages& a, const TakenMessages& b, const AreSame& areSame,
                  const TakePair& take);

}  // namespace vcmtool

#endif
