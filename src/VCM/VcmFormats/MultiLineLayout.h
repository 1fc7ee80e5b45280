// The multi-line message: its lines, labels and fields, for writer and readers alike.
#ifndef VCM_VCMFORMATS_MULTILINELAYOUT_H
#define VCM_VCMFORMATS_MULTILINELAYOUT_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "VCM/VcmFormats/Field.h"
#include "VCM/VcmFormats/MultiLineFormats.h"

namespace vcm {

// The part of a line by which readers recognise it.
struct Label {
  Column first;
  int width;  // 0: the line is not looked at
};

// Whose message names a line that the text parser does not recognise. Some lines name the file
// reader; that is deliberate.
enum class ReportedBy { textParser, fileReader };

struct LineLayout {
  // The line as written, blanks where its fields stand.
  std::string_view text;
  Label label;
  // The line's name in messages.
  std::string_view name;
  std::span<const Field> fields;
  // The bare form of input files lacks some lines.
  bool inBareForm = true;
  ReportedBy reportedBy = ReportedBy::textParser;

  constexpr bool isRead() const { return label.width > 0; }
  constexpr std::string_view labelText() const {
    return text.substr(label.first.index(), static_cast<std::size_t>(label.width));
  }
};

// How many characters a line's text and fields take.
constexpr std::size_t endOf(const LineLayout& layout) {
  std::size_t end = layout.text.size();
  for (const Field& field : layout.fields) {
    end = std::max(end, field.first.index() + static_cast<std::size_t>(field.width));
  }
  return end;
}

inline constexpr int kMessageLines = 27;  // the covariance rows come after these
inline constexpr int kMessageLineWidth = 80;

// ---- the table: fields by line, then the lines - ---------------------------------------------------------------------------------------

namespace multiline {

using R = VcmRecord;
using Position = Fixed<16, 8, 8>;
using Velocity = Fixed<16, 12, 12>;

inline constexpr std::array kSatellite = {
    field<&R::satNum, SatelliteNumber>("satNum", Column{22}),
    field<&R::intlDes, Designator>("intlDes", Column{58}),
};
inline constexpr std::array kEpoch = {
    field<&R::epoch, CalendarDate>("epoch", Column{22}),
    field<&R::epochRev, Integer<5>>("epochRev", Column{65}),
};
inline constexpr auto kJ2kPos =
    vectorFields<&R::j2kPos, Position>({"j2kPos x", "j2kPos y", "j2kPos z"}, Column{20}, 17);
inline constexpr auto kJ2kVel =
    vectorFields<&R::j2kVel, Velocity>({"j2kVel x", "j2kVel y", "j2kVel z"}, Column{20}, 17);
inline constexpr auto kEciPos =
    vectorFields<&R::eciPos, Position>({"eciPos x", "eciPos y", "eciPos z"}, Column{20}, 17);
inline constexpr auto kEciVel =
    vectorFields<&R::eciVel, Velocity>({"eciVel x", "eciVel y", "eciVel z"}, Column{20}, 17);
inline constexpr auto kEfgPos =
    vectorFields<&R::efgPos, Position>({"efgPos x", "efgPos y", "efgPos z"}, Column{20}, 17);
inline constexpr auto kEfgVel =
    vectorFields<&R::efgVel, Velocity>({"efgVel x", "efgVel y", "efgVel z"}, Column{20}, 17);
inline constexpr std::array kGeopotential = {
    field<&R::geoName, BlankableGeopotentialName>("geoName", Column{18}),
    field<&R::geoZonals, Integer<2>>("geoZonals", Column{25}),
    field<&R::geoTesserals, Integer<2>>("geoTesserals", Column{29}),
    field<&R::dragModel, ShiftedCharacters>("dragModel", Column{40}),
    field<&R::lunarSolar, Characters>("lunarSolar", Column{67}),
};
inline constexpr std::array kPerturbations = {
    field<&R::radPress, Characters>("radPress", Column{21}),
    field<&R::earthTides, Characters>("earthTides", Column{45}),
    field<&R::intrackThrust, Characters>("intrackThrust", Column{67}),
};
inline constexpr std::array kBallistic = {
    field<&R::bTerm, Scientific<13, 6, 10>>("bTerm", Column{28}),
    field<&R::bDot, Scientific<12, 6, 10>>("bDot", Column{58}),
};
inline constexpr std::array kRadiationPressure = {
    field<&R::agom, Scientific<13, 6, 10>>("agom", Column{35}),
    field<&R::edr, Scientific<9, 2, 6>>("edr", Column{61}),
};
inline constexpr std::array kThrust = {
    field<&R::thrustAccel, Scientific<13, 6, 10>>("thrustAccel", Column{25}),
    field<&R::cmOffset, Scientific<13, 6, 10>>("cmOffset", Column{57}),
};
inline constexpr std::array kSolarFlux = {
    field<&R::f10, Integer<3>>("f10", Column{21}),
    field<&R::avgF10, Integer<3>>("avgF10", Column{39}),
    field<&R::avgAp, Fixed<5, 1, 1>>("avgAp", Column{56}),
};
inline constexpr std::array kTime = {
    field<&R::taiMinusUtc, WholeReal<3>>("taiMinusUtc", Column{16}),
    field<&R::ut1MinusUtc, Fixed<8, 5, 0>>("ut1MinusUtc", Column{34}),
    field<&R::ut1Rate, MillisecondRate<6, 3>>("ut1Rate", Column{63}),
};
inline constexpr std::array kPolarMotion = {
    field<&R::polarMotionX, Fixed<7, 4, 4>>("polarMotionX", Column{28}),
    field<&R::polarMotionY, Fixed<7, 4, 4>>("polarMotionY", Column{36}),
    field<&R::nutationTerms, Integer<3>>("nutationTerms", Column{60}),
};
inline constexpr std::array kLeapSecond = {
    field<&R::leapSecondTime, CalendarDate>("leapSecondTime", Column{39}),
};
inline constexpr std::array kIntegrator = {
    field<&R::integMode, Characters>("integMode", Column{21}),
    field<&R::coordSys, Characters>("coordSys", Column{45}),
    field<&R::partials, Characters>("partials", Column{62}),
};
inline constexpr std::array kStepMode = {
    field<&R::stepMode, Characters>("stepMode", Column{15}),
    field<&R::fixedStep, Characters>("fixedStep", Column{33}),
    field<&R::stepSelection, Characters>("stepSelection", Column{59}),
};
inline constexpr std::array kStepSize = {
    field<&R::initStepSize, Fixed<8, 3, 0>>("initStepSize", Column{27}),
    field<&R::errorControl, Scientific<9, 3, 0>>("errorControl", Column{52}),
};
inline constexpr auto kPosSigmas = vectorFields<&R::posSigmas, Fixed<10, 4, 4>>(
    {"posSigmas U", "posSigmas V", "posSigmas W"}, Column{36}, 11);
inline constexpr auto kVelSigmas = vectorFields<&R::velSigmas, Fixed<8, 4, 4>>(
    {"velSigmas UD", "velSigmas VD", "velSigmas WD"}, Column{38}, 11);
inline constexpr std::array kCovarianceHead = {
    field<&R::covMtxSize, Integer<2>>("covMtxSize", Column{42}),
    field<&R::covMtxSize, WrittenOnly<2>>("covMtxSize", Column{45}),
    field<&R::wtdRms, Scientific<12, 5, 10>>("wtdRms", Column{58}),
};

// ---- the lines ------------------------------------------------------------------------------------

inline constexpr bool kFullFormOnly = false;
inline constexpr bool kBareFormToo = true;
inline constexpr Label kNotRead{Column{1}, 0};

// clang-format off
inline constexpr std::array<LineLayout, kMessageLines> kLines = {{
  {"<> SP VECTOR/COVARIANCE MESSAGE - V2.0",                               kNotRead,         "", {}, kFullFormOnly},
  {"<>",                                                                   kNotRead,         "", {}, kFullFormOnly},
  {"<> MESSAGE TIME (UTC):                                  CENTER:",      kNotRead,         "", {}, kFullFormOnly},
  {"<> SATELLITE NUMBER:                          INT. DES.: ",            {Column{4}, 17},  "SATELLITE NUMBER", kSatellite},
  {"<> COMMON NAME: ",                                                     kNotRead,         "", {}, kFullFormOnly},
  {"<> EPOCH TIME (UTC):                                 EPOCH REV: ",     {Column{54}, 10}, "EPOCH REV", kEpoch},
  {"<> J2K POS (KM):",                                                     {Column{4}, 7},   "J2K POS", kJ2kPos, kFullFormOnly, ReportedBy::fileReader},
  {"<> J2K VEL (KM/S):",                                                   {Column{4}, 7},   "J2K VEL", kJ2kVel, kFullFormOnly, ReportedBy::fileReader},
  {"<> ECI POS (KM):",                                                     {Column{4}, 7},   "ECI POS", kEciPos},
  {"<> ECI VEL (KM/S):",                                                   {Column{4}, 7},   "ECI VEL", kEciVel},
  {"<> EFG POS (KM):",                                                     {Column{4}, 7},   "EFG POS", kEfgPos, kFullFormOnly, ReportedBy::fileReader},
  {"<> EFG VEL (KM/S):",                                                   {Column{4}, 7},   "EFG VEL", kEfgVel, kFullFormOnly, ReportedBy::fileReader},
  {"<> GEOPOTENTIAL:          Z,  T  DRAG:               LUNAR/SOLAR: ",   {Column{4}, 12},  "GEOPOTENTIAL", kGeopotential},
  {"<> SOLAR RAD PRESS:      SOLID EARTH TIDES:      IN-TRACK THRUST: ",   {Column{4}, 16},  "SOLAR RAD PRESS", kPerturbations},
  {"<> BALLISTIC COEF (M2/KG):               BDOT (M2/KG-S): ",            {Column{4}, 14},  "BALLISTIC COEF", kBallistic},
  {"<> SOLAR RAD PRESS COEFF (M2/KG):                EDR(W/KG): ",         {Column{4}, 20},  "SOLAR RAD PRESS COEF", kRadiationPressure},
  {"<> THRUST ACCEL (M/S2):                C.M. OFFSET (M): ",             {Column{4}, 12},  "THRUST ACCEL", kThrust},
  {"<> SOLAR FLUX: F10:      AVERAGE F10:      AVERAGE AP: ",              {Column{4}, 10},  "SOLAR FLUX", kSolarFlux},
  {"<> TAI-UTC (S):     UT1-UTC (S):           UT1 RATE (MS/DAY): ",       {Column{4}, 7},   "TAI-UTC", kTime},
  {"<> POLAR MOT X,Y (ARCSEC):                 IAU 1980 NUTAT:     TERMS", {Column{4}, 9},   "POLAR MOT", kPolarMotion},
  {"<> TIME CONST LEAP SECOND TIME (UTC): ",                               {Column{4}, 34},  "LEAP SECOND ENTRY", kLeapSecond},
  {"<> INTEGRATOR MODE:              COORD SYS:        PARTIALS: ",        {Column{4}, 10},  "INTEGRATOR", kIntegrator},
  {"<> STEP MODE:       FIXED STEP:      STEP SIZE SELECTION: ",           {Column{4}, 9},   "STEP MODE", kStepMode},
  {"<> INITIAL STEP SIZE (S):           ERROR CONTROL: ",                  {Column{4}, 17},  "INITIAL STEP SIZE", kStepSize},
  {"<> VECTOR U,V,W SIGMAS (KM):",                                         {Column{4}, 25},  "VECTOR U,V,W SIGMAS (KM)", kPosSigmas, kBareFormToo, ReportedBy::fileReader},
  {"<> VECTOR UD,VD,WD SIGMAS (KM/S):",                                    {Column{4}, 30},  "VECTOR UD,VD,WD SIGMAS (KM/S)", kVelSigmas, kBareFormToo, ReportedBy::fileReader},
  {"<> COVARIANCE MATRIX (EQUINOCTIAL ELS): (  x  ) WTD RMS: ",            {Column{4}, 17},  "COVARIANCE MATRIX", kCovarianceHead},
}};
// clang-format on

}  // namespace multiline

inline constexpr auto& kMultiLineLayout = multiline::kLines;

// What every line but the second begins with; the lines of the bare form lack it.
inline constexpr std::string_view kLead = "<> ";

// ---- covariance rows: up to five values in each -------------------------------------------------

inline constexpr int kValuesPerRow = 5;
inline constexpr int kMaxCovarianceRows = kCovarianceValues / kValuesPerRow;
inline constexpr int kMaxMessageLines = kMessageLines + kMaxCovarianceRows;

constexpr int covarianceRowCount(int size) {
  return (covarianceValueCount(size) + kValuesPerRow - 1) / kValuesPerRow;
}

using CovarianceFormat = Scientific<12, 5, 9>;

constexpr Column covarianceColumn(int valueInRow) {
  return {static_cast<int>(kLead.size()) + 1 + valueInRow * (CovarianceFormat::width + 1)};
}

}  // namespace vcm

#endif
