#include "Markdown.h"

#include <array>
#include <charconv>
#include <iostream>
#include <sstream>

void begin(std::string_view section) { std::cout << "<!-- generated: " << section << " -->\n"; }
void end() { std::cout << "<!-- end -->\n"; }

std::string formatOf(const vcm::Look& look, int width) {
  std::ostringstream text;
  text << look.kind;
  if (look.kind == "text") {
    text << ' ';
  }
  if (look.kind == "i" || look.kind == "f" || look.kind == "e" || look.kind == "text") {
    text << width;
  }
  if (look.kind == "f" || look.kind == "e") {
    text << '.' << look.decimals;
  }
  return text.str();
}

std::string shown(std::string_view value) {
  value = value.substr(0, value.find_last_not_of(' ') + 1);
  return value.empty() ? std::string() : "`" + std::string(value) + "`";
}

std::string shortest(double value) {
  std::array<char, 32> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}
