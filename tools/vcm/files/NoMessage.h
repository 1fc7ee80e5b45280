// Files that are taken for messages and hold none.
#ifndef VCM_TOOLS_NOMESSAGE_H
#define VCM_TOOLS_NOMESSAGE_H

#include <cstdio>
#include <string>

#include "VCM/VcmCardReading/ReadingObserver.h"

namespace vcmtool {

// Passes on what it is told and knows whether a message began.
class MessageSighting final : public vcm::ReadingObserver {
 public:
  explicit MessageSighting(vcm::ReadingObserver& next) : next_(next) {}

  bool any() const { return any_; }

  void file(std::string_view name) override { next_.file(name); }
  void message(std::int64_t line) override {
    any_ = true;
    next_.message(line);
  }
  void unreadable(std::int64_t line, std::string_view field) override {
    next_.unreadable(line, field);
  }
  void outcome(std::int64_t line, vcm::MessageOutcome outcome) override {
    next_.outcome(line, outcome);
  }

 private:
  vcm::ReadingObserver& next_;
  bool any_ = false;
};

// What to say of a file in which no message began. Empty when that is as it should be: then it has
// nothing but comments, which is how no messages are written.
std::string whyNoMessage(std::FILE* file);

}  // namespace vcmtool

#endif
