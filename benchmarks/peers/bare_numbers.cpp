// The peer of loading and saving: the same numbers in the same columns through std::from_chars and
// std::to_chars, and nothing else. No label is looked at, nothing is checked or kept.
// usage: bare_numbers INPUT OUTPUT
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "Checksum.h"
#include "Measuring.h"
#include "NumberColumns.h"
#include "VCM/VcmTree/MultiLineWriter.h"

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// ---- reading ------------------------------------------------------------------------------------

class Lines {
 public:
  explicit Lines(std::FILE* file) : file_(file), block_(2 * kBlock) {}

  bool next(std::string_view& line) {
    const char* end = find();
    if (end == nullptr) {
      refill();
      end = find();
      if (end == nullptr) {
        return false;
      }
    }
    line = {begin_, end};
    begin_ = end + 1;
    return true;
  }

 private:
  const char* find() const {
    return static_cast<const char*>(
        std::memchr(begin_, '\n', static_cast<std::size_t>(end_ - begin_)));
  }
  void refill() {
    const auto left = static_cast<std::size_t>(end_ - begin_);
    std::memmove(block_.data(), begin_, left);
    begin_ = block_.data();
    end_ = begin_ + left + std::fread(block_.data() + left, 1, kBlock, file_);
  }

  std::FILE* file_;
  std::vector<char> block_;
  const char* begin_ = block_.data();
  const char* end_ = begin_;
};

double readNumber(const Number& number, std::string_view line) {
  const char* at = line.data() + number.first;
  const char* const end = at + std::min(number.width, line.size() - number.first);
  while (at != end && *at == ' ') {
    ++at;
  }
  if (number.notation == Notation::integer) {
    int value = 0;
    std::from_chars(at, end, value);
    return value;
  }
  double value = 0.0;
  std::from_chars(at, end, value);
  return value;
}

// Reads one message into `out`, which has room for the largest, and returns how many numbers it has.
std::size_t readMessage(const NumberColumns& columns, Lines& lines, double* out) {
  std::size_t count = 0;
  std::string_view line;
  for (const std::vector<Number>& numbers : columns.lines) {
    if (!lines.next(line)) {
      return 0;
    }
    for (const Number& number : numbers) {
      out[count++] = readNumber(number, line);
    }
  }
  const std::size_t end = count + columns.covarianceCount(out);
  while (count < end && lines.next(line)) {
    for (std::size_t i = 0; i < columns.row.size() && count < end; ++i) {
      out[count++] = readNumber(columns.row[i], line);
    }
  }
  return count;
}

template <class Take>
void readMessages(const NumberColumns& columns, const char* name, Take&& take) {
  const File file(std::fopen(name, "rb"));
  Lines lines(file.get());
  std::string_view heading;
  for (std::size_t i = 0; i < vcm::kFileHeading.size(); ++i) {
    lines.next(heading);
  }
  std::vector<double> message(columns.covariance + vcm::kCovarianceValues);
  while (const std::size_t count = readMessage(columns, lines, message.data())) {
    take(std::span<const double>(message.data(), count));
  }
}

void addTo(Checksum& sum, const NumberColumns& columns, std::span<const double> message) {
  sum.addMessage(message.subspan(columns.eciPos).first<3>(),
                 message.subspan(columns.eciVel).first<3>(), message[columns.bTerm],
                 message[columns.wtdRms], message.subspan(columns.covariance));
}

// ---- writing ------------------------------------------------------------------------------------

class Output {
 public:
  explicit Output(std::FILE* file) : file_(file), buffer_(kBlock + kLongestMessage) {}
  ~Output() { flush(); }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  void number(const Number& number, double value) {
    char* const end = buffer_.data() + buffer_.size();
    switch (number.notation) {
      case Notation::integer:
        at_ = std::to_chars(at_, end, static_cast<std::int32_t>(value)).ptr;
        break;
      case Notation::fixed:
        at_ = std::to_chars(at_, end, value, std::chars_format::fixed, number.precision).ptr;
        break;
      case Notation::scientific:
        at_ = std::to_chars(at_, end, value, std::chars_format::scientific, number.precision).ptr;
        break;
    }
    *at_++ = ' ';
  }
  void endLine() { *at_++ = '\n'; }
  void endMessage() {
    if (at_ - buffer_.data() >= static_cast<std::ptrdiff_t>(kBlock)) {
      flush();
    }
  }

 private:
  static constexpr std::size_t kLongestMessage = 8192;
  void flush() {
    std::fwrite(buffer_.data(), 1, static_cast<std::size_t>(at_ - buffer_.data()), file_);
    at_ = buffer_.data();
  }

  std::FILE* file_;
  std::vector<char> buffer_;
  char* at_ = buffer_.data();
};

// Returns where the next message's values begin.
const double* writeMessage(const NumberColumns& columns, const double* message, Output& output) {
  const double* value = message;
  for (const std::vector<Number>& numbers : columns.lines) {
    for (const Number& number : numbers) {
      output.number(number, *value++);
    }
    output.endLine();
  }
  const double* const end = value + columns.covarianceCount(message);
  while (value != end) {
    for (std::size_t i = 0; i < columns.row.size() && value != end; ++i) {
      output.number(columns.row[i], *value++);
    }
    output.endLine();
  }
  output.endMessage();
  return value;
}

void writeMessages(const NumberColumns& columns, std::span<const double> values, const char* name) {
  const File file(std::fopen(name, "wb"));
  Output output(file.get());
  for (const double* at = values.data(); at != values.data() + values.size();) {
    at = writeMessage(columns, at, output);
  }
}

// What was written must read back as the same numbers.
bool holds(const char* name, std::span<const double> values) {
  const File file(std::fopen(name, "rb"));
  for (const double expected : values) {
    double value = 0.0;
    if (std::fscanf(file.get(), "%lf", &value) != 1 || value != expected) {  // NOLINT(cert-err34-c)
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: bare_numbers INPUT OUTPUT\n";
    return 2;
  }
  const char* const input = argv[1];
  const char* const output = argv[2];
  const NumberColumns columns;

  Checksum sum;
  int messages = 0;
  report("read", secondsOf([&] {
           readMessages(columns, input, [&](std::span<const double> message) {
             addTo(sum, columns, message);
             ++messages;
           });
         }));
  reportCheck("messages", messages);
  reportCheck("sum", sum.value());

  std::vector<double> values;
  readMessages(columns, input, [&values](std::span<const double> message) {
    values.insert(values.end(), message.begin(), message.end());
  });
  report("write", secondsOf([&] { writeMessages(columns, values, output); }));
  if (!holds(output, values)) {
    std::cerr << "bare_numbers: what was written does not read back\n";
    return 1;
  }
  return 0;
}
