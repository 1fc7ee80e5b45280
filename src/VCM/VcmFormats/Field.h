// The rows that layout tables are made of.
//
// A Field binds a place in a line to a record member and to the way the member is written and read
// there. Tables are arrays of Fields; writers and readers are loops over them:
//
//   field<&VcmRecord::wtdRms, Scientific<12, 5, 10>>("wtdRms", Column{58})
//
// puts the weighted RMS in columns 58 to 69 as sci 12.5 and reads it there with 10 implied
// decimals.
#ifndef VCM_VCMFORMATS_FIELD_H
#define VCM_VCMFORMATS_FIELD_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

#include "VCM/VcmFormats/ColumnReading.h"
#include "VCM/VcmFormats/ColumnWriting.h"
#include "VCM/VcmFormats/Look.h"
#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

// A column of a line, counted from 1.
struct Column {
  int number;
  constexpr std::size_t index() const { return static_cast<std::size_t>(number - 1); }
};

// The part of a line that lies in `width` columns from `first` on; shorter where the line ends.
constexpr std::string_view columnsOf(std::string_view line, Column first, int width) {
  return first.index() >= line.size() ? std::string_view()
                                      : line.substr(first.index(), static_cast<std::size_t>(width));
}

struct Field {
  std::string_view name;
  Column first;
  int width;
  // Fills `width` characters at `out` and returns how many.
  int (*write)(const VcmRecord& record, char* out);
  // Takes the text of the field's columns (less than `width` where the line ends early). False when
  // it cannot be read: then the member keeps its value.
  bool (*read)(std::string_view text, VcmRecord& record);
  bool canGrow;  // may come out longer than `width`
  Look look;
};

// ---- formats: how one value stands in `width` characters ----------------------------------------

template <int Width>
struct Integer {
  static constexpr int width = Width;
  static constexpr Look look{"i"};
  static void write(std::int32_t value, char* out) { writeInteger<Width>(out, value); }
  static bool read(std::string_view text, std::int32_t& value) {
    return readInteger<Width>(text, value);
  }
};

template <int Width>
struct ZeroFilled {
  static constexpr int width = Width;
  static constexpr Look look{"i", 0, 0, "zeros in front"};
  static void write(std::int32_t value, char* out) { writeZeroFilled<Width>(out, value); }
  static bool read(std::string_view text, std::int32_t& value) {
    return readInteger<Width>(text, value);
  }
};

template <int Width, int Decimals, int ImpliedDecimals>
struct Fixed {
  static constexpr int width = Width;
  static constexpr Look look{"f", Decimals, ImpliedDecimals};
  static void write(double value, char* out) { writeFixed<Width, Decimals>(out, value); }
  static bool read(std::string_view text, double& value) {
    return readFixed<Width, Decimals>(text, ImpliedDecimals, value);
  }
};

template <int Width, int Digits, int ImpliedDecimals>
struct Scientific {
  static constexpr int width = Width;
  static constexpr int digits = Digits;
  static constexpr Look look{"e", Digits, ImpliedDecimals};
  static void write(double value, char* out) { writeScientific<Width, Digits>(out, value); }
  static bool read(std::string_view text, double& value) {
    return readScientific<Width, Digits>(text, ImpliedDecimals, value);
  }
};

// A number that stands twice: this second place is not read.
template <int Width>
struct WrittenOnly : Integer<Width> {
  static constexpr Look look{"i", 0, 0, "written only: not read"};
  static bool read(std::string_view /*text*/, std::int32_t& /*value*/) { return true; }
};

// A real shown as a whole number: the fraction is dropped on purpose.
template <int Width>
struct WholeReal {
  static constexpr int width = Width;
  static constexpr Look look{"i", 0, 0, "a fraction is dropped by the writer, not by the reader"};
  static void write(double value, char* out) { writeInteger<Width>(out, truncated(value)); }
  static bool read(std::string_view text, double& value) {
    std::int32_t whole = 0;
    if (takeInteger<Width>(text, whole) && whole > 0) {  // zeros have a sign
      value = whole;
      return true;
    }
    return readReal(text, 0, value);
  }
};

// The UT1 rate: seconds per day in the record, milliseconds per day in every text and array.
inline constexpr double kSecondsPerMillisecond = 0.001;

template <int Width, int Decimals>
struct MillisecondRate {
  static constexpr int width = Width;
  static constexpr Look look{"f", Decimals};
  static void write(double value, char* out) {
    writeFixed<Width, Decimals>(out, value / kSecondsPerMillisecond);
  }
  static bool read(std::string_view text, double& value) {
    if (!readFixed<Width, Decimals>(text, 0, value)) {
      return false;
    }
    value *= kSecondsPerMillisecond;
    return true;
  }
};

struct Characters {
  static constexpr Look look{"text"};
  template <std::size_t N>
  static void write(const FixedText<N>& value, char* out) {
    std::copy_n(value.view().data(), N, out);  // has no blanks but real ones
  }
  template <std::size_t N>
  static bool read(std::string_view text, FixedText<N>& value) {
    value.assign(text);
    return true;
  }
};

// A model name that is blank or NONE in a message is a two-body model in the record. The test comes
// before the shift to the left, deliberately: a shifted NONE stays a name.
inline constexpr std::string_view kTwoBody = "2-BODY";

struct ShiftedCharacters : Characters {
  static constexpr Look look{"text", 0, 0, "read without the blanks in front"};
  template <std::size_t N>
  static bool read(std::string_view text, FixedText<N>& value) {
    value.assign(text);
    value.shiftLeft();
    return true;
  }
};

struct GeopotentialName : ShiftedCharacters {
  static constexpr Look look{"text", 0, 0, "blank and NONE read as 2-BODY"};
  static bool read(std::string_view text, FixedText<6>& value) {
    const FixedText<6> name(text);
    if (name.isBlank() || name.view() == "NONE  ") {
      value.assign(kTwoBody);
      return true;
    }
    return ShiftedCharacters::read(text, value);
  }
};

// ---- rows ---------------------------------------------------------------------------------------

// What a row stands for: a member, or one component of a vector member.
template <auto Member, std::size_t... Component>
constexpr auto& memberOf(auto& record) {
  if constexpr (sizeof...(Component) == 0) {
    return record.*Member;
  } else {
    return (record.*Member)[(Component + ...)];
  }
}

template <class Format>
inline constexpr bool kGrows = requires {
  Format::growing;
};

template <auto Member, class Format, std::size_t... Component>
constexpr Field field(std::string_view name, Column first) {
  constexpr int width = [] {
    if constexpr (requires { Format::width; }) {
      return Format::width;
    } else {
      return static_cast<int>(
          std::remove_cvref_t<decltype(memberOf<Member>(std::declval<VcmRecord&>()))>::width);
    }
  }();
  return {name,
          first,
          width,
          [](const VcmRecord& record, char* out) {
            if constexpr (kGrows<Format>) {
              return Format::write(memberOf<Member, Component...>(record), out);
            } else {
              Format::write(memberOf<Member, Component...>(record), out);
              return width;
            }
          },
          [](std::string_view text, VcmRecord& record) {
            return Format::read(text, memberOf<Member, Component...>(record));
          },
          kGrows<Format>,
          Format::look};
}

// The three rows of a vector whose components stand `step` columns apart.
template <auto Member, class Format>
constexpr std::array<Field, 3> vectorFields(const std::array<std::string_view, 3>& names,
                                            Column first, int step) {
  return {field<Member, Format, 0>(names[0], first),
          field<Member, Format, 1>(names[1], Column{first.number + step}),
          field<Member, Format, 2>(names[2], Column{first.number + 2 * step})};
}

// ---- loops over tables --------------------------------------------------------------------------

// Calls visit.operator()<I>() for I = 0, 1, ... as long as it returns true: a loop whose rows are
// constants, so that the calls through them are direct. True when it came to the end.
template <std::size_t Count, class Visit>
constexpr bool everyIndex(Visit&& visit) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return (visit.template operator()<I>() && ...);
  }
  (std::make_index_sequence<Count>());
}

// The same without an early end.
template <std::size_t Count, class Visit>
constexpr void eachIndex(Visit&& visit) {
  [&]<std::size_t... I>(std::index_sequence<I...>) { (visit.template operator()<I>(), ...); }
  (std::make_index_sequence<Count>());
}

}  // namespace vcm

#endif
