// The commands of the program, one file each.
#ifndef VCM_TOOLS_COMMAND_H
#define VCM_TOOLS_COMMAND_H

#include "terminal/ExitCode.h"

namespace CLI {
class App;
}

namespace vcmtool {

// Each adds its command. When the command line names it, the command runs as parsing ends and
// leaves its exit code behind.
void addCheckCommand(CLI::App& program, ExitCode& exitCode);
void addConvertCommand(CLI::App& program, ExitCode& exitCode);
void addDiffCommand(CLI::App& program, ExitCode& exitCode);
void addExpandCommand(CLI::App& program, ExitCode& exitCode);
void addGetCommand(CLI::App& program, ExitCode& exitCode);
void addListCommand(CLI::App& program, ExitCode& exitCode);
void addSetCommand(CLI::App& program, ExitCode& exitCode);
void addShowCommand(CLI::App& program, ExitCode& exitCode);

}  // namespace vcmtool

#endif
