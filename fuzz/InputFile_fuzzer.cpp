// A file of anything, and the files that its directive cards name: loaded twice, saved, loaded again.
//
// An input is how many bytes one read gives, less one, then the files: a line "%%FILE name" begins the
// next one.
#include <cinttypes>

#include "Host/HostCore.h"
#include "host/HostTrace.h"
#include "support/ArrayForm.h"
#include "support/Fuzzing.h"
#include "support/VirtualFiles.h"

using fuzz::require;

namespace {

struct Counts {
  std::int32_t total, loaded, dup, bad;
};

// The last line of information that gives counts.
Counts lastCounts;

void listen(std::int32_t isError, const char* text, std::int32_t length, void* /*context*/) {
  Counts counts{};
  const std::string line(text, static_cast<std::size_t>(length));
  if (isError == 0 && std::sscanf(line.c_str(),
                                  "Total VCMs = %" SCNd32 ", Loaded = %" SCNd32 ", Dup = %" SCNd32
                                  ", Bad = %" SCNd32,
                                  &counts.total, &counts.loaded, &counts.dup, &counts.bad) == 4) {
    lastCounts = counts;
  }
}

std::int32_t load(const char* name) {
  const std::int32_t before = VcmGetCount();
  lastCounts = {-1, 0, 0, 0};
  const std::int32_t code = VcmLoadFile(name);
  const Counts counts = lastCounts;
  require((code == 0) == (counts.total >= 0), "a load that ends well says so");
  if (code == 0) {
    require(counts.total == counts.loaded + counts.dup + counts.bad, "the counts add up");
    require(VcmGetCount() == before + counts.loaded, "what is counted as loaded is stored");
  }
  return code;
}

void placeFiles(fuzz::Input input) {
  constexpr std::string_view kMark = "%%FILE ";
  auto& files = fuzz::virtualFiles();
  files.clear();
  const std::size_t step = std::size_t{input.take<std::uint8_t>()} + 1;
  MemoryFile* file = &files["main"];
  while (!input.empty()) {
    const std::string_view line = input.takeLine();
    if (line.starts_with(kMark)) {
      file = &files[std::string(line.substr(kMark.size()))];
    } else {
      file->content.append(line).push_back('\n');
      file->step = step;
    }
  }
}

std::vector<std::int64_t> keysInOrder(std::int32_t order) {
  std::vector<std::int64_t> keys(static_cast<std::size_t>(VcmGetCount()));
  VcmGetLoaded(order, keys.data());
  return keys;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::int32_t kOrdinaryKeys = 0;
  elsetkeymodeset(&kOrdinaryKeys);
  hosttracesink(listen, nullptr);
  placeFiles(fuzz::Input(data, size));

  load("main");
  const bool ordinary = elsetkeymodeget() == kOrdinaryKeys;
  const std::vector<std::int64_t> keys = keysInOrder(VCM_ORDER_KEY);
  for (const std::int64_t key : keys) {
    fuzz::requireStable(fuzz::ArrayForm::of(key));
  }
  if (load("main") == 0 && ordinary) {
    require(lastCounts.loaded == 0 && keysInOrder(VCM_ORDER_KEY) == keys,
            "a file that was loaded holds nothing but duplicates");
  }
  for (const std::int32_t order : {VCM_ORDER_SATELLITE, VCM_ORDER_LOADED}) {
    std::vector<std::int64_t> sorted = keysInOrder(order);
    std::sort(sorted.begin(), sorted.end());
    require(sorted == keysInOrder(VCM_ORDER_KEY), "every order lists every key");
  }
  require(VcmSaveFile("saved", 0) == 0, "anything can be saved");
  VcmRemoveAllSats();
  load("saved");
  VcmRemoveAllSats();
  return 0;
}
