#include "VCM/VcmCardReading/InputFile.h"

#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include "Host/HostCore.h"

namespace vcm {

namespace {

bool canBeRewound(std::FILE* file) { return std::fseek(file, 0, SEEK_CUR) == 0; }

// As fread; a signal that interrupts it ends nothing.
std::size_t readBlock(std::vector<char>& block, std::FILE* from) {
  std::size_t n = 0;
  do {
    std::clearerr(from);
    errno = 0;
    n = std::fread(block.data(), 1, block.size(), from);
  } while (n == 0 && std::ferror(from) != 0 && errno == EINTR);
  return n;
}

// Returns 0 or what went wrong with the copy.
int copyAll(std::FILE* from, std::FILE* to) {
  constexpr std::size_t kBlockSize = std::size_t{1} << 20;
  std::vector<char> block(kBlockSize);
  for (std::size_t n = 0; std::feof(from) == 0 && (n = readBlock(block, from)) > 0;) {
    if (std::fwrite(block.data(), 1, n, to) < n) {
      return streamError();
    }
  }
  return std::fflush(to) == 0 ? 0 : streamError();
}

}  // namespace

std::int32_t openInputFile(std::string_view name, OpenFile& file) {
  constexpr std::int32_t kRead = 1;
  const auto length = static_cast<std::int32_t>(name.size());
  std::FILE* stream = nullptr;
  if (const std::int32_t code = fileopen(name.data(), &length, &kRead, &stream); code != 0) {
    return code;
  }
  file.reset(stream);
  if (canBeRewound(stream)) {
    return 0;
  }
  OpenFile copy(std::tmpfile());
  const int code = copy == nullptr ? streamError() : copyAll(stream, copy.get());
  file = code == 0 ? std::move(copy) : nullptr;
  return code;
}

std::int32_t openNamedFile(std::string_view name, OpenFile& file) {
  struct stat status {};
  // What is not found, or is a directory, the host says itself.
  const bool found = stat(std::string(name).c_str(), &status) == 0;
  const bool fit = !found || S_ISREG(status.st_mode) || S_ISDIR(status.st_mode);
  return fit ? openInputFile(name, file) : EINVAL;
}

}  // namespace vcm
