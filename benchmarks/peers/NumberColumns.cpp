#include "NumberColumns.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "VCM/VcmFormats/DateText.h"

namespace {

// A field's notation is that of the zero it writes.
template <class Write>
Number numberOf(vcm::Column first, int width, Write write) {
  std::string zero(static_cast<std::size_t>(width), ' ');
  write(zero.data());
  const std::size_t point = zero.find('.');
  const std::size_t exponent = zero.find('E');
  Number number{first.index(), zero.size(), Notation::integer, 0};
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

bool isText(const vcm::Field& field) {
  vcm::VcmRecord record;
  return field.read("x", record);
}

// A date is five numbers: year, day of the year, hour, minute, seconds.
void addDate(std::size_t first, std::vector<Number>& numbers) {
  numbers.push_back({first, 4, Notation::integer, 0});
  numbers.push_back({first + 5, 3, Notation::integer, 0});
  numbers.push_back({first + 18, 2, Notation::integer, 0});
  numbers.push_back({first + 21, 2, Notation::integer, 0});
  numbers.push_back({first + 24, 6, Notation::fixed, 3});
}

}  // namespace

NumberColumns::NumberColumns() {
  const std::array<std::pair<std::string_view, std::size_t*>, 5> places = {{
      {"eciPos x", &eciPos},
      {"eciVel x", &eciVel},
      {"bTerm", &bTerm},
      {"wtdRms", &wtdRms},
      {"covMtxSize", &covMtxSize},
  }};
  for (const vcm::LineLayout& line : vcm::kMultiLineLayout) {
    std::vector<Number>& numbers = lines.emplace_back();
    for (const vcm::Field& field : line.fields) {
      if (isText(field)) {
        continue;
      }
      for (const auto& [name, place] : places) {
        if (field.name == name) {
          *place = covariance + numbers.size();
        }
      }
      if (field.width == vcm::kCalendarDateWidth) {
        addDate(field.first.index(), numbers);
      } else {
        numbers.push_back(numberOf(field.first, field.width,
                                   [&field](char* out) { field.write(vcm::VcmRecord(), out); }));
      }
    }
    covariance += numbers.size();
  }
  for (int i = 0; i < vcm::kValuesPerRow; ++i) {
    row.push_back(numberOf(vcm::covarianceColumn(i), vcm::CovarianceFormat::width,
                           [](char* out) { vcm::CovarianceFormat::write(0.0, out); }));
  }
}
