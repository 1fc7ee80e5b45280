#include "terminal/Screen.h"

#include <fmt/format.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <mutex>
#include <string>
#include <system_error>

#include "terminal/Colors.h"

namespace vcmtool {

namespace {

// Guards the progress line and what is written past it.
std::mutex screenLock;

std::size_t progressLength = 0;

int writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(descriptor, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

// What standard error does not take is lost: there is nowhere to report it.
void writeError(std::string_view text) { static_cast<void>(writeAll(STDERR_FILENO, text)); }

void eraseUnderLock() {
  if (progressLength > 0) {
    writeError(fmt::format("\r{:{}}\r", "", progressLength));
    progressLength = 0;
  }
}

}  // namespace

bool isTerminal(int descriptor) { return isatty(descriptor) != 0; }

int terminalColumns(int descriptor) {
  constexpr int kUsual = 80;
  winsize size{};
  return ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kUsual;
}

int writeOutput(int descriptor, std::string_view text) {
  if (!isTerminal(descriptor)) {
    return writeAll(descriptor, text);  // which may wait for a reader: progress goes on
  }
  const std::lock_guard<std::mutex> guard(screenLock);
  eraseUnderLock();
  return writeAll(descriptor, text);
}

void printMessage(std::string_view line) {
  constexpr std::string_view kOwnName = "vcm:";
  const std::size_t styledLength = line.starts_with(kOwnName) ? kOwnName.size() : 0;
  const std::string name =
      styledLength == 0 ? "" : styled(STDERR_FILENO, Style::error, line.substr(0, styledLength));
  const std::lock_guard<std::mutex> guard(screenLock);
  eraseUnderLock();
  // In one piece, so that the lines of several programs do not mix.
  writeError(fmt::format("{}{}\n", name, line.substr(styledLength)));
}

void printFailure(std::string_view fileName, int code) {
  printMessage(fmt::format("vcm: {}: {}", fileName, std::generic_category().message(code)));
}

void showProgress(std::string_view line) {
  const std::lock_guard<std::mutex> guard(screenLock);
  // The blanks cover what a longer line left.
  writeError(fmt::format("\r{:<{}}", line, progressLength));
  progressLength = line.size();
}

void eraseProgress() {
  const std::lock_guard<std::mutex> guard(screenLock);
  eraseUnderLock();
}

}  // namespace vcmtool
