// vcm expand: the columns of one-line messages, behind the labels of multi-line ones.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "DllExports/VCM/VcmDllVarsUtils/LineExpansion.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "commands/Command.h"
#include "commands/Inputs.h"
#include "files/OutputFile.h"
#include "terminal/Progress.h"
#include "terminal/Screen.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

constexpr const char* kFooter =
    R"(Text is copied as it stands: no number is read, nothing is checked, every line
counts as a message. Common name and designator are taken one column to the
right of where one-line messages have them: what is to be read again as
messages is a task for vcm convert.
A backslash in a name counts as a slash.

Examples:
  vcm expand today.one today.vcm
  zcat archive.one.gz | vcm expand - - | less)";

struct ExpandOptions {
  std::string input;
  std::string output;
};

std::string withSlashes(std::string name) {
  std::replace(name.begin(), name.end(), '\\', '/');
  return name;
}

// Copies a whole file. Returns 0 or an errno value.
int copy(std::FILE* from, int to) {
  constexpr std::size_t kBlockSize = std::size_t{1} << 20;
  std::vector<char> block(kBlockSize);
  std::rewind(from);
  for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), from)) > 0;) {
    if (const int code = writeOutput(to, {block.data(), count}); code != 0) {
      return code;
    }
  }
  return std::ferror(from) != 0 ? errno : 0;
}

int write(std::FILE* expanded, const std::string& name) {
  OutputFile output;
  if (const int code = output.open(name); code != 0) {
    return code;
  }
  if (const int code = copy(expanded, output.descriptor()); code != 0) {
    return code;
  }
  return output.commit();
}

ExitCode fail(const std::string& name, int code) {
  printFailure(name, code);
  return kFailed;
}

ExitCode expand(const ExpandOptions& options) {
  const std::string input = withSlashes(options.input);
  const std::string output = withSlashes(options.output);
  if (input.size() > VCM_FILE_NAME_LENGTH) {
    return fail(input, ENAMETOOLONG);
  }
  // The library begins its file anew, and would so empty one that standard output goes to: it gets
  // a file of its own.
  constexpr const char* kTemporary = "a temporary file";
  const vcm::OpenFile expanded(std::tmpfile());
  if (expanded == nullptr) {
    return fail(kTemporary, errno);
  }
  const std::string ownName = fmt::format("/dev/fd/{}", fileno(expanded.get()));
  const auto expandAll = [&] {
    Progress progress("Expanding", fileno(expanded.get()));
    progress.file(input);
    return vcm::Vcm1LineToMany(input, ownName);
  };
  if (const std::int32_t code = expandAll(); code != 0) {
    return fail(isReadable(input) ? kTemporary : input, code);
  }
  const int code = write(expanded.get(), output);
  // A reader that has seen enough is no failure.
  return code == 0 || code == EPIPE ? kFine : fail(output, code);
}

}  // namespace

void addExpandCommand(CLI::App& program, ExitCode& exitCode) {
  const auto options = std::make_shared<ExpandOptions>();
  CLI::App* const command = program.add_subcommand(
      "expand", "Copy the columns of one-line messages into multi-line ones");
  addInput(*command, "IN", options->input);
  command->add_option("OUT", options->output, "File to write; - is standard output")
      ->required()
      ->type_name("");
  command->footer(kFooter);
  command->callback([options, &exitCode] { exitCode = expand(*options); });
}

}  // namespace vcmtool
