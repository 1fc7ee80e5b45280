// vcm diff: what two files do not have in common.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "commands/Command.h"
#include "commands/Inputs.h"
#include "commands/Loading.h"
#include "commands/MessagePairs.h"
#include "messages/Forms.h"
#include "messages/IsoDate.h"
#include "messages/RecordDifferences.h"
#include "terminal/Colors.h"
#include "terminal/Progress.h"
#include "terminal/StandardOutput.h"

namespace vcmtool {

namespace {

constexpr const char* kFooter =
    R"(Messages of the same satellite and epoch, to the millisecond, are compared; of
several, those first that are the same, then the others as they were loaded.
Lines that begin with "-" stand for A, with "+" for B: a message that the other
file lacks or, indented, a field with its value. Names are those of JSON and CSV.
The last line counts. Exit codes: 0 the same, 1 different or a message was bad,
2 a file cannot be read.

The forms of the files do not matter, but what they leave out or round does:
--as FORM compares what is left of both in that form or, when it is repeated, in
all of those forms.

Examples:
  vcm diff monday.vcm tuesday.vcm
  vcm diff catalogue.vcm catalogue.one --as multi-line --as one-line
  vcm diff -q a.json b.json && echo nothing new)";

struct DiffOptions {
  std::string before;
  std::string after;
  bool quiet = false;
  std::vector<std::string> forms;
};

// Compares pairs of messages and writes what it finds.
class Differ {
 public:
  Differ(const DiffOptions& options, StandardOutput& output) : options_(options), output_(output) {}

  bool areSame(const vcm::VcmRecord& a, const vcm::VcmRecord& b) const {
    return differences(a, b).empty();
  }

  void take(const vcm::VcmRecord* a, const vcm::VcmRecord* b) {
    if (a == nullptr || b == nullptr) {
      ++(a != nullptr ? onlyBefore_ : onlyAfter_);
      title(a != nullptr ? '-' : '+', a != nullptr ? *a : *b);
      return;
    }
    const std::vector<Difference> found = differences(*a, *b);
    ++(found.empty() ? same_ : different_);
    if (!found.empty()) {
      title(' ', *a);
      write(found);
    }
  }

  void summary() {
    output_.line(fmt::format("same {}, different {}, only in {} {}, only in {} {}", same_,
                             different_, options_.before, onlyBefore_, options_.after, onlyAfter_));
  }

  ExitCode exitCode() const {
    return different_ + onlyBefore_ + onlyAfter_ > 0 ? kBadInput : kFine;
  }

 private:
  std::vector<Difference> differences(const vcm::VcmRecord& a, const vcm::VcmRecord& b) const {
    return a == b || options_.forms.empty() ? differencesOf(a, b) : differencesOf(kept(a), kept(b));
  }

  vcm::VcmRecord kept(vcm::VcmRecord record) const {
    for (const std::string& form : options_.forms) {
      record = asKeptBy(form, record);
    }
    return record;
  }

  void line(char sign, std::string_view text) {
    const Style style = sign == '-' ? Style::removed : sign == '+' ? Style::added : Style::title;
    output_.line(
        styled(STDOUT_FILENO, style, fmt::format("{} {}", sign, vcm::withoutTrailingBlanks(text))));
  }

  void title(char sign, const vcm::VcmRecord& record) {
    if (options_.quiet) {
      return;
    }
    if (std::exchange(isFirst_, false)) {
      output_.line(fmt::format("--- {}", options_.before));
      output_.line(fmt::format("+++ {}", options_.after));
    }
    line(sign, fmt::format("satellite {}, epoch {}", record.satNum, isoDate(record.epoch)));
  }

  void write(const std::vector<Difference>& found) {
    if (options_.quiet) {
      return;
    }
    std::size_t width = 0;
    for (const Difference& difference : found) {
      width = std::max(width, difference.name.size());
    }
    const auto side = [&](char sign, const std::string& name,
                          const std::optional<std::string>& value) {
      if (value) {
        line(sign, fmt::format("  {:<{}}  {}", name, width, *value));
      }
    };
    for (const Difference& difference : found) {
      side('-', difference.name, difference.before);
      side('+', difference.name, difference.after);
    }
  }

  const DiffOptions& options_;
  StandardOutput& output_;
  bool isFirst_ = true;
  std::int64_t same_ = 0;
  std::int64_t different_ = 0;
  std::int64_t onlyBefore_ = 0;
  std::int64_t onlyAfter_ = 0;
};

ExitCode diff(const DiffOptions& options) {
  if (options.before == kStandardInput && options.after == kStandardInput) {
    throw CLI::ValidationError("B", "standard input can be read only once");
  }
  const ExitCode loadedBefore = loadFiles({{options.before}, options.quiet});
  const TakenMessages before;
  const ExitCode loadedAfter = loadFiles({{options.after}, options.quiet});
  const TakenMessages after;
  const ExitCode loaded = std::max(loadedBefore, loadedAfter);
  if (loaded == kFailed) {
    return kFailed;
  }
  StandardOutput output;
  Differ differ(options, output);
  {
    Progress progress("Comparing");
    progress.file(options.before, before.count() + after.count());
    pairMessages(
        before, after,
        [&differ](const vcm::VcmRecord& a, const vcm::VcmRecord& b) {
          return differ.areSame(a, b);
        },
        [&](const vcm::VcmRecord* a, const vcm::VcmRecord* b) {
          differ.take(a, b);
          for (const vcm::VcmRecord* const record : {a, b}) {
            if (record != nullptr) {
              progress.count();
            }
          }
        });
  }
  differ.summary();
  return output.finish(std::max(loaded, differ.exitCode()));
}

}  // namespace

void addDiffCommand(CLI::App& program, ExitCode& exitCode) {
  const auto options = std::make_shared<DiffOptions>();
  CLI::App* const command = program.add_subcommand("diff", "Compare two files, field by field");
  addInput(*command, "A", options->before);
  addInput(*command, "B", options->after);
  command->add_flag("-q,--quiet", options->quiet, "Only the line of counts, and what went wrong");
  takesForm(command->add_option("--as", options->forms, "Compare what this form keeps"))
      ->allow_extra_args(false);
  command->footer(kFooter);
  command->callback([options, &exitCode] { exitCode = diff(*options); });
}

}  // namespace vcmtool
