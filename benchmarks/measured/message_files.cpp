// Loads, saves and converts through the shared library.
// usage: message_files lines INPUT OUTPUT | one-line INPUT OUTPUT CONVERTED | load INPUT
#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Checksum.h"
#include "Measuring.h"
#include "VCM/VcmTypes/VcmRecord.h"
#include "vcm/Vcm.h"

namespace {

void load(const char* input) {
  VcmInit();
  report("load", secondsOf([input] { VcmLoadFile(input); }));
}

void reportPeakMemory() {
  std::ifstream status("/proc/self/status");
  constexpr std::string_view kLabel = "VmHWM:";
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(kLabel)) {
      report("peak-bytes", std::strtod(line.c_str() + kLabel.size(), nullptr) * 1024.0);
    }
  }
}

void checkLoaded() {
  const int32_t count = VcmGetCount();
  std::vector<int64_t> keys(static_cast<std::size_t>(count));
  VcmGetLoaded(VCM_ORDER_LOADED, keys.data());
  Checksum sum;
  std::array<char, VCM_CHAR_ARRAY_LENGTH> texts;
  std::array<double, VCM_NUM_ARRAY_LENGTH> numbers;
  for (const int64_t key : keys) {
    VcmRetrieveAllData(key, texts.data(), numbers.data());
    const double* const first = numbers.data();
    const int size = static_cast<int>(first[VCM_NUM_COVMTXSIZE]);
    sum.addMessage(
        std::span<const double, 3>(first + VCM_NUM_ECIPOS, 3),
        std::span<const double, 3>(first + VCM_NUM_ECIVEL, 3), first[VCM_NUM_BTERM],
        first[VCM_NUM_WTDRMS],
        {first + VCM_NUM_COVARIANCE, static_cast<std::size_t>(vcm::covarianceValueCount(size))});
  }
  reportCheck("messages", count);
  reportCheck("sum", sum.value());
}

// There and back in memory; the texts that come out go into a file, for the comparison to look at.
void convert(const char* input, const char* output, std::size_t count) {
  std::vector<std::string> lines(count);
  std::ifstream file(input);
  for (std::string& line : lines) {
    std::getline(file, line);
    line.resize(VCM_ONE_LINE_LENGTH, ' ');
  }
  std::array<char, VCM_TEXT_LENGTH> text;
  report("convert", secondsOf([&] {
           for (std::string& line : lines) {
             Vcm1LineToMultiLine(line.data(), text.data());
             VcmMultiLineTo1Line(text.data(), line.data());
           }
         }));
  std::ofstream result(output);
  for (const std::string& line : lines) {
    result << line << '\n';
  }
}

int usage() {
  std::cerr << "usage: message_files lines INPUT OUTPUT | one-line INPUT OUTPUT CONVERTED | "
               "load INPUT\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    return usage();
  }
  const std::string_view work = argv[1];
  const char* const input = argv[2];
  if (work == "load" && argc == 3) {
    load(input);
    reportPeakMemory();
    report("record-bytes", sizeof(vcm::VcmRecord));
    reportCheck("messages", VcmGetCount());
  } else if (work == "lines" && argc == 4) {
    load(input);
    const char* const output = argv[3];
    report("save", secondsOf([output] { VcmSaveFile(output, 0); }));
    checkLoaded();
  } else if (work == "one-line" && argc == 5) {
    load(input);
    convert(input, argv[3], static_cast<std::size_t>(std::atol(argv[4])));
    checkLoaded();
  } else {
    return usage();
  }
  return 0;
}
