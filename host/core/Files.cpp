// Opening files under the host's names and modes.
#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <string>

#include "Host/HostCore.h"
#include "Text.h"

namespace {

// By mode number. Files stay with this process: a program it starts does not inherit them.
constexpr std::array<const char*, 3> kOpenModes{"wbe", "rbe", "abe"};

// Zero, or the reason why the open stream is not to be used. A directory opens for reading without
// complaint, and only its first read would fail.
int refusal(std::FILE* stream) {
  struct stat status {};
  if (fstat(fileno(stream), &status) != 0) {
    return errno;
  }
  return S_ISDIR(status.st_mode) ? EISDIR : 0;
}

}  // namespace

std::int32_t fileopen(const char* name, const std::int32_t* nameLength, const std::int32_t* mode,
                      std::FILE** stream) {
  *stream = nullptr;
  if (*mode < 0 || *mode >= static_cast<std::int32_t>(kOpenModes.size())) {
    return EINVAL;
  }
  const std::string path{
      hostcore::withoutTrailing(hostcore::upToNul(hostcore::viewOf(name, nameLength)), " ")};
  if (path.empty()) {
    return ENOENT;
  }
  std::FILE* opened = std::fopen(path.c_str(), kOpenModes[static_cast<std::size_t>(*mode)]);
  if (opened == nullptr) {
    return errno;
  }
  if (const int code = refusal(opened); code != 0) {
    std::fclose(opened);
    return code;
  }
  *stream = opened;
  return 0;
}
