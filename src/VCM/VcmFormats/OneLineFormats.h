// How values stand in a one-line message that stand differently anywhere else.
#ifndef VCM_VCMFORMATS_ONELINEFORMATS_H
#define VCM_VCMFORMATS_ONELINEFORMATS_H

#include <cstdint>
#include <string_view>

#include "VCM/VcmFormats/Field.h"
#include "VCM/VcmTypes/InputDate.h"

namespace vcm {

// One number with a blank before or after it, no implied decimals. A blank field leaves the value.
template <int Width, int Digits>
struct FreeForm {
  static constexpr int width = Width;
  static constexpr Look look{"e", Digits, 0, "read wherever it stands in its columns"};
  static void write(double value, char* out) { writeScientific<Width, Digits>(out, value); }
  static bool read(std::string_view text, double& value) {
    return takeScientific<Width, Digits>(text, value) || isAllBlank(text) ||
           readListed(text, value);
  }
};

// "89-021F" for 89021F.
struct HyphenatedDesignator {
  static constexpr int width = 9;
  static constexpr Look look{"yy-piece"};
  static void write(const FixedText<8>& value, char* out) {
    copyPadded(value.view().substr(0, 2), out, 2);
    out[2] = '-';
    copyPadded(value.view().substr(2), out + 3, 6);
  }
  static bool read(std::string_view text, FixedText<8>& value) {
    const FixedText<width> whole(text);
    value.assign(whole.view().substr(0, 2));
    value.assignAt(2, whole.view().substr(3));
    return true;
  }
};

// A size that no matrix has is unreadable.
struct CovarianceSize : Integer<2> {
  static constexpr Look look{"i", 0, 0, "unreadable above 9"};
  static bool read(std::string_view text, std::int32_t& value) {
    std::int32_t size = 0;
    if (!Integer::read(text, size) || size > kCovarianceDimension) {
      return false;
    }
    value = size;
    return true;
  }
};

// The part of a date that a format of its own writes.
template <auto Part, class Format>
struct DatePart {
  static constexpr int width = Format::width;
  static constexpr Look look = Format::look;
  static void write(const InputDate& date, char* out) { Format::write(date.*Part, out); }
  static bool read(std::string_view text, InputDate& date) {
    return Format::read(text, date.*Part);
  }
};

// The UT1 rate is multiplied here, where the multi-line form divides: the last digit can tell.
struct Ut1RateTimes1000 : MillisecondRate<6, 3> {
  static void write(double value, char* out) { writeFixed<width, 3>(out, value * 1000.0); }
};

}  // namespace vcm

#endif
