#include "Saving.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <thread>
#include <vector>

#include "Screen.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

// As much as the library writes at once. A pipe that cannot have it is slower, not worse.
constexpr int kBlockSize = 1 << 20;

// Copies all that comes out of `source`. What `target` does not take is dropped, so that the other
// side never waits for ever.
int copyAll(int source, int target) {
  std::vector<char> block(kBlockSize);
  int result = 0;
  for (;;) {
    const ssize_t count = read(source, block.data(), block.size());
    if (count > 0) {
      if (result == 0) {
        result = writeAll(target, {block.data(), static_cast<std::size_t>(count)});
      }
    } else if (count == 0) {
      return result;
    } else if (errno != EINTR) {
      return errno;
    }
  }
}

}  // namespace

int saveMessages(int descriptor) {
  // The library does not say when a write fails. So it writes into a pipe, which takes everything,
  // and the file is written here.
  std::array<int, 2> ends;
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    return errno;
  }
  const auto [readEnd, writeEnd] = ends;
  fcntl(writeEnd, F_SETPIPE_SZ, kBlockSize);
  int copied = 0;
  std::thread copier([&copied, source = readEnd, descriptor] {
    copied = copyAll(source, descriptor);
    close(source);
  });
  constexpr std::int32_t kCreate = 0;
  const std::int32_t saved = VcmSaveFile(fmt::format("/dev/fd/{}", writeEnd).c_str(), kCreate);
  close(writeEnd);
  copier.join();
  return saved != 0 ? saved : copied;
}

}  // namespace vcmtool
