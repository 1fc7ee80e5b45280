// Prints the sections of docs/file-formats.md that show the layouts, out of the very tables that readers
// and writers are loops over. What a field means comes from the public header's comments.
//
//   print_layouts HEADER CATALOGUE
#include <array>
#include <cstdint>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "HeaderComments.h"
#include "Markdown.h"
#include "VCM/VcmCardReading/CardType.h"
#include "VCM/VcmFormats/ArrayLayout.h"
#include "VCM/VcmFormats/ExpansionLayout.h"
#include "VCM/VcmFormats/FieldTable.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmFormats/OneLineLayout.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/OneLineWriter.h"
#include "VCM/VcmTree/Store.h"
#include "vcm/Vcm.h"

namespace {

using namespace vcm;

void fieldRow(std::string_view place, const Field& field, const VcmRecord& record,
              const char* header) {
  std::array<char, 80> text;
  const int length = field.write(record, text.data());
  std::cout << place << "| " << field.first.number << "-" << field.first.number + field.width - 1
            << " | " << field.name << " | " << formatOf(field.look, field.width) << " | ";
  if (field.look.impliedDecimals > 0) {
    std::cout << field.look.impliedDecimals;
  }
  const std::string meaning = meaningOf(field.name, header);
  std::cout << " | " << shown({text.data(), static_cast<std::size_t>(length)}) << " | " << meaning
            << (meaning.empty() || field.look.note.empty() ? "" : "; ") << field.look.note
            << " |\n";
}

// The columns by which a card is taken for a one-line message, found by changing each.
void printOneLineRule(const VcmRecord& record) {
  std::string line(kOneLineWidth, ' ');
  Vcm2Vcm1Line(record, line);
  const char* between = "| ";
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char was = std::exchange(line[i], '#');
    if (!isOneLineMessage(line)) {
      std::cout << between << (was == ' ' ? "a blank" : "`" + std::string(1, was) + "`")
                << " in column " << i + 1;
      between = ", ";
    }
    line[i] = was;
  }
  std::cout << ", blanks in front counted | a one-line message |\n";
}

void printCards(const VcmRecord& record) {
  begin("cards");
  std::cout << "| It begins with | It is |\n|---|---|\n| `" << kHeader
            << "` | the first line of a multi-line message |\n";
  printOneLineRule(record);
  std::cout << "| `" << kBareFirstLine << "` | the first line of a bare message |\n|";
  for (const std::string_view keyword : kDirectives) {
    std::cout << (keyword == kDirectives.front() ? " `" : ", `") << keyword << '`';
  }
  std::cout << " | a directive card: names a further file |\n| `" << kKeyMode
            << "` | the card that switches keys to direct addresses |\n";
  end();
}

void printMultiLine(const VcmRecord& record, const char* header) {
  begin("multi-line example");
  std::array<char, VCM_TEXT_LENGTH> area;
  std::int32_t lines = 0;
  Vcm2VcmLines(record, area, &lines);
  std::cout << "```text\n";
  for (std::int32_t i = 0; i < lines; ++i) {
    const std::string_view line(area.data() + i * kMessageLineWidth, kMessageLineWidth);
    std::cout << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
  }
  std::cout << "```\n";
  end();

  begin("multi-line labels");
  std::cout << "| Line | Columns | Label | In the bare form |\n|---:|---|---|---|\n";
  int number = 0;
  for (const LineLayout& line : kMultiLineLayout) {
    std::cout << "| " << ++number << " | ";
    if (line.isRead()) {
      std::cout << line.label.first.number << "-" << line.label.first.number + line.label.width - 1
                << " | `" << line.labelText() << '`';
    } else {
      std::cout << " | not looked at";
    }
    std::cout << " | " << (line.inBareForm ? "yes" : "") << " |\n";
  }
  end();

  begin("multi-line fields");
  std::cout << "| Line | Columns | Field | Format | Implied | Example | |\n"
               "|---:|---|---|---|---:|---|---|\n";
  number = 0;
  for (const LineLayout& line : kMultiLineLayout) {
    ++number;
    for (const Field& field : line.fields) {
      fieldRow("| " + std::to_string(number) + " ", field, record, header);
    }
  }
  for (int i = 0; i < kValuesPerRow; ++i) {
    const int first = covarianceColumn(i).number;
    std::cout << "| " << kMessageLines + 1 << " to " << kMaxMessageLines << " | " << first << "-"
              << first + CovarianceFormat::width - 1 << " | covariance | "
              << formatOf(CovarianceFormat::look, CovarianceFormat::width) << " | "
              << CovarianceFormat::look.impliedDecimals << " | | |\n";
  }
  end();
}

void printOneLine(const VcmRecord& record, const char* header) {
  begin("one-line example");
  std::array<char, kOneLineWidth> line;
  Vcm2Vcm1Line(record, line);
  std::cout << "```text\n" << std::string_view(line.data(), line.size()) << "\n```\n";
  end();

  begin("one-line fields");
  std::cout << "| Columns | Field | Format | Implied | Example | |\n|---|---|---|---:|---|---|\n";
  for (const Field& field : kOneLineFields) {
    fieldRow("", field, record, header);
  }
  const int first = kOneLineCovariance.number;
  std::cout << "| " << first << "-"
            << first + kCovarianceValues * OneLineCovarianceFormat::width - 1 << " | covariance | "
            << kCovarianceValues << " of "
            << formatOf(OneLineCovarianceFormat::look, OneLineCovarianceFormat::width)
            << " | | | read as numbers between blanks |\n";
  end();

  begin("one-line characters");
  std::cout << "| Columns | Characters |\n|---|---|\n";
  for (const Literal& literal : kOneLineLiterals) {
    std::cout << "| " << literal.first.number << " | " << shown(literal.text) << " |\n";
  }
  end();
}

// False when the header says another format of a field than the table has.
bool printSingleFields(std::int64_t key, const char* header) {
  bool agrees = true;
  begin("single fields");
  std::cout << "| Index | Constant | Format | Example | |\n|---:|---|---|---|---|\n";
  for (const auto& [index, constant] : constants(header, "VCM_FIELD_")) {
    const SingleField* field = findSingleField(index);
    if (field == nullptr) {
      continue;  // a length
    }
    std::array<char, VCM_FIELD_VALUE_LENGTH> text;
    VcmGetField(key, index, text.data());
    const std::string format = formatOf(field->look, field->width);
    if (!constant.comment.starts_with(format + ":")) {
      std::cerr << constant.name << " is " << format << ", its comment: " << constant.comment
                << '\n';
      agrees = false;
    }
    std::cout << "| " << index << " | `" << constant.name << "` | " << format << " | "
              << shown({text.data(), text.size()}) << " | " << meaningIn(constant.comment)
              << " |\n";
  }
  end();
  return agrees;
}

void printArrays(const VcmRecord& record, const char* header) {
  const auto numberNames = constants(header, "VCM_NUM_");
  begin("number array");
  std::cout << "| Position | Constant | Example | |\n|---:|---|---:|---|\n";
  for (const ArrayNumber& number : kArrayNumberLayout) {
    std::cout << "| " << number.position << " | ";
    const auto named = numberNames.find(static_cast<int>(number.position));
    if (named != numberNames.end()) {
      std::cout << '`' << named->second.name << '`';
    }
    std::cout << " | " << shortest(number.get(record)) << " | "
              << (named != numberNames.end() ? named->second.comment : "") << " |\n";
  }
  const auto covariance = numberNames.find(static_cast<int>(kArrayCovariance));
  std::cout << "| " << kArrayCovariance << " | `" << covariance->second.name << "` | | "
            << covariance->second.comment << " |\n";
  end();

  const auto textNames = constants(header, "VCM_CHAR_");
  begin("character array");
  std::cout << "| Positions | Constant | Example | |\n|---|---|---|---|\n";
  for (const ArrayText& text : kArrayTextLayout) {
    const Constant& constant = textNames.find(static_cast<int>(text.position))->second;
    std::cout << "| " << text.position << "-" << text.position + text.width - 1 << " | `"
              << constant.name << "` | " << shown(text.get(record)) << " | "
              << meaningIn(constant.comment) << " |\n";
  }
  end();
}

void printExpansion(std::string_view section, std::span<const ExpansionLine> lines) {
  begin(section);
  std::cout << "```text\n";
  for (const ExpansionLine& line : lines) {
    std::cout << line.pattern << '\n';
  }
  std::cout << "```\n";
  end();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3 || VcmLoadFile(argv[2]) != 0) {
    std::cerr << "usage: print_layouts HEADER CATALOGUE\n";
    return 2;
  }
  const std::int64_t key = VcmGetSatKey(1);
  VcmRecord record;
  VcmFindRec(mediaVcm, key, record);
  printCards(record);
  printMultiLine(record, argv[1]);
  printOneLine(record, argv[1]);
  printArrays(record, argv[1]);
  printExpansion("full expansion", kFullForm);
  printExpansion("short expansion", kShortForm);
  return printSingleFields(key, argv[1]) ? 0 : 1;
}
