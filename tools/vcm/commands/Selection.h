// The messages of one satellite of a file, for the commands that work on these.
#ifndef VCM_TOOLS_SELECTION_H
#define VCM_TOOLS_SELECTION_H

#include <cstdint>
#include <string>
#include <vector>

#include "terminal/ExitCode.h"

namespace CLI {
class App;
}  // namespace CLI

namespace vcmtool {

struct Selection {
  std::string file;
  bool quiet = false;
  std::int64_t satellite = 0;  // its number or, where that is too large for one, a message's key

  bool isKey() const;
};

// Adds the arguments FILE and SATELLITE, and --quiet.
void addSelection(CLI::App& command, Selection& selection);

// Loads the file and gives the keys of the selected messages, by epoch. They are none when the file
// cannot be read or has no such message: then the user has been told and the exit code says so.
ExitCode loadSelection(const Selection& selection, std::vector<std::int64_t>& keys,
                       bool duplicatesAreBad = false);

}  // namespace vcmtool

#endif
