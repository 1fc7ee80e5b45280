#include "messages/Designator.h"

#include <fmt/compile.h>

#include <cctype>
#include <cstdint>

#include "Host/HostCalendar.h"

namespace vcmtool {

std::string longDesignator(std::string_view intlDes) {
  constexpr std::size_t kYearDigits = 2;
  if (intlDes.size() <= kYearDigits || std::isdigit(static_cast<unsigned char>(intlDes[0])) == 0 ||
      std::isdigit(static_cast<unsigned char>(intlDes[1])) == 0) {
    return std::string(intlDes);
  }
  const std::int32_t year = (intlDes[0] - '0') * 10 + (intlDes[1] - '0');
  return fmt::format(FMT_COMPILE("{}-{}"), fixyr(&year), intlDes.substr(kYearDigits));
}

std::string shortDesignator(std::string_view designator) {
  constexpr std::size_t kCentury = 2;
  constexpr std::size_t kDash = 4;
  if (designator.size() > kDash) {
    std::string shorter(designator.substr(kCentury));
    shorter.erase(kDash - kCentury, 1);
    if (longDesignator(shorter) == designator) {
      return shorter;
    }
  }
  return std::string(designator);
}

}  // namespace vcmtool
