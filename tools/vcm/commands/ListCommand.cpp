// vcm list: the satellites in files.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "commands/Command.h"
#include "commands/Inputs.h"
#include "commands/Loading.h"
#include "messages/SatelliteTable.h"
#include "terminal/Screen.h"
#include "terminal/StandardOutput.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

constexpr const char* kFooter =
    R"(Columns: satellite number, international designator, epoch (year, day of year,
time, UTC), revolution number, dimension of the covariance (0: none), position
and velocity in the Earth-centred inertial frame (true of date), key.

Orders: satellite (by number, then epoch), reverse (the same backwards), loaded
(as read) and key.

Examples:
  vcm list catalogue.vcm
  vcm list --order loaded monday.vcm tuesday.one
  vcm list -q catalogue.vcm | tail -n +2 | sort -k 3,4     by epoch
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
};

std::vector<std::int64_t> loadedKeys(std::int32_t order) {
  std::vector<std::int64_t> keys(static_cast<std::size_t>(VcmGetCount()));
  if (!keys.empty()) {
    VcmGetLoaded(order, keys.data());
  }
  return keys;
}

ExitCode list(const ListOptions& options) {
  const ExitCode loaded = loadFiles(options.inputs);
  const SatelliteTable table(isTerminal(STDOUT_FILENO) &&
                             terminalColumns(STDOUT_FILENO) < SatelliteTable::kLineWidth);
  StandardOutput output;
  if (loaded != kFailed || VcmGetCount() > 0) {
    table.appendHeader(output.buffer());
  }
  MessageArrays message;
  for (const std::int64_t key : loadedKeys(orders().at(options.order))) {
    VcmRetrieveAllData(key, message.characters.data(), message.numbers.data());
    table.append(output.buffer(), key, message);
    if (!output.lineDone()) {
      break;
    }
  }
  return output.finish(loaded);
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
  command->footer(kFooter);
  command->callback([options, &exitCode] { exitCode = list(*options); });
}

}  // namespace vcmtool
