// vcm show: the messages of one satellite.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>

#include "VCM/VcmTree/Store.h"
#include "commands/Command.h"
#include "commands/Selection.h"
#include "messages/Forms.h"
#include "terminal/StandardOutput.h"

namespace vcmtool {

namespace {

constexpr const char* kFooter =
    R"(All messages of the satellite are shown, by epoch. The names of --fields are
those of JSON; list, get and set take them as well as the shorter ones of
vcm get --help, where they stand for a single value that has one.

Examples:
  vcm show catalogue.vcm 13
  vcm show catalogue.vcm 13 --fields                named fields, full covariance
  vcm show -q catalogue.vcm 13 --to json | jq '.[0].epoch_utc'
  vcm show catalogue.vcm 22550596187185             one message, by its key)";

struct ShowOptions {
  Selection selection;
  std::string form = kDefaultForm;
  bool fields = false;

  // A message that stands alone has no heading.
  bool isBare() const { return fields || form == kDefaultForm; }
};

ExitCode show(const ShowOptions& options) {
  std::vector<std::int64_t> keys;
  const ExitCode loaded = loadSelection(options.selection, keys);
  if (keys.empty()) {
    return loaded;
  }
  StandardOutput output;
  const auto writer = options.fields ? makeFieldWriter(output) : makeWriter(options.form, output);
  if (!options.isBare()) {
    writer->begin();
  }
  for (const std::int64_t key : keys) {
    if (const vcm::BorrowedRecord record(vcm::mediaVcm, key); record) {
      writer->message(*record);
    }
  }
  if (!options.isBare()) {
    writer->end();
  }
  return output.finish(writer->allFit() ? loaded : std::max(loaded, kBadInput));
}

}  // namespace

void addShowCommand(CLI::App& program, ExitCode& exitCode) {
  const auto options = std::make_shared<ShowOptions>();
  CLI::App* const command = program.add_subcommand("show", "Show the messages of a satellite");
  addSelection(*command, options->selection);
  CLI::Option* const form = addFormOption(*command, options->form)->capture_default_str();
  command->add_flag("--fields", options->fields, "A line for each field, with its name")
      ->excludes(form);
  command->footer(kFooter);
  command->callback([options, &exitCode] { exitCode = show(*options); });
}

}  // namespace vcmtool
