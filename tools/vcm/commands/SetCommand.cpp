// vcm set: single fields of one satellite's messages, changed.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "VCM/VcmTree/Store.h"
#include "commands/Command.h"
#include "commands/FieldChange.h"
#include "commands/FieldNames.h"
#include "commands/Inputs.h"
#include "commands/Selection.h"
#include "files/MessageFile.h"
#include "files/MessageOutput.h"
#include "messages/Forms.h"
#include "terminal/Screen.h"
#include "terminal/Trace.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

constexpr const char* kExamples = R"(
Satellite number and epoch cannot be changed. Dates are yyyydddhhmmss.sss or
those of vcm list --where; units are those of a message: km, km/s, s, m2/kg,
arcsec; ut1Rate is in ms/day.

All messages of FILE are written, in its form unless --to says another: in the
multi-line one where it has several, or is a pipe. Comments, cards that name
other files, and the time, centre and common name of multi-line messages, which
are not read, are left out. Nothing is written when a change is refused or cannot
be held by the form; a number that is rounded by it is told. --in-place also
leaves a file as it is that would lose more than comments.

Examples:
  vcm set a.vcm 13 bTerm=0.0012 dragModel="JACCHIA 70" -o b.vcm
  vcm set a.json 13 leapSecondTime=2016366000000.000 --in-place --all
  vcm set a.vcm 22550596187185 f10=76 -o - --to json)";

struct SetOptions {
  Selection selection;
  std::vector<std::string> changes;
  bool all = false;
  std::string output;
  bool inPlace = false;
  std::string form;  // empty unless it is given
};

void checkUsage(const SetOptions& options) {
  if (options.output.empty() && !options.inPlace) {
    throw CLI::RequiredError("--output or --in-place");
  }
  const bool standardInput = options.selection.file == kStandardInput;
  if (options.inPlace && standardInput) {
    throw CLI::ValidationError("--in-place", "standard input has no place");
  }
  std::error_code ignored;
  if (!options.inPlace &&
      std::filesystem::equivalent(options.selection.file, options.output, ignored)) {
    throw CLI::ValidationError(
        "--output", options.output + (standardInput ? " is what standard input comes from"
                                                    : " is FILE itself: give --in-place"));
  }
}

// False when a change was refused, which the library says itself.
bool change(const std::vector<std::int64_t>& keys, const std::vector<std::string>& changes) {
  bool good = true;
  const Trace trace([](bool isError, std::string_view line) {
    if (isError) {
      printMessage(line);
    }
  });
  for (const std::int64_t key : keys) {
    for (const std::string& text : changes) {
      const FieldChange change(text);
      good = VcmSetField(key, change.field->index, change.value->c_str()) == 0 && good;
    }
  }
  return good;
}

bool areHeld(const std::vector<std::int64_t>& keys, const std::vector<std::string>& changes,
             const std::string& form) {
  bool held = true;
  for (const std::int64_t key : keys) {
    vcm::VcmRecord record;
    vcm::VcmFindRec(vcm::mediaVcm, key, record);
    for (const std::string& text : changes) {
      held = isHeld(record, FieldChange(text), form) && held;
    }
  }
  return held;
}

ExitCode refuse(const std::string& what, ExitCode code) {
  printMessage("vcm: " + what);
  return code;
}

ExitCode set(const SetOptions& options) {
  checkUsage(options);
  const Selection& selection = options.selection;
  std::vector<std::int64_t> keys;
  const ExitCode loaded = loadSelection(selection, keys, options.inPlace);
  if (keys.empty()) {
    return loaded;
  }
  if (keys.size() > 1 && !options.all) {
    return refuse(fmt::format("satellite {} has {} messages: give the key of one, as \"vcm list\" "
                              "shows it, or --all",
                              selection.satellite, keys.size()),
                  kFailed);
  }
  const FileForm own = formOf(selection.file);
  if (options.inPlace && (loaded != kFine || !own.loses.empty())) {
    return refuse(fmt::format("{}: not changed, for it would lose {}", selection.file,
                              own.loses.empty() ? "the messages that were left out" : own.loses),
                  kBadInput);
  }
  const std::string& form = options.form.empty() ? own.name : options.form;
  if (!change(keys, options.changes) || !areHeld(keys, options.changes, form)) {
    return kBadInput;
  }
  return std::max(loaded,
                  writeMessages(options.inPlace ? selection.file : options.output, form, true));
}

}  // namespace

void addSetCommand(CLI::App& program, ExitCode& exitCode) {
  const auto options = std::make_shared<SetOptions>();
  CLI::App* const command =
      program.add_subcommand("set", "Change single fields of a satellite's messages");
  addSelection(*command, options->selection);
  command->add_option("FIELD=VALUE", options->changes, "Fields by name or index, their values")
      ->required()
      ->type_name("")
      ->check(wrongFieldChange);
  command->add_flag("--all", options->all, "Change all messages of the satellite");
  CLI::Option* const output =
      command->add_option("-o,--output", options->output, "File to write; - is standard output")
          ->type_name("OUT");
  command->add_flag("--in-place", options->inPlace, "Write FILE itself")
      ->excludes(output)
      ->excludes(addFormOption(*command, options->form));
  command->footer("Fields:\n" + fieldNames() + kExamples);
  command->callback([options, &exitCode] { exitCode = set(*options); });
}

}  // namespace vcmtool
