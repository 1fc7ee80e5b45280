// The file that a command writes.
#ifndef VCM_TOOLS_OUTPUTFILE_H
#define VCM_TOOLS_OUTPUTFILE_H

#include <filesystem>
#include <string>

namespace vcmtool {

// A regular file appears whole or not at all: it grows under another name beside its place, and
// whatever has the name stays until commit(). What is not committed is removed. Anything else (a
// pipe, a device) is written directly.
class OutputFile {
 public:
  OutputFile() = default;
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // Both return 0 or an errno value. The name "-" is standard output.
  int open(const std::string& name);
  int commit();

  int descriptor() const { return descriptor_; }

 private:
  int openBeside(const std::filesystem::path& place);

  int descriptor_ = -1;
  std::filesystem::path place_;      // empty for what is written directly
  std::filesystem::path temporary_;  // empty when there is none to remove
};

}  // namespace vcmtool

#endif
