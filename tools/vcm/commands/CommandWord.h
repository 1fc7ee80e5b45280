// The word of a command line that should name a command.
#ifndef VCM_TOOLS_COMMANDWORD_H
#define VCM_TOOLS_COMMANDWORD_H

#include <string>
#include <vector>

namespace CLI {
class App;
}  // namespace CLI

namespace vcmtool {

// "help COMMAND" asks for what "COMMAND --help" does.
std::vector<std::string> withHelpAsOption(std::vector<std::string> words);

// What is wrong with a first word that is neither a command nor an option, or an empty text.
std::string unknownCommand(const CLI::App& program, const std::vector<std::string>& words);

}  // namespace vcmtool

#endif
