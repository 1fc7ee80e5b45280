#include "support/Messages.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

Lines goldenMessage() {
  std::ifstream file(VCM_SAMPLES_DIR "/catalogue.vcm");
  Lines lines(40);
  for (std::string& line : lines) {
    std::getline(file, line);
  }
  lines.erase(lines.begin(), lines.begin() + 4);  // the heading
  return lines;
}

std::string goldenOneLine() {
  std::ifstream file(VCM_SAMPLES_DIR "/catalogue.one");
  std::string line;
  std::getline(file, line);
  return line;
}

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

Lines bareForm(Lines message) {
  for (const int line : {12, 11, 8, 7, 5, 3, 2, 1}) {
    message.erase(message.begin() + line - 1);
  }
  for (std::string& line : message) {
    line.erase(0, 3);
  }
  return message;
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
