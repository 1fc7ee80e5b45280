// The files that a command reads.
#ifndef VCM_TOOLS_INPUTS_H
#define VCM_TOOLS_INPUTS_H

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace vcmtool {

struct Inputs {
  std::vector<std::string> files;
  bool quiet = false;
};

// Adds the arguments FILE... and --quiet. The name "-" becomes that of standard input.
void addInputs(CLI::App& command, Inputs& inputs);

// Tells the user that loading `file` ended with this code of an open.
void reportUnopened(const std::string& file, int code);

}  // namespace vcmtool

#endif
