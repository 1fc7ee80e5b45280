// Somebody who watches a file being read.
#ifndef VCM_VCMCARDREADING_READINGOBSERVER_H
#define VCM_VCMCARDREADING_READINGOBSERVER_H

#include <cstdint>
#include <string_view>

namespace vcm {

enum class MessageOutcome {
  loaded,
  duplicate,
  bad,     // cannot be read
  refused  // can be read, but not stored: a limit is broken or it has no key
};

// Lines are counted from 1 within the file that was named last.
class ReadingObserver {
 public:
  ReadingObserver() = default;
  ReadingObserver(const ReadingObserver&) = delete;
  ReadingObserver& operator=(const ReadingObserver&) = delete;
  virtual ~ReadingObserver() = default;

  // Reading goes on in this file.
  virtual void file(std::string_view name) = 0;
  // A message begins.
  virtual void message(std::int64_t line) = 0;
  // A field of the message could not be read and kept its empty value.
  virtual void unreadable(std::int64_t line, std::string_view field) = 0;
  // The message ended on this line, the one that broke it when it is bad.
  virtual void outcome(std::int64_t line, MessageOutcome outcome) = 0;
};

}  // namespace vcm

#endif
