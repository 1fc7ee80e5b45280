// A file of any lines expanded into messages as text; an input's first byte chooses how the disk behaves.
#include "DllExports/VCM/VcmDllVarsUtils/LineExpansion.h"

#include "support/Fuzzing.h"
#include "support/VirtualFiles.h"

using fuzz::require;

namespace {

std::string expanded(std::string_view content, std::int32_t expectedCode = 0) {
  fuzz::VirtualFiles& files = fuzz::virtualFiles();
  files.contents["folder/in"] = content;
  const std::int32_t code = vcm::Vcm1LineToMany("folder\\in", "out");
  require(code == expectedCode, "the code is that of the disk");
  return files.contents["out"];
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::VirtualFiles& files = fuzz::virtualFiles();
  fuzz::Input input(data, size);
  const auto behaviour = input.take<std::uint8_t>();
  const std::string_view content = input.takeRest();

  files = {};
  const std::string whole = expanded(content);
  require(content.empty() == whole.empty() && (whole.empty() || whole.back() == '\n'),
          "lines make lines");
  // Read by pieces it is the same, and what stands before does not depend on what follows.
  files.mostPerRead = std::size_t{behaviour} + 1;
  require(expanded(content) == whole, "short reads change nothing");
  const std::string_view first = content.substr(0, content.find('\n'));
  require(whole.starts_with(expanded(first)), "a line is expanded by itself");
  if (behaviour < whole.size()) {
    files.room = behaviour;
    constexpr std::int32_t kNoSpace = 28;  // ENOSPC
    require(expanded(content, kNoSpace).size() <= behaviour, "a full disk is reported");
  }
  return 0;
}
