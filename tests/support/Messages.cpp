#include "support/Messages.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace {

// Lines of a sample, counted from 1.
Lines sampleLines(const char* name, int first, int last) {
  std::ifstream file(std::string(VCM_SAMPLES_DIR) + "/" + name);
  Lines lines;
  std::string line;
  for (int number = 1; number <= last && std::getline(file, line); ++number) {
    if (number >= first) {
      lines.push_back(line);
    }
  }
  return lines;
}

}  // namespace

Lines goldenMessage() { return sampleLines("catalogue.vcm", 5, 40); }

std::string goldenOneLine() { return sampleLines("catalogue.one", 1, 1).at(0); }

void putAt(std::string& line, int column, std::string_view text) {
  const auto at = static_cast<std::size_t>(column - 1);
  if (line.size() < at + text.size()) {
    line.resize(at + text.size(), ' ');
  }
  line.replace(at, text.size(), text);
}

Lines withText(Lines message, int line, int column, std::string_view text) {
  putAt(message[static_cast<std::size_t>(line - 1)], column, text);
  return message;
}

Lines bareForm(const Lines& message) {
  Lines bare;
  for (std::size_t number = 1; number <= message.size(); ++number) {
    constexpr std::string_view kDropped = "\1\2\3\5\7\10\13\14";
    if (kDropped.find(static_cast<char>(number)) == std::string_view::npos) {
      bare.push_back(message[number - 1].substr(3));
    }
  }
  return bare;
}

std::string joined(const Lines& lines, std::string_view lineEnd) {
  std::string text;
  for (const std::string& line : lines) {
    text.append(line).append(lineEnd);
  }
  return text;
}

std::vector<std::string_view> views(const Lines& lines) { return {lines.begin(), lines.end()}; }

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TemporaryFile::TemporaryFile(std::string_view content) : path_("/tmp/vcm-test-XXXXXX") {
  const int file = mkstemp(path_.data());
  if (file < 0 || write(file, content.data(), content.size()) < 0 || close(file) != 0) {
    throw std::runtime_error("no temporary file");
  }
}

TemporaryFile::~TemporaryFile() { std::remove(path_.c_str()); }
