#include "commands/Findings.h"

#include <unistd.h>

#include <algorithm>
#include <iterator>

#include "messages/JsonReading.h"

namespace vcmtool {

namespace {

using vcm::MessageOutcome;

// Without what says who reports it about which message.
std::string_view reasonOf(std::string_view line, std::string_view messagePrefix) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  for (const std::string_view reporter :
       {std::string_view("ReadVCMFrFileUnit: "), std::string_view("ValidateVcmValues: "),
        std::string_view("AddRecToMem: "), messagePrefix}) {
    if (line.starts_with(reporter)) {
      line.remove_prefix(reporter.size());
    }
  }
  return line;
}

}  // namespace

Tally& Tally::operator+=(const Tally& other) {
  loaded += other.loaded;
  duplicate += other.duplicate;
  bad += other.bad;
  unreadable += other.unreadable;
  return *this;
}

bool Findings::reason(std::string_view line) {
  if (inMessage_) {
    reasons_.emplace_back(reasonOf(line, jsonMessagePrefix(file_, firstLine_)));
  }
  return inMessage_;
}

void Findings::file(std::string_view name) { file_ = name; }

void Findings::message(std::int64_t line) {
  progress_.count();
  firstLine_ = line;
  inMessage_ = true;
  reasons_.clear();
}

void Findings::unreadable(std::int64_t line, std::string_view field) {
  ++tally_.unreadable;
  write(line, Style::warning, "warning: cannot read ", field);
}

void Findings::outcome(std::int64_t line, MessageOutcome outcome) {
  inMessage_ = false;
  switch (outcome) {
    case MessageOutcome::loaded:
      ++tally_.loaded;
      break;
    case MessageOutcome::duplicate:
      ++tally_.duplicate;
      write(firstLine_, Style::warning, "warning: ", "duplicate of a message already read");
      break;
    case MessageOutcome::bad:
      ++tally_.bad;
      writeReasons(line);
      break;
    case MessageOutcome::refused:
      ++tally_.bad;
      writeReasons(firstLine_);
      break;
  }
}

void Findings::writeReasons(std::int64_t line) {
  for (const std::string& reason : reasons_) {
    write(line, Style::error, "", reason);
  }
}

void Findings::write(std::int64_t line, Style style, std::string_view prefix,
                     std::string_view text) {
  const std::string place = styled(STDOUT_FILENO, style, fmt::format("{}:{}:", file_, line));
  fmt::format_to(std::back_inserter(output_.buffer()), "{} {}{}\n", place, prefix, text);
  output_.lineDone();
}

}  // namespace vcmtool
