// The plain main of a fuzzer: runs each file of the given files and directories as one input.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "support/Fuzzing.h"

namespace {

int replayed = 0;

void replay(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> input(std::istreambuf_iterator<char>(file), {});
  std::cout << path.filename().string() << std::endl;  // flushed: what fails is the last one named
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
  ++replayed;
}

}  // namespace

int main(int count, char** arguments) {
  for (int i = 1; i < count; ++i) {
    if (std::filesystem::is_directory(arguments[i])) {
      for (const auto& entry : std::filesystem::recursive_directory_iterator(arguments[i])) {
        if (entry.is_regular_file()) {
          replay(entry.path());
        }
      }
    } else {
      replay(arguments[i]);
    }
  }
  std::cout << replayed << " inputs replayed\n";
  return replayed > 0 ? 0 : 1;  // a corpus that is not found is no success
}
