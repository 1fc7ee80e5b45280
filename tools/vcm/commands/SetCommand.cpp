// vcm set: single fields of one satellite's messages, changed.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "VCM/VcmTypes/FixedText.h"
#include "commands/Command.h"
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
Satellite number and epoch cannot be changed. Dates are yyyydddhhmmss.sss; units
are those of a message: km, km/s, s, m2/kg, arcsec; ut1Rate is in ms/day.
All messages of FILE are written; comments and cards that name other files are
not. Nothing is written when a change is refused or does not fit the form. With
--in-place FILE keeps its form, and stays as it is when a message in it is bad.

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

// A change as the command line has it, "FIELD=VALUE".
struct Change {
  explicit Change(std::string_view text)
      : field(fieldNamed(text.substr(0, text.find('=')))),
        value(vcm::withoutLeadingBlanks(text.substr(text.find('=') + 1))) {}

  const vcm::SingleField* field;
  std::string value;
};

std::string wrongChange(const std::string& text) {
  const std::size_t end = text.find('=');
  return end == std::string::npos ? text + " is not FIELD=VALUE"
                                  : unknownField(text.substr(0, end));
}

void checkUsage(const SetOptions& options) {
  if (options.output.empty() && !options.inPlace) {
    throw CLI::RequiredError("--output or --in-place");
  }
  if (options.inPlace && options.selection.file == kStandardInput) {
    throw CLI::ValidationError("--in-place", "standard input has no place");
  }
  std::error_code ignored;
  if (!options.inPlace &&
      std::filesystem::equivalent(options.selection.file, options.output, ignored)) {
    throw CLI::ValidationError("--output", options.output + " is FILE itself: give --in-place");
  }
}

// The library cuts a text that is longer than its field.
bool isCut(std::int64_t key, const Change& change) {
  std::array<char, VCM_FIELD_VALUE_LENGTH> value;
  VcmGetField(key, change.field->index, value.data());
  return change.value.size() > static_cast<std::size_t>(change.field->width) &&
         change.value.starts_with(vcm::withoutTrailingBlanks({value.data(), value.size()}));
}

// False when a change was refused. What the library cannot read it takes as zero, with no more than
// an error line.
bool change(const std::vector<std::int64_t>& keys, const std::vector<std::string>& changes) {
  bool good = true;
  const Trace trace([&good](bool isError, std::string_view line) {
    good = good && !isError;
    if (isError) {
      printMessage(line);
    }
  });
  for (const std::int64_t key : keys) {
    for (const std::string& text : changes) {
      const Change change(text);
      const std::int32_t status = VcmSetField(key, change.field->index, change.value.c_str());
      if (status == 0 && isCut(key, change)) {
        printMessage(fmt::format("vcm: {}: {} has no more than {} characters", change.value,
                                 change.field->name, change.field->width));
        good = false;
      }
      good = good && status == 0;
    }
  }
  return good;
}

ExitCode set(const SetOptions& options) {
  checkUsage(options);
  const Selection& selection = options.selection;
  std::vector<std::int64_t> keys;
  const ExitCode loaded = loadSelection(selection, keys);
  if (keys.empty()) {
    return loaded;
  }
  if (keys.size() > 1 && !options.all) {
    printMessage(
        fmt::format("vcm: satellite {} has {} messages: give the key of one, as \"vcm list\" shows "
                    "it, or --all",
                    selection.satellite, keys.size()));
    return kFailed;
  }
  if (options.inPlace && loaded != kFine) {
    printMessage(
        fmt::format("vcm: {}: not changed, for its bad messages would be lost", selection.file));
    return loaded;
  }
  if (!change(keys, options.changes)) {
    return kBadInput;
  }
  const std::string ownForm = options.inPlace ? formOf(selection.file) : kDefaultForm;
  return std::max(loaded, writeMessages(options.inPlace ? selection.file : options.output,
                                        options.form.empty() ? ownForm : options.form, true));
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
      ->check(wrongChange);
  command->add_flag("--all", options->all, "Change all messages of the satellite");
  CLI::Option* const output =
      command->add_option("-o,--output", options->output, "File to write; - is standard output")
          ->type_name("OUT");
  command->add_flag("--in-place", options->inPlace, "Write FILE itself")->excludes(output);
  addFormOption(*command, options->form);
  command->footer("Fields:\n" + fieldNames() + kExamples);
  command->callback([options, &exitCode] { exitCode = set(*options); });
}

}  // namespace vcmtool
