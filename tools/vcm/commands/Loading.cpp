#include "commands/Loading.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "files/MessageFile.h"
#include "terminal/Progress.h"
#include "terminal/Screen.h"
#include "terminal/Trace.h"

namespace vcmtool {

namespace {

class Counting final : public vcm::ReadingObserver {
 public:
  explicit Counting(Progress& progress) : progress_(progress) {}

  void message(std::int64_t /*line*/) override { progress_.count(); }
  void file(std::string_view /*name*/) override {}
  void unreadable(std::int64_t /*line*/, std::string_view /*field*/) override {}
  void outcome(std::int64_t /*line*/, vcm::MessageOutcome /*outcome*/) override {}

 private:
  Progress& progress_;
};

}  // namespace

ExitCode loadFile(const std::string& file, vcm::ReadingObserver& observer, Progress& progress) {
  const FileReading reading = readMessageFile(file, observer, progress);
  if (reading.code != 0) {
    // The code does not tell this file from one that its cards name.
    printFailure(isReadable(file) ? file + ": a file that it names" : file, reading.code);
    return kFailed;
  }
  if (!reading.lack.empty()) {
    printMessage(fmt::format("vcm: {}: {}", file, reading.lack));
    return kBadInput;
  }
  return kFine;
}

ExitCode loadFiles(const Inputs& inputs) {
  ExitCode result = kFine;
  // The count line has no place for messages that are refused at the store's door, so what is bad
  // is told from the error lines: each stands for a bad message unless it reports a duplicate.
  const Trace trace([&](bool isError, std::string_view line) {
    const bool duplicate = line.starts_with("AddRecToMem: Duplicated");
    const bool isFault = isError && (inputs.duplicatesAreBad || !duplicate);
    if (isFault) {
      result = std::max(result, kBadInput);
    }
    if (isFault || !inputs.quiet) {
      printMessage(line);
    }
  });
  Progress progress("Loading");
  Counting counting(progress);
  for (const std::string& file : inputs.files) {
    progress.file(file);
    result = std::max(result, loadFile(file, counting, progress));
  }
  return result;
}

}  // namespace vcmtool
