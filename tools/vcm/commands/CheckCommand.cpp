// vcm check: what is wrong with files.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

#include "commands/Command.h"
#include "commands/Findings.h"
#include "commands/Inputs.h"
#include "commands/Loading.h"
#include "files/MessageFile.h"
#include "terminal/Progress.h"
#include "terminal/Screen.h"
#include "terminal/StandardOutput.h"
#include "terminal/Trace.h"

namespace vcmtool {

namespace {

constexpr const char* kFooter =
    R"(Each finding is a line FILE:LINE: REASON. LINE is the line that broke the
message or, when a value is out of its limits, the message's first line; in a
JSON file it is the number of the message. What begins with "warning:" did not
keep the message out. A line of counts follows, unless --quiet is given. Every
FILE is judged alone.

Examples:
  vcm check catalogue.vcm today.json
  vcm check -q *.vcm && echo all good)";

void writeTally(StandardOutput& output, std::string_view title, const Tally& tally) {
  fmt::format_to(std::back_inserter(output.buffer()),
                 "{}: loaded {}, duplicate {}, bad {}, unreadable fields {}\n", title, tally.loaded,
                 tally.duplicate, tally.bad, tally.unreadable);
  output.lineDone();
}

// What all files come to.
struct Verdict {
  Tally tally;
  ExitCode loaded = kFine;

  ExitCode exitCode() const { return std::max(loaded, tally.bad > 0 ? kBadInput : kFine); }
};

void checkFile(const std::string& file, bool quiet, StandardOutput& output, Progress& progress,
               Verdict& verdict) {
  startAfresh();
  Findings findings(output, progress);
  // The reader's own count line leaves out what is refused; the tally below takes its place.
  const Trace trace([&findings](bool isError, std::string_view line) {
    if (isError && !findings.reason(line)) {
      printMessage(line);
    }
  });
  const ExitCode loaded = loadFile(file, findings, progress);
  verdict.tally += findings.tally();
  verdict.loaded = std::max(verdict.loaded, loaded);
  if (loaded != kFailed && !quiet) {
    writeTally(output, file, findings.tally());
  }
}

ExitCode check(const Inputs& inputs) {
  StandardOutput output;
  Verdict verdict;
  {
    Progress progress("Checking");
    for (const std::string& file : inputs.files) {
      progress.file(file);
      checkFile(file, inputs.quiet, output, progress, verdict);
    }
  }
  if (inputs.files.size() > 1 && !inputs.quiet) {
    writeTally(output, "total", verdict.tally);
  }
  return output.finish(verdict.exitCode());
}

}  // namespace

void addCheckCommand(CLI::App& program, ExitCode& exitCode) {
  const auto inputs = std::make_shared<Inputs>();
  CLI::App* const command =
      program.add_subcommand("check", "Report bad messages, duplicates and unreadable fields");
  addInputs(*command, *inputs);
  command->footer(kFooter);
  command->callback([inputs, &exitCode] { exitCode = check(*inputs); });
}

}  // namespace vcmtool
