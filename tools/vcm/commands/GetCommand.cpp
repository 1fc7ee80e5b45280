// vcm get: single fields of one satellite's messages.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "VCM/VcmTree/Store.h"
#include "commands/Command.h"
#include "commands/FieldNames.h"
#include "commands/Selection.h"
#include "messages/FieldText.h"
#include "terminal/StandardOutput.h"

namespace vcmtool {

namespace {

constexpr const char* kExamples = R"(
A line for each message of the satellite, by epoch, values separated by tabs.
Units are those of a message: km, km/s, s, m2/kg, arcsec; ut1Rate is in ms/day.

Examples:
  vcm get catalogue.vcm 13 epoch bTerm
  vcm get -q catalogue.vcm 13 1 3 5 6 7 | column -t
  vcm get catalogue.vcm 22550596187185 wtdRms       one message, by its key)";

struct GetOptions {
  Selection selection;
  std::vector<std::string> fields;
};

ExitCode get(const GetOptions& options) {
  std::vector<std::int64_t> keys;
  const ExitCode loaded = loadSelection(options.selection, keys);
  StandardOutput output;
  for (const std::int64_t key : keys) {
    const vcm::BorrowedRecord record(vcm::mediaVcm, key);
    std::string_view separator;
    for (const std::string& field : options.fields) {
      output.buffer().append(separator);
      output.buffer().append(fieldText(*record, *fieldNamed(field)));
      separator = "\t";
    }
    output.buffer().push_back('\n');
    output.lineDone();
  }
  return output.finish(loaded);
}

}  // namespace

void addGetCommand(CLI::App& program, ExitCode& exitCode) {
  const auto options = std::make_shared<GetOptions>();
  CLI::App* const command =
      program.add_subcommand("get", "Show single fields of a satellite's messages");
  addSelection(*command, options->selection);
  command->add_option("FIELD", options->fields, "Fields by name or index")
      ->required()
      ->type_name("")
      ->check(unknownField);
  command->footer("Fields:\n" + fieldNames() + kExamples);
  command->callback([options, &exitCode] { exitCode = get(*options); });
}

}  // namespace vcmtool
