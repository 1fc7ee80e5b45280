// The two multi-line forms that one-line messages are expanded to, as patterns.
#ifndef VCM_VCMFORMATS_EXPANSIONLAYOUT_H
#define VCM_VCMFORMATS_EXPANSIONLAYOUT_H

#include <span>
#include <string_view>

#include "VCM/VcmFormats/Field.h"

namespace vcm {

// A line of a message. In its pattern "{7-10}" stands for the characters of these columns of the
// one-line message, "{date}" for the epoch's day and month.
struct ExpansionLine {
  std::string_view pattern;
  bool padded = true;  // with blanks to kExpansionLineWidth
};

inline constexpr std::size_t kExpansionLineWidth = 69;

extern const std::span<const ExpansionLine> kFullForm;
extern const std::span<const ExpansionLine> kShortForm;

// A message with no blank in these columns gets the short form. In the one-line layout the first of
// them is blank.
inline constexpr Column kShortFormFirst{518};
inline constexpr Column kShortFormLast{601};

// What the date is made of. The century is not looked at.
inline constexpr Column kExpansionYear{9};
inline constexpr int kExpansionYearWidth = 2;
inline constexpr Column kExpansionDayOfYear{11};
inline constexpr int kExpansionDayOfYearWidth = 3;

// Covariance lines: chunks of the message, each a lead and so many characters, until the column of a
// chunk's first point is blank.
inline constexpr std::string_view kExpansionRowLead = "<>";
inline constexpr Column kExpansionRows{689};
inline constexpr int kExpansionRowWidth = 65;
inline constexpr int kExpansionMaxRows = 12;
inline constexpr Column kPointInRow{4};

}  // namespace vcm

#endif
