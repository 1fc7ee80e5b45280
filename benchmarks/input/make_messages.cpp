// Makes the input: the messages of a sample over and over, each with a satellite number of its own.
// usage: make_messages lines|one-line SAMPLE OUTPUT MESSAGES
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/MultiLineWriter.h"

namespace {

std::vector<std::string> linesOf(const char* name) {
  std::ifstream file(name);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    lines.push_back(line);
  }
  return lines;
}

const vcm::Field& fieldNamed(std::span<const vcm::Field> fields, std::string_view name) {
  return *std::find_if(fields.begin(), fields.end(),
                       [name](const vcm::Field& field) { return field.name == name; });
}

void write(const vcm::Field& field, const vcm::VcmRecord& record, std::string& line) {
  field.write(record, line.data() + field.first.index());
}

void makeLines(const std::vector<std::string>& sample, int messages, std::ostream& output) {
  const std::string_view header = vcm::kMultiLineLayout.front().text;
  constexpr std::size_t kNumberLine = 3;
  const vcm::Field& number = fieldNamed(vcm::kMultiLineLayout[kNumberLine].fields, "satNum");
  for (const std::string_view line : vcm::kFileHeading) {
    output << line << '\n';
  }
  auto next = sample.end();
  vcm::VcmRecord record;
  for (record.satNum = 1; record.satNum <= messages; ++record.satNum) {
    if (next == sample.end()) {
      next = std::find(sample.begin(), sample.end(), header);
    }
    const auto begin = next;
    next = std::find(begin + 1, sample.end(), header);
    for (auto line = begin; line != next; ++line) {
      std::string text = *line;
      if (line == begin + kNumberLine) {
        write(number, record, text);
      }
      output << text << '\n';
    }
  }
}

// Numbers start over where the columns are full: the milliseconds of the epoch tell the messages apart.
void makeOneLines(const std::vector<std::string>& sample, int messages, std::ostream& output) {
  constexpr int kNumbers = 99'999;
  const vcm::Field& number = fieldNamed(vcm::kOneLineFields, "satNum");
  const vcm::Field& seconds = fieldNamed(vcm::kOneLineFields, "epoch seconds");
  for (int i = 0; i < messages; ++i) {
    std::string text = sample[static_cast<std::size_t>(i) % sample.size()];
    vcm::VcmRecord record;
    record.satNum = i % kNumbers + 1;
    const int timesStartedOver = i / kNumbers;
    record.epoch.seconds = timesStartedOver * 0.001;
    write(number, record, text);
    if (timesStartedOver > 0) {
      write(seconds, record, text);
    }
    output << text << '\n';
  }
}

bool isOf(std::string_view form, const std::vector<std::string>& sample) {
  if (form == "lines") {
    return std::find(sample.begin(), sample.end(), vcm::kMultiLineLayout.front().text) !=
           sample.end();
  }
  constexpr std::size_t kLeast = 1000;
  return form == "one-line" && !sample.empty() &&
         std::all_of(sample.begin(), sample.end(),
                     [](const std::string& line) { return line.size() >= kLeast; });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) {
    std::cerr << "usage: make_messages lines|one-line SAMPLE OUTPUT MESSAGES\n";
    return 2;
  }
  const std::string_view form = argv[1];
  const std::vector<std::string> sample = linesOf(argv[2]);
  if (!isOf(form, sample)) {
    std::cerr << "make_messages: " << argv[2] << " holds no messages of the form " << form << '\n';
    return 2;
  }
  std::ofstream output(argv[3]);
  const int messages = std::atoi(argv[4]);
  if (form == "lines") {
    makeLines(sample, messages, output);
  } else {
    makeOneLines(sample, messages, output);
  }
  return output.flush() ? 0 : 1;
}
