// Files in memory instead of the host's: what an input names never reaches the disk.
#ifndef FUZZ_SUPPORT_VIRTUALFILES_H
#define FUZZ_SUPPORT_VIRTUALFILES_H

#include <map>
#include <string>

#include "support/MemoryFile.h"

namespace fuzz {

// What the host's `fileopen` finds and makes in the fuzzers, by name.
std::map<std::string, MemoryFile>& virtualFiles();

}  // namespace fuzz

#endif
