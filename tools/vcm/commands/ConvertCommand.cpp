// vcm convert: messages of any form to one form.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>

#include "commands/Command.h"
#include "commands/Inputs.h"
#include "commands/Loading.h"
#include "files/MessageOutput.h"
#include "messages/Forms.h"

namespace vcmtool {

namespace {

constexpr const char* kFooter =
    R"(Messages of all files go into OUT by ascending key, each once: that is by
satellite number and epoch for numbers up to 524287, unless a card QZ_DMA_ON
makes keys of addresses. Bad messages are left out;
OUT is not touched when a file cannot be read or OUT cannot be written in full.
OUT may be one of the files.

Forms:
  multi-line   labelled lines; without the common name
  one-line     a line for each message; without the leap-second time
  json         an array, a message to a line; everything, with every digit
  csv          a header and a row for each message; without maneuver cards
A number that does not fit its field in the first two is written as asterisks,
and reported. CSV is the one that no command reads.

Examples:
  vcm convert today.one -o today.vcm
  vcm convert monday.vcm tuesday.one -o both.json --to json
  vcm convert -q old.vcm -o old.vcm           sorted, duplicates dropped
  vcm convert -q today.one -o - | gzip > today.vcm.gz
  vcm convert -q today.vcm -o - --to json | jq '.[].eci_position_km')";

struct ConvertOptions {
  Inputs inputs;
  std::string output;
  std::string form = kDefaultForm;
};

ExitCode convert(const ConvertOptions& options) {
  const ExitCode loaded = loadFiles(options.inputs);
  if (loaded == kFailed) {
    return kFailed;
  }
  return std::max(loaded, writeMessages(options.output, options.form));
}

}  // namespace

void addConvertCommand(CLI::App& program, ExitCode& exitCode) {
  const auto options = std::make_shared<ConvertOptions>();
  CLI::App* const command =
      program.add_subcommand("convert", "Write the messages of files in one form");
  addInputs(*command, options->inputs);
  command->add_option("-o,--output", options->output, "File to write; - is standard output")
      ->required()
      ->type_name("OUT");
  addFormOption(*command, options->form)->capture_default_str();
  command->footer(kFooter);
  command->callback([options, &exitCode] { exitCode = convert(*options); });
}

}  // namespace vcmtool
