#include "commands/Selection.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "VCM/VcmTree/Store.h"
#include "commands/Inputs.h"
#include "commands/Loading.h"
#include "terminal/Screen.h"

namespace vcmtool {

namespace {

constexpr std::int64_t kLargestNumber = 999'999'999;

std::vector<std::int64_t> selectedKeys(const Selection& selection) {
  std::vector<std::pair<double, std::int64_t>> found;
  {
    const vcm::StoreReading reading;
    vcm::StoreTree::walkUp(vcm::mediaVcm.root, [&](const vcm::VcmBinTree& node) {
      const vcm::VcmRecord* const record = vcm::recordOf(node);
      if (record != nullptr &&
          (selection.isKey() ? node.satKey : record->satNum) == selection.satellite) {
        found.emplace_back(vcm::inputDateToDs50(record->epoch), node.satKey);
      }
    });
  }
  std::sort(found.begin(), found.end());
  std::vector<std::int64_t> keys(found.size());
  std::transform(found.begin(), found.end(), keys.begin(),
                 [](const auto& message) { return message.second; });
  return keys;
}

std::string wholeNumber(const std::string& text) {
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  return read.ec == std::errc{} && read.ptr == end && number >= 0
             ? std::string()
             : text + " is no satellite number and no key";
}

}  // namespace

bool Selection::isKey() const { return satellite > kLargestNumber; }

void addSelection(CLI::App& command, Selection& selection) {
  addInput(command, "FILE", selection.file);
  command
      .add_option("SATELLITE", selection.satellite,
                  "Satellite number, or the key of one message as \"vcm list\" shows it")
      ->required()
      ->type_name("")
      ->check(wholeNumber);
  addQuiet(command, selection.quiet);
}

ExitCode loadSelection(const Selection& selection, std::vector<std::int64_t>& keys,
                       bool duplicatesAreBad) {
  const ExitCode loaded = loadFiles({{selection.file}, selection.quiet, duplicatesAreBad});
  if (loaded == kFailed) {
    return kFailed;
  }
  keys = selectedKeys(selection);
  if (keys.empty()) {
    printMessage(fmt::format("vcm: {}: no message of {} {}", selection.file,
                             selection.isKey() ? "key" : "satellite", selection.satellite));
    return kBadInput;
  }
  return loaded;
}

}  // namespace vcmtool
