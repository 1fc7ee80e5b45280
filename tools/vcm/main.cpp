// vcm: VCM files on the command line.
#include <fmt/format.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <csignal>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "commands/Command.h"
#include "commands/CommandWord.h"
#include "commands/Completion.h"
#include "terminal/Colors.h"
#include "vcm/Vcm.h"

namespace {

constexpr const char* kExamples = R"(Examples:
  vcm list catalogue.vcm                      what is in a file
  vcm check catalogue.vcm                     what is wrong with it, line by line
  vcm show catalogue.vcm 13                   the messages of satellite 13
  vcm get catalogue.vcm 13 epoch bTerm        some of its fields
  vcm set a.vcm 13 bTerm=0.0012 -o b.vcm      a file with one of them changed
  vcm diff monday.vcm tuesday.vcm             what became of which message
  vcm convert today.one -o today.vcm          one-line messages to multi-line ones
  vcm convert a.vcm -o a.json --to json       everything, for other programs
  vcm expand today.one today.vcm              columns copied, nothing checked
  vcm help list                               more about a command
  python3 -m vcm plot catalogue.vcm           pictures, with the package python3-vcm

Files are read in every form but CSV; - is standard input.
Exit codes: 0 fine, 1 something in the input was bad or, for diff, different,
2 wrong usage or a file that cannot be read or written.)";

std::string versions() {
  std::array<char, VCM_INFO_LENGTH> info;
  VcmGetInfo(info.data());
  std::string_view library(info.data(), info.size());
  library = library.substr(0, library.find_last_not_of(' ') + 1);
  return fmt::format("vcm {}\n{}", VCM_PROGRAM_VERSION, library);
}

void addColors(CLI::App& command) {
  using namespace vcmtool;
  command.add_option_function<std::string>("--color", chooseColors, "When to use colours")
      ->check(CLI::IsMember({kColorsOnTerminals, kColorsAlways, kColorsNever}))
      ->type_name("WHEN")
      ->default_str(kColorsOnTerminals);
}

std::string usageError(const CLI::App* program, const CLI::Error& error) {
  const auto commands = program->get_subcommands();
  return fmt::format("{} {}\nTry: vcm {}--help\n",
                     vcmtool::styled(STDERR_FILENO, vcmtool::Style::error, "vcm:"), error.what(),
                     commands.empty() ? "" : commands.front()->get_name() + " ");
}

int complete(const CLI::App& program, std::span<const std::string> words) {
  const auto found = vcmtool::completionsOf(program, words);
  for (const std::string& word : found.value_or(std::vector<std::string>())) {
    std::cout << word << '\n';
  }
  return found ? vcmtool::kFine : vcmtool::kBadInput;
}

}  // namespace

int main(int argc, char** argv) {
  // A reader that went away, or a file that may not grow, is then what a write reports.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  VcmInit();

  vcmtool::ExitCode exitCode = vcmtool::kFine;
  CLI::App program("Works on files of SP Vector/Covariance Messages (VCMs).", "vcm");
  program.get_formatter()->label("SUBCOMMAND", "COMMAND");
  program.get_formatter()->label("SUBCOMMANDS", "COMMANDS");
  program.set_version_flag("--version", versions, "Show the versions of program and library");
  program.footer(kExamples);
  program.failure_message(usageError);
  for (const auto addCommand :
       {vcmtool::addListCommand, vcmtool::addCheckCommand, vcmtool::addShowCommand,
        vcmtool::addGetCommand, vcmtool::addSetCommand, vcmtool::addDiffCommand,
        vcmtool::addConvertCommand, vcmtool::addExpandCommand}) {
    addCommand(program, exitCode);
  }
  for (CLI::App* const command : program.get_subcommands({})) {
    addColors(*command);
  }

  // Not in the help: how the shell's completion asks what may stand next.
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (words.size() > 1 && words.front() == "--complete") {
    return complete(program, std::span(words).subspan(1));
  }
  try {
    std::vector<std::string> given = vcmtool::withHelpAsOption(words);
    if (const std::string wrong = vcmtool::unknownCommand(program, given); !wrong.empty()) {
      throw CLI::ValidationError(wrong);
    }
    std::reverse(given.begin(), given.end());  // as the parser wants them
    program.parse(std::move(given));
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? vcmtool::kFine : vcmtool::kFailed;
  }
  if (program.get_subcommands().empty()) {
    std::cerr << program.help();
    return vcmtool::kFailed;
  }
  return exitCode;
}
