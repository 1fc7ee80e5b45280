// Threads that wait for satellites of their own while another thread loads the file.
//
//   read_while_loading MESSAGES SATELLITE...
//   read_while_loading samples/catalogue.vcm 1 299 300
#include <vcm/Vcm.h>

#include <array>
#include <atomic>
#include <charconv>
#include <cstdint>
#include <iostream>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

namespace {

std::string field(std::int64_t key, std::int32_t index) {
  std::array<char, VCM_FIELD_VALUE_LENGTH> value;
  if (VcmGetField(key, index, value.data()) != 0) {
    return "gone";  // another thread may have removed it
  }
  const std::string text(value.data(), value.size());
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// Looks for a satellite until it is there, or until nothing more will come.
std::string await(std::int32_t satNum, const std::atomic<bool>& loaded) {
  for (;;) {
    const bool last = loaded;
    const std::int64_t key = VcmGetSatKey(satNum);
    if (key != -1) {
      return field(key, VCM_FIELD_EPOCH) + " revolution " + field(key, VCM_FIELD_EPOCHREV);
    }
    if (last) {
      return "not in the file";
    }
    std::this_thread::yield();
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: read_while_loading MESSAGES SATELLITE...\n";
    return 2;
  }
  std::vector<std::int32_t> satellites;
  for (const std::string_view text : std::vector<std::string_view>(argv + 2, argv + argc)) {
    const char* const end = text.data() + text.size();
    std::int32_t& satellite = satellites.emplace_back();
    if (std::from_chars(text.data(), end, satellite) != std::from_chars_result{end, std::errc{}}) {
      std::cerr << text << " is no satellite number\n";
      return 2;
    }
  }
  VcmInit();
  std::vector<std::string> found(satellites.size());
  std::atomic<bool> loaded = false;
  std::int32_t result = 0;
  {
    std::vector<std::jthread> readers;
    for (std::size_t i = 0; i < satellites.size(); ++i) {
      readers.emplace_back([&, i] { found[i] = await(satellites[i], loaded); });
    }
    result = VcmLoadFile(argv[1]);
    loaded = true;
  }
  for (std::size_t i = 0; i < satellites.size(); ++i) {
    std::cout << "satellite " << satellites[i] << ": " << found[i] << '\n';
  }
  std::cout << VcmGetCount() << " messages loaded\n";
  return result == 0 ? 0 : 1;
}
