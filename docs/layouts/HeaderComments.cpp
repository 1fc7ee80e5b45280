#include "HeaderComments.h"

#include <cctype>
#include <fstream>
#include <regex>

std::multimap<int, Constant> constants(const char* header, const std::string& prefix) {
  std::multimap<int, Constant> found;
  const std::regex row("#define (" + prefix + R"(\w+) (\d+) +/\*\*< (.*) \*/)");
  std::ifstream file(header);
  std::smatch match;
  for (std::string line; std::getline(file, line);) {
    if (std::regex_match(line, match, row)) {
      found.insert({std::stoi(match[2]), {match[1], match[3]}});
    }
  }
  return found;
}

std::string meaningIn(const std::string& comment) {
  static const std::regex place(R"(^(to \d+|\d+|[ief][\d.]+|g17|text \d+|date): )");
  return std::regex_replace(comment, place, "");
}

std::string meaningOf(std::string_view rowName, const char* header) {
  std::string name(rowName.substr(0, rowName.find(' ')));
  for (char& c : name) {
    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  for (const char* prefix : {"VCM_NUM_", "VCM_CHAR_"}) {
    for (const auto& [value, constant] : constants(header, prefix)) {
      if (constant.name == prefix + name && !constant.comment.starts_with("days since")) {
        return meaningIn(constant.comment);
      }
    }
  }
  return {};
}
