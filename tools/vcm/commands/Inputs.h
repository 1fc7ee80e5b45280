// The files that a command reads.
#ifndef VCM_TOOLS_INPUTS_H
#define VCM_TOOLS_INPUTS_H

#include <string>
#include <vector>

namespace CLI {
class App;
}  // namespace CLI

namespace vcmtool {

struct Inputs {
  std::vector<std::string> files;
  bool quiet = false;
  bool duplicatesAreBad = false;
};

// Adds the arguments FILE... and --quiet. The name "-" becomes that of standard input.
void addInputs(CLI::App& command, Inputs& inputs);
// The same one by one, for a command that reads one file.
void addInput(CLI::App& command, const std::string& name, std::string& file);
void addQuiet(CLI::App& command, bool& quiet);

inline constexpr const char* kStandardInput = "/dev/stdin";

// Whether a file of this name can be opened for reading.
bool isReadable(const std::string& file);
}  // namespace vcmtool

#endif
