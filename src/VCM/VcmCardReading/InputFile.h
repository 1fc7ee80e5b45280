// An input file, opened so that it can be read twice.
#ifndef VCM_VCMCARDREADING_INPUTFILE_H
#define VCM_VCMCARDREADING_INPUTFILE_H

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>

namespace vcm {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

// Why a stream failed just now, never 0: not every stream that a host hands out says why.
inline std::int32_t streamError() { return errno != 0 ? errno : EIO; }

// Opens a file for reading. What cannot be rewound (a pipe, a terminal) is copied to a temporary file
// first. Returns 0, or the nonzero code of an open or a copy that failed: then `file` is null.
std::int32_t openInputFile(std::string_view name, OpenFile& file);

// The same for a name that stands in another file, which may come from a stranger: a device or a pipe,
// which might never end, is refused with EINVAL before it is opened.
std::int32_t openNamedFile(std::string_view name, OpenFile& file);

}  // namespace vcm

#endif
