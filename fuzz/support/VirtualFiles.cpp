#include "support/VirtualFiles.h"

#include "Host/HostCore.h"

std::map<std::string, MemoryFile>& fuzz::virtualFiles() {
  static std::map<std::string, MemoryFile> files;
  return files;
}

// Stands in front of the host's own: the library is linked into the fuzzers as an archive.
std::int32_t fileopen(const char* name, const std::int32_t* nameLength, const std::int32_t* mode,
                      std::FILE** stream) {
  constexpr std::int32_t kCreate = 0;
  constexpr std::int32_t kRead = 1;
  std::string path(name, static_cast<std::size_t>(*nameLength));
  path.erase(path.find_last_not_of(' ') + 1);
  auto& files = fuzz::virtualFiles();
  *stream = nullptr;
  if (*mode == kRead && !files.contains(path)) {
    return ENOENT;
  }
  MemoryFile& file = files[path];
  if (*mode == kCreate) {
    file.content.clear();
  }
  return file.open(stream, *mode == kRead ? "r" : "w");
}
