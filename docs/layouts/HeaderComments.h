// What the public header says of its constants.
#ifndef HEADERCOMMENTS_H
#define HEADERCOMMENTS_H

#include <map>
#include <string>
#include <string_view>

struct Constant {
  std::string name;
  std::string comment;
};

// The header's constants whose names begin so, by value.
std::multimap<int, Constant> constants(const char* header, const std::string& prefix);

// A comment without what it says of place and format.
std::string meaningIn(const std::string& comment);

// What the header says of the member that a row of a layout is named for; empty for dates, whose
// comment tells of days, and for what has no constant.
std::string meaningOf(std::string_view rowName, const char* header);

#endif
