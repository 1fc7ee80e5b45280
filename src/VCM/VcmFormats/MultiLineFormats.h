// How values stand in a multi-line message that stand differently anywhere else.
#ifndef VCM_VCMFORMATS_MULTILINEFORMATS_H
#define VCM_VCMFORMATS_MULTILINEFORMATS_H

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "Host/HostCalendar.h"
#include "VCM/VcmFormats/DateText.h"
#include "VCM/VcmFormats/Field.h"

namespace vcm {

// Right-aligned in five columns up to 99999, else from the first column on.
struct SatelliteNumber {
  static constexpr int width = 9;
  static constexpr Look look{"i", 0, 0, "right-aligned in five columns where it fits them"};
  static void write(std::int32_t value, char* out) {
    constexpr int kShortWidth = 5;
    constexpr std::int32_t kShortLimit = 100'000;
    constexpr std::int32_t kLimit = 1'000'000'000;
    if (value < kShortLimit) {
      copyPadded("", out, width);
      writeInteger<kShortWidth>(out, value % kShortLimit);
    } else {
      writeInteger<width>(out, value % kLimit);
      std::rotate(out, std::find_if_not(out, out + width, isBlank), out + width);
    }
  }
  static bool read(std::string_view text, std::int32_t& value) { return readInteger(text, value); }
};

// "1989-021F" for 89021F: the launch year with four digits. A blank launch year leaves all blank.
struct Designator {
  static constexpr int width = 11;
  static constexpr Look look{"yyyy-piece", 0, 0, "only the last two digits of the year are read"};
  static constexpr Column kYear{3};  // the year's last two digits
  static constexpr Column kPiece{6};

  static void write(const FixedText<8>& value, char* out) {
    copyPadded("", out, width);
    const std::string_view year = value.view().substr(0, 2);
    if (isAllBlank(year)) {
      return;
    }
    std::int32_t number = 0;
    if (readInteger(year, number) && number >= 0) {
      writeInteger<4>(out, fixyr(&number));
    } else {
      copyPadded(year, out + kYear.index(), 2);  // not a year: reads back as it was
    }
    out[4] = '-';
    copyPadded(value.view().substr(2), out + kPiece.index(), 6);
  }
  static bool read(std::string_view text, FixedText<8>& value) {
    FixedText<width> whole(text);
    value.assign(whole.view().substr(kYear.index(), 2));
    value.assignAt(2, whole.view().substr(kPiece.index()));
    return true;
  }
};

struct CalendarDate {
  static constexpr int width = kCalendarDateWidth;
  static constexpr bool growing = true;
  static constexpr Look look{
      "yyyy ddd (dd mmm) hh:mm:ss.sss", 0, 0,
      "what is in parentheses is not read; seconds that round up are a character longer"};
  static int write(const InputDate& value, char* out) { return writeCalendarDate(value, out); }
  static bool read(std::string_view text, InputDate& value) {
    return readCalendarDate(text, value);
  }
};

// A two-body model is written as a blank name.
struct BlankableGeopotentialName : GeopotentialName {
  static constexpr Look look{"text", 0, 0,
                             "blank and NONE read as 2-BODY, which is written as blanks"};
  static void write(const FixedText<6>& value, char* out) {
    GeopotentialName::write(value.view() == kTwoBody ? FixedText<6>() : value, out);
  }
};

}  // namespace vcm

#endif
