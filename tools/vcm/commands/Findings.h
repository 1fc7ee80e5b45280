// What is wrong with the messages of a file, line by line.
#ifndef VCM_TOOLS_FINDINGS_H
#define VCM_TOOLS_FINDINGS_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "VCM/VcmCardReading/ReadingObserver.h"
#include "terminal/Colors.h"
#include "terminal/Progress.h"
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
  Findings(StandardOutput& output, Progress& progress) : output_(output), progress_(progress) {}

  // An error line of the library. False when it belongs to no message.
  bool reason(std::string_view line);

  void file(std::string_view name) override;
  void message(std::int64_t line) override;
  void unreadable(std::int64_t line, std::string_view field) override;
  void outcome(std::int64_t line, vcm::MessageOutcome outcome) override;

  const Tally& tally() const { return tally_; }

 private:
  void write(std::int64_t line, Style style, std::string_view prefix, std::string_view text);
  void writeReasons(std::int64_t line);

  StandardOutput& output_;
  Progress& progress_;
  Tally tally_;
  std::string file_;
  std::int64_t firstLine_ = 0;
  bool inMessage_ = false;
  std::vector<std::string> reasons_;
};

}  // namespace vcmtool

#endif
