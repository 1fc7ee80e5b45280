// What every fuzzer needs: values out of an input, and a check that ends the process.
#ifndef FUZZ_SUPPORT_FUZZING_H
#define FUZZ_SUPPORT_FUZZING_H

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

// The entry that the fuzzing engine and the replaying main both call. Each fuzzer defines it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

// Values taken off the front of an input; what it lacks at the end is zero.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}

  bool empty() const { return rest_.empty(); }

  template <class Value>
  Value take() {
    Value value{};
    const std::string_view bytes = takeText(sizeof value);
    std::memcpy(&value, bytes.data(), bytes.size());
    return value;
  }
  // A number below a limit of up to 256.
  int takeBelow(int limit) { return take<std::uint8_t>() % limit; }
  std::string_view takeText(std::size_t size) {
    const std::string_view text = rest_.substr(0, size);
    rest_.remove_prefix(text.size());
    return text;
  }
  // Up to the next line end, which is dropped.
  std::string_view takeLine() {
    const std::string_view line = takeText(std::min(rest_.find('\n'), rest_.size()));
    takeText(1);
    return line;
  }
  std::string_view takeRest() { return takeText(rest_.size()); }

 private:
  std::string_view rest_;
};

// Ends the process when something that must hold does not.
inline void require(bool holds, const char* what) {
  if (!holds) {
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
  }
}

// A text argument in memory of just its size, so that a sanitizer sees a read past it: up to the first
// NUL, which is kept, or as long as the argument may be.
inline std::vector<char> argument(std::string_view text, std::size_t length) {
  text = text.substr(0, std::min(text.find('\0'), length));
  std::vector<char> exact(text.size() + (text.size() < length ? 1 : 0));
  std::copy(text.begin(), text.end(), exact.begin());
  return exact;
}

}  // namespace fuzz

#endif
