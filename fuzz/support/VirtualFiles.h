// Files in memory instead of the host's: what an input names never reaches the disk.
#ifndef FUZZ_SUPPORT_VIRTUALFILES_H
#define FUZZ_SUPPORT_VIRTUALFILES_H

#include <cstdint>
#include <map>
#include <string>

namespace fuzz {

struct VirtualFiles {
  std::map<std::string, std::string, std::less<>> contents;  // by name
  std::size_t mostPerRead = SIZE_MAX;
  std::size_t room = SIZE_MAX;  // bytes that can be written until the disk is full
};

// What the host's `fileopen` opens, in the fuzzers.
VirtualFiles& virtualFiles();

}  // namespace fuzz

#endif
