#include "Inputs.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "Screen.h"

namespace vcmtool {

namespace {

CLI::Validator standardInput() {
  return {[](std::string& name) {
            if (name == "-") {
              name = "/dev/stdin";
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
  command.add_flag("-q,--quiet", inputs.quiet, "No information, only what went wrong");
}

void reportUnopened(const std::string& file, int code) {
  // The code does not tell this file from one that its cards name.
  std::error_code ignored;
  const bool itself =
      access(file.c_str(), R_OK) != 0 || std::filesystem::is_directory(file, ignored);
  printFailure(itself ? file : file + ": a file that it names", code);
}

}  // namespace vcmtool
