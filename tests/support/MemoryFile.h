// A file in memory, which behaves as badly as it is told.
#ifndef SUPPORT_MEMORYFILE_H
#define SUPPORT_MEMORYFILE_H

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <string>

struct MemoryFile {
  std::string content;
  std::size_t limit = SIZE_MAX;  // where it cannot be read or written any further
  std::size_t step = SIZE_MAX;   // how much it gives at a time
  bool rewinds = true;

  // As often as wanted, also at once; returns 0, as the host's `fileopen` does. The file must live as long
  // as its streams.
  std::int32_t open(std::FILE** stream, const char* mode = "r") {
    const cookie_io_functions_t functions{read, write, rewinds ? seek : nullptr, close};
    *stream = fopencookie(new Cursor{*this}, mode, functions);
    return 0;
  }

 private:
  struct Cursor {
    MemoryFile& file;
    std::size_t at = 0;
  };

  static ssize_t read(void* cookie, char* out, std::size_t size) {
    auto& [file, at] = *static_cast<Cursor*>(cookie);
    if (at >= file.limit) {
      errno = EIO;
      return -1;
    }
    size = file.content.copy(out, std::min({size, file.step, file.limit - at}), at);
    at += size;
    return static_cast<ssize_t>(size);
  }
  static ssize_t write(void* cookie, const char* text, std::size_t size) {
    MemoryFile& file = static_cast<Cursor*>(cookie)->file;
    size = std::min(size, file.limit - std::min(file.limit, file.content.size()));
    file.content.append(text, size);
    errno = 0;  // it does not say why
    return static_cast<ssize_t>(size);
  }
  static int seek(void* cookie, off64_t* offset, int whence) {
    auto& [file, at] = *static_cast<Cursor*>(cookie);
    *offset += static_cast<off64_t>(whence == SEEK_CUR ? at : 0);
    at = std::min(static_cast<std::size_t>(*offset), file.content.size());
    return 0;
  }
  static int close(void* cookie) {
    delete static_cast<Cursor*>(cookie);
    return 0;
  }
};

#endif
