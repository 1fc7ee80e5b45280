// What is wrong with the messages of a file, line by line.
#ifndef VCM_TOOLS_FINDINGS_H
#define VCM_TOOLS_FINDINGS_H

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "VCM/VcmCardReading/ReadingObserver.h"
#include "terminal/StandardOutput.h"

namespace vcmtool {

struct Tally {
  std::int64_t loaded = 0;
  std::int64_t duplicate = 0;
  std::int64_t bad = 0;
  std::int64_t unreadable = 0;  // fields

  Tally& operator+=(const Tally& other);
};

// Watches the reading of one file and of those that it names, and writes a line for each finding.
class Findings final : public vcm::ReadingObserver {
 public:
  // `seen` counts the messages as they begin.
  Findings(StandardOutput& output, std::atomic<std::int64_t>& seen)
      : output_(output), seen_(seen) {}

  // An error line of the library. False when it belongs to no message.
  bool reason(std::string_view line);

  void file(std::string_view name) override;
  void message(std::int64_t line) override;
  void unreadable(std::int64_t line, std::string_view field) override;
  void outcome(std::int64_t line, vcm::MessageOutcome outcome) override;

  const Tally& tally() const { return tally_; }

 private:
  void write(std::int64_t line, std::string_view prefix, std::string_view text);
  void writeReasons(std::int64_t line);

  StandardOutput& output_;
  std::atomic<std::int64_t>& seen_;
  Tally tally_;
  std::string file_;
  std::int64_t firstLine_ = 0;
  bool inMessage_ = false;
  std::vector<std::string> reasons_;
};

}  // namespace vcmtool

#endif
