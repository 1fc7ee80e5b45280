#include "support/VirtualFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

#include "Host/HostCore.h"

namespace {

struct OpenVirtualFile {
  std::string& content;
  std::size_t at = 0;
};

ssize_t readSome(void* cookie, char* buffer, std::size_t size) {
  auto& file = *static_cast<OpenVirtualFile*>(cookie);
  const std::size_t n =
      std::min({size, file.content.size() - file.at, fuzz::virtualFiles().mostPerRead});
  std::memcpy(buffer, file.content.data() + file.at, n);
  file.at += n;
  return static_cast<ssize_t>(n);
}

ssize_t writeSome(void* cookie, const char* buffer, std::size_t size) {
  std::size_t& room = fuzz::virtualFiles().room;
  const std::size_t n = std::min(size, room);
  static_cast<OpenVirtualFile*>(cookie)->content.append(buffer, n);
  room -= room == SIZE_MAX ? 0 : n;
  if (n < size) {
    errno = ENOSPC;
  }
  return static_cast<ssize_t>(n);
}

int seek(void* cookie, off64_t* offset, int whence) {
  auto& file = *static_cast<OpenVirtualFile*>(cookie);
  if (whence == SEEK_CUR) {
    *offset += static_cast<off64_t>(file.at);
  }
  file.at = std::min(static_cast<std::size_t>(*offset), file.content.size());
  return 0;
}

int close(void* cookie) {
  const std::unique_ptr<OpenVirtualFile> file(static_cast<OpenVirtualFile*>(cookie));
  return 0;
}

}  // namespace

fuzz::VirtualFiles& fuzz::virtualFiles() {
  static VirtualFiles files;
  return files;
}

// Stands in front of the host's own: the library is linked into the fuzzers as an archive.
extern "C" std::int32_t fileopen(const char* name, const std::int32_t* nameLength,
                                 const std::int32_t* mode, std::FILE** stream) {
  constexpr std::int32_t kCreate = 0;
  constexpr std::int32_t kRead = 1;
  *stream = nullptr;
  std::string path(name, static_cast<std::size_t>(*nameLength));
  path.erase(path.find_last_not_of(' ') + 1);
  auto& contents = fuzz::virtualFiles().contents;
  if (*mode == kRead && !contents.contains(path)) {
    return ENOENT;
  }
  std::string& content = contents[path];
  if (*mode == kCreate) {
    content.clear();
  }
  auto file = std::make_unique<OpenVirtualFile>(OpenVirtualFile{content});
  *stream =
      fopencookie(file.release(), *mode == kRead ? "r" : "w", {readSome, writeSome, seek, close});
  return 0;
}
