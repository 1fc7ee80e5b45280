#include "commands/CommandWord.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>

#include "commands/NearestName.h"

namespace vcmtool {

std::vector<std::string> withHelpAsOption(std::vector<std::string> words) {
  if (!words.empty() && words.front() == "help") {
    words.erase(words.begin());
    words.emplace_back("--help");
  }
  return words;
}

std::string unknownCommand(const CLI::App& program, const std::vector<std::string>& words) {
  if (words.empty() || words.front().starts_with('-')) {
    return {};
  }
  const std::string& word = words.front();
  std::vector<std::string_view> names = {"help"};
  for (const CLI::App* const command : program.get_subcommands({})) {
    names.emplace_back(command->get_name());
  }
  if (std::find(names.begin() + 1, names.end(), word) != names.end()) {
    return {};
  }
  constexpr std::string_view kPictures =
      "; python3 -m vcm plot, of the package python3-vcm, draws messages";
  return fmt::format("{} is no command{}", word,
                     word == "plot" ? kPictures : nearestName(word, names));
}

}  // namespace vcmtool
