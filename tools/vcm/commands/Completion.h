// What may stand next on a command line, for shells that complete it.
#ifndef VCM_TOOLS_COMPLETION_H
#define VCM_TOOLS_COMPLETION_H

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CLI {
class App;
}  // namespace CLI

namespace vcmtool {

// What the last of the words, which stand behind the program's name and may be cut short, can become.
// Empty where it is the name of a file, none where nothing is known that fits. Behind "--option=" it is
// the value alone. All is taken from what the program says of its commands in the help.
std::optional<std::vector<std::string>> completionsOf(const CLI::App& program,
                                                      std::span<const std::string> words);

}  // namespace vcmtool

#endif
