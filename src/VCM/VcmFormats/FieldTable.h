// The fields that can be read and changed one at a time, each addressed by an index.
#ifndef VCM_VCMFORMATS_FIELDTABLE_H
#define VCM_VCMFORMATS_FIELDTABLE_H

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "VCM/VcmFormats/Look.h"
#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

enum class FieldKind { integer, real, text, date };

// A number, a date as days since 1950, or a text without blanks around it.
using FieldValue = std::variant<double, std::string_view>;

struct SingleField {
  std::int32_t index;
  std::string_view name;
  FieldKind kind;
  int width;
  // Fills `width` characters at `out`.
  void (*write)(const VcmRecord& record, char* out);
  // What comparisons go by, in the record's unit; a text is the record's own.
  FieldValue (*value)(const VcmRecord& record);
  // Takes a value that begins with its first character that is no blank. False when it cannot be
  // read: then the member keeps its value. Null for a field that makes up the record's key.
  bool (*read)(std::string_view value, VcmRecord& record);
  // What a field without `read` is called when a change is refused.
  std::string_view refusedAs;
  Look look;
};

// By index, which counts from 1. Deliberately without the common name, the J2000 and Earth-fixed
// vectors, the coordinate system, the sigmas and the covariance; the last two are out of the record's
// order and written in a notation of their own, deliberately too.
extern const std::span<const SingleField> kSingleFields;

// No field is wider.
inline constexpr int kMaxFieldWidth = 35;

// Null for an index that no field has.
const SingleField* findSingleField(std::int32_t index);

}  // namespace vcm

#endif
