#include "files/UnfinishedFile.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <climits>
#include <csignal>

namespace vcmtool {

namespace {

// Never freed: a signal may come in another thread than the one that is done with the file.
std::array<char, PATH_MAX> nameOfFile;
std::atomic<const char*> unfinished = nullptr;
static_assert(std::atomic<const char*>::is_always_lock_free);

// The signal's usual action is in place again and takes over as this returns.
extern "C" void removeAndEnd(int signal) {
  if (const char* const name = unfinished.load(); name != nullptr) {
    unlink(name);
  }
  raise(signal);
}

void handle(int signal) {
  struct sigaction action {};
  if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) {
    action = {};
    action.sa_handler = removeAndEnd;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(signal, &action, nullptr);
  }
}

}  // namespace

void removeOnSignal(const std::string& name) {
  if (name.size() >= nameOfFile.size()) {
    return;  // nor can it be opened
  }
  nameOfFile[name.copy(nameOfFile.data(), name.size())] = '\0';
  unfinished = nameOfFile.data();
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    handle(signal);
  }
}

void leaveOnSignal() { unfinished = nullptr; }

}  // namespace vcmtool
