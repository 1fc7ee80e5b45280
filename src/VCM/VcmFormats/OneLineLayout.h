// The one-line message: one line of 1500 characters, nothing in it labelled.
#ifndef VCM_VCMFORMATS_ONELINELAYOUT_H
#define VCM_VCMFORMATS_ONELINELAYOUT_H

#include <span>
#include <string_view>

#include "VCM/VcmFormats/Field.h"
#include "VCM/VcmTypes/InputDate.h"
#include "vcm/Vcm.h"

namespace vcm {

inline constexpr int kOneLineWidth = VCM_ONE_LINE_LENGTH;

// Characters that the writer puts between fields.
struct Literal {
  Column first;
  std::string_view text;
};

extern const std::span<const Field> kOneLineFields;
extern const std::span<const Literal> kOneLineLiterals;

// The covariance triangle: written as 45 columns of sci 13.5, read as a list of numbers separated
// by blanks that runs to the end of the line.
inline constexpr Column kOneLineCovariance{689};
using OneLineCovarianceFormat = Scientific<13, 5, 0>;

// The form carries no leap-second time: this one stands for an unknown time.
inline constexpr InputDate kUnknownLeapSecondTime{2049, 365, 23, 59, 59.999};

// What tells a one-line message from any other text: a blank and three points.
constexpr bool isOneLineMessage(std::string_view card) {
  constexpr Column kBlank{6};
  constexpr Column kSecondsPoint{20};
  constexpr Column kFirstPositionPoint{40};
  constexpr Column kSecondPositionPoint{57};
  return card.size() > kSecondPositionPoint.index() && isBlank(card[kBlank.index()]) &&
         card[kSecondsPoint.index()] == '.' && card[kFirstPositionPoint.index()] == '.' &&
         card[kSecondPositionPoint.index()] == '.';
}

}  // namespace vcm

#endif
