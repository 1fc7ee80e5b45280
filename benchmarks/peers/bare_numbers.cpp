// The peer of loading and saving: the same numbers in the same columns through std::from_chars and
// std::to_chars, and nothing else. No label is looked at, nothing is checked or kept.
// usage: bare_numbers INPUT OUTPUT
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Checksum.h"
#include "Measuring.h"
#include "VCM/VcmFormats/DateText.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/MultiLineWriter.h"

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// ---- where numbers stand, from the library's tables ---------------------------------------------

enum class Notation { integer, fixed, scientific };

struct Number {
  std::size_t first;
  std::size_t width;
  Notation notation;
  int precision;
};

// A field's notation is that of the zero it writes.
Number numberOf(const vcm::Field& field) {
  std::string zero(static_cast<std::size_t>(field.width), ' ');
  field.write(vcm::VcmRecord(), zero.data());
  const std::size_t point = zero.find('.');
  const std::size_t exponent = zero.find('E');
  Number number{field.first.index(), zero.size(), Notation::integer, 0};
  if (exponent != std::string::npos) {
    // 0.ddd there is d.dd here.
    number.notation = Notation::scientific;
    number.precision = static_cast<int>(exponent - point) - 2;
  } else if (point != std::string::npos) {
    number.notation = Notation::fixed;
    number.precision = static_cast<int>(zero.size() - point) - 1;
  }
  return number;
}

// A date is five numbers: year, day of the year, hour, minute, seconds.
void addDate(std::size_t first, std::vector<Number>& numbers) {
  numbers.push_back({first, 4, Notation::integer, 0});
  numbers.push_back({first + 5, 3, Notation::integer, 0});
  numbers.push_back({first + 18, 2, Notation::integer, 0});
  numbers.push_back({first + 21, 2, Notation::integer, 0});
  numbers.push_back({first + 24, 6, Notation::fixed, 3});
}

struct Layout {
  std::vector<std::vector<Number>> lines;
  std::vector<Number> row;  // of the covariance
  std::size_t numbers = 0;  // of a message without its covariance
  std::size_t eciPos = 0, eciVel = 0, bTerm = 0, wtdRms = 0, covMtxSize = 0;
};

Layout makeLayout() {
  Layout layout;
  const auto remember = [&layout](std::string_view name, std::string_view wanted, std::size_t& at) {
    if (name == wanted && at == 0) {
      at = layout.numbers;
    }
  };
  for (const vcm::LineLayout& line : vcm::kMultiLineLayout) {
    std::vector<Number>& numbers = layout.lines.emplace_back();
    for (const vcm::Field& field : line.fields) {
      vcm::VcmRecord record;
      if (field.read("x", record)) {
        continue;  // a text
      }
      remember(field.name, "eciPos x", layout.eciPos);
      remember(field.name, "eciVel x", layout.eciVel);
      remember(field.name, "bTerm", layout.bTerm);
      remember(field.name, "wtdRms", layout.wtdRms);
      remember(field.name, "covMtxSize", layout.covMtxSize);
      const std::size_t before = numbers.size();
      if (field.width == vcm::kCalendarDateWidth) {
        addDate(field.first.index(), numbers);
      } else {
        numbers.push_back(numberOf(field));
      }
      layout.numbers += numbers.size() - before;
    }
  }
  for (int i = 0; i < vcm::kValuesPerRow; ++i) {
    constexpr int kPrecision = 4;
    layout.row.push_back({vcm::covarianceColumn(i).index(), vcm::CovarianceFormat::width,
                          Notation::scientific, kPrecision});
  }
  return layout;
}

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

std::size_t covarianceOf(const Layout& layout, const double* message) {
  return static_cast<std::size_t>(
      vcm::covarianceValueCount(static_cast<int>(message[layout.covMtxSize])));
}

// Reads one message into `out`, which has room for the largest, and returns how many numbers it has.
std::size_t readMessage(const Layout& layout, Lines& lines, double* out) {
  std::size_t count = 0;
  std::string_view line;
  for (const std::vector<Number>& numbers : layout.lines) {
    if (!lines.next(line)) {
      return 0;
    }
    for (const Number& number : numbers) {
      out[count++] = readNumber(number, line);
    }
  }
  const std::size_t end = count + covarianceOf(layout, out);
  while (count < end && lines.next(line)) {
    for (std::size_t i = 0; i < layout.row.size() && count < end; ++i) {
      out[count++] = readNumber(layout.row[i], line);
    }
  }
  return count;
}

template <class Take>
void readMessages(const Layout& layout, const char* name, Take&& take) {
  const File file(std::fopen(name, "rb"));
  Lines lines(file.get());
  std::string_view heading;
  for (std::size_t i = 0; i < vcm::kFileHeading.size(); ++i) {
    lines.next(heading);
  }
  std::vector<double> message(layout.numbers + vcm::kCovarianceValues);
  while (const std::size_t count = readMessage(layout, lines, message.data())) {
    take(std::span<const double>(message.data(), count));
  }
}

void addTo(Checksum& sum, const Layout& layout, std::span<const double> message) {
  sum.addMessage(message.subspan(layout.eciPos).first<3>(),
                 message.subspan(layout.eciVel).first<3>(), message[layout.bTerm],
                 message[layout.wtdRms], message.subspan(layout.numbers));
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
const double* writeMessage(const Layout& layout, const double* message, Output& output) {
  const double* value = message;
  for (const std::vector<Number>& numbers : layout.lines) {
    for (const Number& number : numbers) {
      output.number(number, *value++);
    }
    output.endLine();
  }
  const double* const end = value + covarianceOf(layout, message);
  while (value != end) {
    for (std::size_t i = 0; i < layout.row.size() && value != end; ++i) {
      output.number(layout.row[i], *value++);
    }
    output.endLine();
  }
  output.endMessage();
  return value;
}

void writeMessages(const Layout& layout, std::span<const double> values, const char* name) {
  const File file(std::fopen(name, "wb"));
  Output output(file.get());
  for (const double* at = values.data(); at != values.data() + values.size();) {
    at = writeMessage(layout, at, output);
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
  const Layout layout = makeLayout();

  Checksum sum;
  int messages = 0;
  report("read", secondsOf([&] {
           readMessages(layout, input, [&](std::span<const double> message) {
             addTo(sum, layout, message);
             ++messages;
           });
         }));
  reportCheck("messages", messages);
  reportCheck("sum", sum.value());

  std::vector<double> values;
  readMessages(layout, input, [&values](std::span<const double> message) {
    values.insert(values.end(), message.begin(), message.end());
  });
  report("write", secondsOf([&] { writeMessages(layout, values, output); }));
  if (!holds(output, values)) {
    std::cerr << "bare_numbers: what was written does not read back\n";
    return 1;
  }
  return 0;
}
