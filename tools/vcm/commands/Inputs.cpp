#include "commands/Inputs.h"

#include <unistd.h>
#include <CLI/CLI.hpp>

#include <filesystem>
#include <system_error>

namespace vcmtool {

namespace {

CLI::Validator standardInput() {
  return {[](std::string& name) {
            if (name == "-") {
              name = kStandardInput;
            }
            return std::string();
          },
          ""};
}

}  // namespace

void addInputs(CLI::App& command, Inputs& inputs) {
  command.add_option("FILE", inputs.files, "Files to read; - is standard input")
      ->required()
      ->type_name("")
      ->transform(standardInput());
  addQuiet(command, inputs.quiet);
}

void addQuiet(CLI::App& command, bool& quiet) {
  command.add_flag("-q,--quiet", quiet, "No information, only what went wrong");
}

void addInput(CLI::App& command, const std::string& name, std::string& file) {
  command.add_option(name, file, "File to read; - is standard input")
      ->required()
      ->type_name("")
      ->transform(standardInput());
}

bool isReadable(const std::string& file) {
  std::error_code ignored;
  // As the library opens it: blanks at the end do not count.
  const std::string name = file.substr(0, file.find_last_not_of(' ') + 1);
  return access(name.c_str(), R_OK) == 0 && !std::filesystem::is_directory(name, ignored);
}

}  // namespace vcmtool
