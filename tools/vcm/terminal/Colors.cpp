#include "terminal/Colors.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cstdlib>

#include "terminal/Screen.h"

namespace vcmtool {

namespace {

// Set while the command line is parsed, before anything is written.
std::string chosen = kColorsOnTerminals;

std::string_view environment(const char* name) {
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets any
  return value == nullptr ? std::string_view() : value;
}

bool allowsColors() {
  const std::string_view terminal = environment("TERM");
  return environment("NO_COLOR").empty() && !terminal.empty() && terminal != "dumb";
}

bool hasColors(int descriptor) {
  // Asked for every line, and stays what it is.
  static const bool allowed = allowsColors();
  static const bool isOutputTerminal = isTerminal(STDOUT_FILENO);
  static const bool isErrorTerminal = isTerminal(STDERR_FILENO);
  return chosen == kColorsAlways ||
         (chosen == kColorsOnTerminals && allowed &&
          (descriptor == STDOUT_FILENO ? isOutputTerminal : isErrorTerminal));
}

// Orange and blue differ for every eye, on dark and on light.
std::string_view codeOf(Style style) {
  switch (style) {
    case Style::removed:
    case Style::warning:
      return "38;5;166";
    case Style::added:
      return "38;5;32";
    case Style::title:
      return "1";
    case Style::error:
      break;
  }
  return "1;35";
}

}  // namespace

void chooseColors(const std::string& when) { chosen = when; }

std::string styled(int descriptor, Style style, std::string_view text) {
  return hasColors(descriptor) ? fmt::format("\x1b[{}m{}\x1b[0m", codeOf(style), text)
                               : std::string(text);
}

}  // namespace vcmtool
