// The one-line message: one line of 1500 characters, nothing in it labelled.
#ifndef VCM_VCMFORMATS_ONELINELAYOUT_H
#define VCM_VCMFORMATS_ONELINELAYOUT_H

#include <array>
#include <string_view>

#include "VCM/VcmFormats/Field.h"
#include "VCM/VcmFormats/OneLineFormats.h"
#include "VCM/VcmTypes/InputDate.h"
#include "vcm/Vcm.h"

namespace vcm {

inline constexpr int kOneLineWidth = VCM_ONE_LINE_LENGTH;

// Characters that the writer puts between fields.
struct Literal {
  Column first;
  std::string_view text;
};

namespace oneline {

using R = VcmRecord;
using D = InputDate;
using Position = Fixed<16, 8, 8>;
using Velocity = Fixed<16, 12, 12>;

// A vector's three rows are spelled out so that the table stays one flat list.
inline constexpr std::array kFields = {
    field<&R::satNum, Integer<5>>("satNum", Column{1}),
    field<&R::epoch, DatePart<&D::year, Integer<4>>>("epoch year", Column{7}),
    field<&R::epoch, DatePart<&D::dayOfYear, ZeroFilled<3>>>("epoch day", Column{11}),
    field<&R::epoch, DatePart<&D::hour, ZeroFilled<2>>>("epoch hour", Column{14}),
    field<&R::epoch, DatePart<&D::minute, ZeroFilled<2>>>("epoch minute", Column{16}),
    field<&R::epoch, DatePart<&D::seconds, Fixed<6, 3, 0>>>("epoch seconds", Column{18}),
    field<&R::epochRev, Integer<5>>("epochRev", Column{25}),
    field<&R::j2kPos, Position, 0>("j2kPos x", Column{33}),
    field<&R::j2kPos, Position, 1>("j2kPos y", Column{50}),
    field<&R::j2kPos, Position, 2>("j2kPos z", Column{67}),
    field<&R::j2kVel, Velocity, 0>("j2kVel x", Column{84}),
    field<&R::j2kVel, Velocity, 1>("j2kVel y", Column{101}),
    field<&R::j2kVel, Velocity, 2>("j2kVel z", Column{118}),
    field<&R::eciPos, Position, 0>("eciPos x", Column{137}),
    field<&R::eciPos, Position, 1>("eciPos y", Column{154}),
    field<&R::eciPos, Position, 2>("eciPos z", Column{171}),
    field<&R::eciVel, Velocity, 0>("eciVel x", Column{188}),
    field<&R::eciVel, Velocity, 1>("eciVel y", Column{205}),
    field<&R::eciVel, Velocity, 2>("eciVel z", Column{222}),
    field<&R::efgPos, Position, 0>("efgPos x", Column{241}),
    field<&R::efgPos, Position, 1>("efgPos y", Column{258}),
    field<&R::efgPos, Position, 2>("efgPos z", Column{275}),
    field<&R::efgVel, Velocity, 0>("efgVel x", Column{292}),
    field<&R::efgVel, Velocity, 1>("efgVel y", Column{309}),
    field<&R::efgVel, Velocity, 2>("efgVel z", Column{326}),
    field<&R::geoName, GeopotentialName>("geoName", Column{343}),
    field<&R::geoZonals, Integer<2>>("geoZonals", Column{350}),
    field<&R::geoTesserals, Integer<2>>("geoTesserals", Column{354}),
    field<&R::dragModel, ShiftedCharacters>("dragModel", Column{358}),
    field<&R::lunarSolar, Characters>("lunarSolar", Column{371}),
    field<&R::radPress, Characters>("radPress", Column{375}),
    field<&R::earthTides, Characters>("earthTides", Column{379}),
    field<&R::intrackThrust, Characters>("intrackThrust", Column{383}),
    field<&R::bTerm, Scientific<13, 6, 10>>("bTerm", Column{387}),
    field<&R::bDot, FreeForm<13, 6>>("bDot", Column{400}),
    field<&R::agom, Scientific<13, 6, 10>>("agom", Column{414}),
    field<&R::edr, FreeForm<10, 2>>("edr", Column{427}),
    field<&R::thrustAccel, Scientific<13, 6, 10>>("thrustAccel", Column{438}),
    field<&R::cmOffset, Scientific<13, 6, 10>>("cmOffset", Column{452}),
    field<&R::f10, Integer<3>>("f10", Column{466}),
    field<&R::avgF10, Integer<3>>("avgF10", Column{470}),
    field<&R::avgAp, Fixed<5, 1, 1>>("avgAp", Column{474}),
    field<&R::taiMinusUtc, WholeReal<3>>("taiMinusUtc", Column{479}),
    field<&R::ut1MinusUtc, Fixed<8, 5, 0>>("ut1MinusUtc", Column{483}),
    field<&R::ut1Rate, Ut1RateTimes1000>("ut1Rate", Column{492}),
    field<&R::polarMotionX, Fixed<7, 4, 4>>("polarMotionX", Column{499}),
    field<&R::polarMotionY, Fixed<7, 4, 4>>("polarMotionY", Column{507}),
    field<&R::nutationTerms, Integer<3>>("nutationTerms", Column{515}),
    field<&R::integMode, Characters>("integMode", Column{519}),
    field<&R::coordSys, Characters>("coordSys", Column{532}),
    field<&R::partials, Characters>("partials", Column{548}),
    field<&R::stepMode, Characters>("stepMode", Column{567}),
    field<&R::fixedStep, Characters>("fixedStep", Column{573}),
    field<&R::stepSelection, Characters>("stepSelection", Column{577}),
    field<&R::initStepSize, Fixed<8, 3, 0>>("initStepSize", Column{584}),
    field<&R::errorControl, Scientific<9, 3, 0>>("errorControl", Column{593}),
    field<&R::posSigmas, Fixed<10, 4, 4>, 0>("posSigmas U", Column{603}),
    field<&R::posSigmas, Fixed<10, 4, 4>, 1>("posSigmas V", Column{614}),
    field<&R::posSigmas, Fixed<10, 4, 4>, 2>("posSigmas W", Column{625}),
    field<&R::velSigmas, Fixed<8, 4, 4>, 0>("velSigmas UD", Column{638}),
    field<&R::velSigmas, Fixed<8, 4, 4>, 1>("velSigmas VD", Column{649}),
    field<&R::velSigmas, Fixed<8, 4, 4>, 2>("velSigmas WD", Column{660}),
    field<&R::covMtxSize, CovarianceSize>("covMtxSize", Column{670}),
    field<&R::covMtxSize, WrittenOnly<2>>("covMtxSize", Column{673}),
    field<&R::wtdRms, Scientific<12, 5, 10>>("wtdRms", Column{677}),
    field<&R::commonName, Characters>("commonName", Column{1465}),
    field<&R::intlDes, HyphenatedDesignator>("intlDes", Column{1492}),
};

}  // namespace oneline

inline constexpr auto& kOneLineFields = oneline::kFields;

inline constexpr std::array kOneLineLiterals = {
    Literal{Column{352}, "Z,"}, Literal{Column{356}, "T"},  Literal{Column{669}, "("},
    Literal{Column{672}, "x"},  Literal{Column{675}, ") "},
};

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
