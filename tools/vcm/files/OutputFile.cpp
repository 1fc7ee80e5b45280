#include "files/OutputFile.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <system_error>
#include <utility>

#include "files/UnfinishedFile.h"

namespace vcmtool {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFileMode = 0666;  // less the process's mask

int errnoUnless(bool good) { return good ? 0 : errno; }

// A name that no other program chooses at the same time.
fs::path temporaryBeside(const fs::path& place) {
  std::random_device random;
  return place.parent_path() / fmt::format(".vcm-{:08x}{:08x}", random(), random());
}

// Standard output by another name: what it holds already, or a shell's append, must stay.
bool isStandardOutput(const struct stat& file) {
  struct stat output {};
  return fstat(STDOUT_FILENO, &output) == 0 && output.st_dev == file.st_dev &&
         output.st_ino == file.st_ino;
}

// Where a link leads that leads to nothing yet; any other name is its own.
fs::path linkTarget(const fs::path& name) {
  std::error_code error;
  const fs::path target = fs::read_symlink(name, error);
  return error ? name : name.parent_path() / target;
}

}  // namespace

OutputFile::~OutputFile() {
  if (descriptor_ >= 0) {
    close(descriptor_);
  }
  if (!temporary_.empty()) {
    unlink(temporary_.c_str());
    leaveOnSignal();
  }
}

int OutputFile::open(const std::string& name) {
  struct stat status {};
  if (name == "-" || (stat(name.c_str(), &status) == 0 && isStandardOutput(status))) {
    descriptor_ = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    return errnoUnless(descriptor_ >= 0);
  }
  if (stat(name.c_str(), &status) != 0) {
    return errno == ENOENT && !name.empty() ? openBeside(linkTarget(name)) : errno;
  }
  if (!S_ISREG(status.st_mode)) {
    descriptor_ = ::open(name.c_str(), O_WRONLY | O_CLOEXEC);
    return errnoUnless(descriptor_ >= 0);
  }
  // A file that may not be written is not replaced either.
  if (access(name.c_str(), W_OK) != 0) {
    return errno;
  }
  // A link stays a link: the file that it leads to is replaced.
  std::error_code error;
  const fs::path place = fs::canonical(name, error);
  if (error) {
    return error.value();
  }
  if (const int code = openBeside(place); code != 0) {
    return code;
  }
  return errnoUnless(fchmod(descriptor_, status.st_mode & ALLPERMS) == 0);
}

int OutputFile::openBeside(const fs::path& place) {
  fs::path temporary = temporaryBeside(place);
  removeOnSignal(temporary);
  descriptor_ = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
  if (descriptor_ < 0) {
    leaveOnSignal();
    return errno;
  }
  place_ = place;
  temporary_ = std::move(temporary);
  return 0;
}

int OutputFile::commit() {
  // Some file systems report a failed write as late as here.
  if (close(std::exchange(descriptor_, -1)) != 0) {
    return errno;
  }
  if (place_.empty()) {
    return 0;
  }
  if (rename(temporary_.c_str(), place_.c_str()) != 0) {
    return errno;
  }
  leaveOnSignal();
  temporary_.clear();
  return 0;
}

}  // namespace vcmtool
