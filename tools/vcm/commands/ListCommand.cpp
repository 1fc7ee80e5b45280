// vcm list: the satellites in files.
#include <strings.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "VCM/VcmTree/Store.h"
#include "VCM/VcmTypes/FixedText.h"
#include "commands/Command.h"
#include "commands/Condition.h"
#include "commands/FieldNames.h"
#include "commands/FieldOrder.h"
#include "commands/Inputs.h"
#include "commands/Loading.h"
#include "messages/FieldColumns.h"
#include "messages/SatelliteTable.h"
#include "terminal/Screen.h"
#include "terminal/StandardOutput.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

constexpr const char* kFooter =
    R"(
Columns of the table: satellite number, international designator, epoch (year,
day of year, time, UTC), revolution number, dimension of the covariance (0:
none), position and velocity in the Earth-centred inertial frame (true of date),
key. With --columns they are the fields that it names, in the units of vcm get,
and "key".

Orders: satellite (by number, then epoch), reverse (the same backwards), loaded
(as read) and key. Messages that --sort finds equal keep that order; a "-" before
a field sorts it descending.

Operators of --where: = != < <= > >=. Dates are 2016366235959.000, or a day
(2016-366, 2016-12-31) with or without a time behind T or a blank (23:59,
23:59:59.000Z). Of several conditions all must hold.

Examples:
  vcm list catalogue.vcm
  vcm list --order loaded monday.vcm tuesday.one
  vcm list catalogue.vcm --where 'dragModel = JACCHIA 70' --where 'bTerm > 0.01'
  vcm list catalogue.vcm --columns satNum,epoch,wtdRms --sort=-wtdRms,epoch
  zcat archive.vcm.gz | vcm list -)";

const std::map<std::string, std::int32_t>& orders() {
  static const std::map<std::string, std::int32_t> names = {
      {"satellite", VCM_ORDER_SATELLITE},
      {"reverse", VCM_ORDER_SATELLITE_REVERSE},
      {"loaded", VCM_ORDER_LOADED},
      {"key", VCM_ORDER_KEY}};
  return names;
}

struct ListOptions {
  Inputs inputs;
  std::string order = "satellite";
  std::vector<std::string> columns;  // none for the usual table
  std::vector<std::string> conditions;
  std::vector<std::string> sort;
};

std::vector<std::int64_t> loadedKeys(std::int32_t order) {
  std::vector<std::int64_t> keys(static_cast<std::size_t>(VcmGetCount()));
  if (!keys.empty()) {
    VcmGetLoaded(order, keys.data());
  }
  return keys;
}

std::vector<std::int64_t> selectedKeys(const ListOptions& options) {
  std::vector<std::int64_t> keys = loadedKeys(orders().at(options.order));
  for (const std::string& text : options.conditions) {
    Condition condition;
    readCondition(text, condition);
    std::erase_if(keys, [&condition](std::int64_t key) {
      return !condition.holds(*vcm::BorrowedRecord(vcm::mediaVcm, key));
    });
  }
  if (keys.empty() && !options.conditions.empty() && VcmGetCount() > 0 && !options.inputs.quiet) {
    printMessage("vcm: no message meets the conditions");
  }
  sortByFields(keys, options.sort);
  return keys;
}

void writeTable(StandardOutput& output, const std::vector<std::int64_t>& keys) {
  const SatelliteTable table(isTerminal(STDOUT_FILENO) &&
                             terminalColumns(STDOUT_FILENO) < SatelliteTable::kLineWidth);
  table.appendHeader(output.buffer());
  MessageArrays message;
  for (const std::int64_t key : keys) {
    VcmRetrieveAllData(key, message.characters.data(), message.numbers.data());
    table.append(output.buffer(), key, message);
    if (!output.lineDone()) {
      break;
    }
  }
}

// In small or capital letters, as with fields.
bool isKeyColumn(const std::string& name) {
  return strcasecmp(name.c_str(), kKeyColumnName.data()) == 0;
}

std::string unknownColumn(const std::string& name) {
  return isKeyColumn(name) ? "" : unknownField(name);
}

void writeColumns(StandardOutput& output, const std::vector<std::int64_t>& keys,
                  const std::vector<std::string>& names) {
  std::vector<const vcm::SingleField*> fields(names.size());
  std::transform(names.begin(), names.end(), fields.begin(), [](const std::string& name) {
    return isKeyColumn(name) ? kKeyColumn : fieldNamed(name);
  });
  FieldColumns table(fields);
  for (const std::int64_t key : keys) {
    table.measure(key, *vcm::BorrowedRecord(vcm::mediaVcm, key));
  }
  table.appendHeader(output.buffer());
  for (const std::int64_t key : keys) {
    table.append(output.buffer(), key, *vcm::BorrowedRecord(vcm::mediaVcm, key));
    if (!output.lineDone()) {
      break;
    }
  }
}

ExitCode list(const ListOptions& options) {
  const ExitCode loaded = loadFiles(options.inputs);
  StandardOutput output;
  if (loaded == kFailed && VcmGetCount() == 0) {
    return loaded;
  }
  const std::vector<std::int64_t> keys = selectedKeys(options);
  if (options.columns.empty()) {
    writeTable(output, keys);
  } else {
    writeColumns(output, keys, options.columns);
  }
  return output.finish(loaded);
}

// Adds an option whose argument is a list separated by commas, and which may be repeated.
CLI::Option* addList(CLI::App& command, const std::string& name, std::vector<std::string>& list,
                     const std::string& description) {
  const auto trim = [](std::string& item) {
    item = std::string(vcm::withoutTrailingBlanks(vcm::withoutLeadingBlanks(item)));
    return std::string();
  };
  return command.add_option(name, list, description)
      ->delimiter(',')
      ->allow_extra_args(false)
      ->transform(CLI::Validator(trim, ""));
}

}  // namespace

void addListCommand(CLI::App& program, ExitCode& exitCode) {
  const auto options = std::make_shared<ListOptions>();
  CLI::App* const command = program.add_subcommand("list", "List the satellites in files");
  addInputs(*command, options->inputs);
  command->add_option("--order", options->order, "Order of the satellites")
      ->check(CLI::IsMember(&orders()))
      ->type_name("ORDER")
      ->capture_default_str();
  addList(*command, "--columns", options->columns, "Fields to show in place of the usual table")
      ->type_name("FIELD,...")
      ->check(unknownColumn);
  command->add_option("--where", options->conditions, "Only messages that meet a condition")
      ->type_name("'FIELD OP VALUE'")
      ->allow_extra_args(false)
      ->check(wrongCondition);
  addList(*command, "--sort", options->sort, "Fields to sort by")
      ->type_name("[-]FIELD,...")
      ->check(wrongFieldOrder);
  command->footer("Fields:\n" + fieldNames() + kFooter);
  command->callback([options, &exitCode] { exitCode = list(*options); });
}

}  // namespace vcmtool
