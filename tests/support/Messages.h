// Golden messages, and ways to bend them.
#ifndef SUPPORT_MESSAGES_H
#define SUPPORT_MESSAGES_H

#include <string>
#include <string_view>
#include <vector>

using Lines = std::vector<std::string>;

// A multi-line message with a covariance of 9 x 9: 36 lines as they stand in a file.
Lines goldenMessage();
// The same satellite in the one-line form: 1500 characters.
std::string goldenOneLine();

// Puts a text into a line from a column (counted from 1) on.
void putAt(std::string& line, int column, std::string_view text);
// A message's line, counted from 1, with a text put into it.
Lines withText(Lines message, int line, int column, std::string_view text);

// A message without leads, header, common name, J2000 and Earth-fixed lines.
Lines bareForm(Lines message);

std::string joined(const Lines& lines, std::string_view lineEnd = "\n");
std::vector<std::string_view> views(const Lines& lines);

std::string readFile(const std::string& path);

// A file of its own for a test, with that content; removed with the object.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::string_view content = "");
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

#endif
