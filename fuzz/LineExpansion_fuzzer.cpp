// A file of any lines expanded into messages as text; an input's first byte chooses how the disk behaves.
#include "DllExports/VCM/VcmDllVarsUtils/LineExpansion.h"

#include "support/Fuzzing.h"
#include "support/VirtualFiles.h"

using fuzz::require;

namespace {

// What the file is expanded into, given what a read gives at most and what the disk has room for.
std::string expanded(std::string_view content, std::size_t step = SIZE_MAX,
                     std::size_t room = SIZE_MAX) {
  auto& files = fuzz::virtualFiles();
  files["folder/in"] = {std::string(content), SIZE_MAX, step};
  files["out"] = {"", room};
  const std::int32_t code = vcm::Vcm1LineToMany("folder\\in", "out");
  require((code == 0) == (files["out"].content.size() < room), "a full disk is reported");
  return files["out"].content;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::size_t little = input.take<std::uint8_t>();
  const std::string_view content = input.takeRest();
  const std::string whole = expanded(content);
  require(content.empty() == whole.empty() && (whole.empty() || whole.back() == '\n'),
          "lines make lines");
  // What stands before does not depend on what follows, nor on what comes at a time.
  require(expanded(content, little + 1) == whole, "short reads change nothing");
  require(whole.starts_with(expanded(content.substr(0, content.find('\n')))),
          "a line is expanded by itself");
  if (little < whole.size()) {
    require(expanded(content, SIZE_MAX, little) == whole.substr(0, little),
            "a full disk keeps the start");
  }
  return 0;
}
