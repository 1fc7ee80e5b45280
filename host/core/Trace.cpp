// The trace log: one line at a time to the application's sink, or to the file of HOST_TRACE_LOG.
#include "host/HostTrace.h"

#include <fcntl.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <mutex>

#include "Host/HostCore.h"
#include "Text.h"

namespace {

// Guards everything below, and is held while a sink runs.
std::mutex traceLock;

// A failed open counts as opened, to nowhere: it is not tried again for each line.
bool fileChosen = false;
int fileDescriptor = -1;

void chooseFile() {
  fileChosen = true;
  // Only an application that changes its environment from several threads is at risk here, as it is
  // with whatever else it calls. NOLINTNEXTLINE(concurrency-mt-unsafe)
  const char* name = std::getenv("HOST_TRACE_LOG");
  if (name == nullptr || *name == '\0') {
    return;
  }
  if (std::string_view{name} == "-") {
    fileDescriptor = STDERR_FILENO;
  } else {
    fileDescriptor = open(name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
  }
}

void leaveFile() {
  if (fileDescriptor > STDERR_FILENO) {
    close(fileDescriptor);
  }
  fileDescriptor = -1;
  fileChosen = false;
}

void appendToFile(std::int32_t /*isError*/, const char* text, std::int32_t length,
                  void* /*context*/) {
  if (!fileChosen) {
    chooseFile();
  }
  if (fileDescriptor < 0) {
    return;
  }
  const std::string_view line = hostcore::withoutTrailing(hostcore::viewOf(text, &length), " ");
  char newLine = '\n';
  // One system call a line, so that the lines of several processes do not mix. What a full disk
  // refuses is lost: there is nowhere to report it.
  const std::array<iovec, 2> parts{
      {{const_cast<char*>(line.data()), line.size()}, {&newLine, sizeof newLine}}};
  while (writev(fileDescriptor, parts.data(), static_cast<int>(parts.size())) < 0 &&
         errno == EINTR) {
  }
}

HostTraceSink currentSink = appendToFile;
void* currentContext = nullptr;

void trace(std::int32_t isError, const char* text, const std::int32_t* length) {
  const std::lock_guard<std::mutex> guard(traceLock);
  currentSink(isError, text, static_cast<std::int32_t>(hostcore::sizeOf(length)), currentContext);
}

}  // namespace

void hosttracesink(HostTraceSink sink, void* context) {
  const std::lock_guard<std::mutex> guard(traceLock);
  leaveFile();
  currentSink = sink != nullptr ? sink : appendToFile;
  currentContext = context;
}

void tracelogerror(const char* text, const std::int32_t* length) { trace(1, text, length); }
void traceloginfo(const char* text, const std::int32_t* length) { trace(0, text, length); }
