#include "VCM/VcmFormats/MultiLineLayout.h"

#include <algorithm>

#include "Host/HostCalendar.h"
#include "VCM/VcmFormats/DateText.h"

namespace vcm {

namespace {

// Right-aligned in five columns up to 99999, else from the first column on.
struct SatelliteNumber {
  static constexpr int width = 9;
  static void write(std::int32_t value, char* out) {
    constexpr int kShortWidth = 5;
    constexpr std::int32_t kShortLimit = 100'000;
    constexpr std::int32_t kLimit = 1'000'000'000;
    if (value < kShortLimit) {
      copyPadded("", out, width);
      writeInteger(out, kShortWidth, value % kShortLimit);
    } else {
      writeInteger(out, width, value % kLimit);
      std::rotate(out, std::find_if_not(out, out + width, isBlank), out + width);
    }
  }
  static bool read(std::string_view text, std::int32_t& value) { return readInteger(text, value); }
};

// "1989-021F" for 89021F: the launch year with four digits. A blank launch year leaves all blank.
struct Designator {
  static constexpr int width = 11;
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
      writeInteger(out, 4, fixyr(&number));
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
  static int write(const InputDate& value, char* out) { return writeCalendarDate(value, out); }
  static bool read(std::string_view text, InputDate& value) {
    return readCalendarDate(text, value);
  }
};

// A two-body model is written as a blank name.
struct BlankableGeopotentialName : GeopotentialName {
  static void write(const FixedText<6>& value, char* out) {
    GeopotentialName::write(value.view() == kTwoBody ? FixedText<6>() : value, out);
  }
};

using R = VcmRecord;
using Position = Fixed<16, 8, 8>;
using Velocity = Fixed<16, 12, 12>;

constexpr std::array kSatellite = {
    field<&R::satNum, SatelliteNumber>("satNum", Column{22}),
    field<&R::intlDes, Designator>("intlDes", Column{58}),
};
constexpr std::array kEpoch = {
    field<&R::epoch, CalendarDate>("epoch", Column{22}),
    field<&R::epochRev, Integer<5>>("epochRev", Column{65}),
};
constexpr auto kJ2kPos =
    vectorFields<&R::j2kPos, Position>({"j2kPos x", "j2kPos y", "j2kPos z"}, Column{20}, 17);
constexpr auto kJ2kVel =
    vectorFields<&R::j2kVel, Velocity>({"j2kVel x", "j2kVel y", "j2kVel z"}, Column{20}, 17);
constexpr auto kEciPos =
    vectorFields<&R::eciPos, Position>({"eciPos x", "eciPos y", "eciPos z"}, Column{20}, 17);
constexpr auto kEciVel =
    vectorFields<&R::eciVel, Velocity>({"eciVel x", "eciVel y", "eciVel z"}, Column{20}, 17);
constexpr auto kEfgPos =
    vectorFields<&R::efgPos, Position>({"efgPos x", "efgPos y", "efgPos z"}, Column{20}, 17);
constexpr auto kEfgVel =
    vectorFields<&R::efgVel, Velocity>({"efgVel x", "efgVel y", "efgVel z"}, Column{20}, 17);
constexpr std::array kGeopotential = {
    field<&R::geoName, BlankableGeopotentialName>("geoName", Column{18}),
    field<&R::geoZonals, Integer<2>>("geoZonals", Column{25}),
    field<&R::geoTesserals, Integer<2>>("geoTesserals", Column{29}),
    field<&R::dragModel, ShiftedCharacters>("dragModel", Column{40}),
    field<&R::lunarSolar, Characters>("lunarSolar", Column{67}),
};
constexpr std::array kPerturbations = {
    field<&R::radPress, Characters>("radPress", Column{21}),
    field<&R::earthTides, Characters>("earthTides", Column{45}),
    field<&R::intrackThrust, Characters>("intrackThrust", Column{67}),
};
constexpr std::array kBallistic = {
    field<&R::bTerm, Scientific<13, 6, 10>>("bTerm", Column{28}),
    field<&R::bDot, Scientific<12, 6, 10>>("bDot", Column{58}),
};
constexpr std::array kRadiationPressure = {
    field<&R::agom, Scientific<13, 6, 10>>("agom", Column{35}),
    field<&R::edr, Scientific<9, 2, 6>>("edr", Column{61}),
};
constexpr std::array kThrust = {
    field<&R::thrustAccel, Scientific<13, 6, 10>>("thrustAccel", Column{25}),
    field<&R::cmOffset, Scientific<13, 6, 10>>("cmOffset", Column{57}),
};
constexpr std::array kSolarFlux = {
    field<&R::f10, Integer<3>>("f10", Column{21}),
    field<&R::avgF10, Integer<3>>("avgF10", Column{39}),
    field<&R::avgAp, Fixed<5, 1, 1>>("avgAp", Column{56}),
};
constexpr std::array kTime = {
    field<&R::taiMinusUtc, WholeReal<3>>("taiMinusUtc", Column{16}),
    field<&R::ut1MinusUtc, Fixed<8, 5, 0>>("ut1MinusUtc", Column{34}),
    field<&R::ut1Rate, MillisecondRate<6, 3>>("ut1Rate", Column{63}),
};
constexpr std::array kPolarMotion = {
    field<&R::polarMotionX, Fixed<7, 4, 4>>("polarMotionX", Column{28}),
    field<&R::polarMotionY, Fixed<7, 4, 4>>("polarMotionY", Column{36}),
    field<&R::nutationTerms, Integer<3>>("nutationTerms", Column{60}),
};
constexpr std::array kLeapSecond = {
    field<&R::leapSecondTime, CalendarDate>("leapSecondTime", Column{39}),
};
constexpr std::array kIntegrator = {
    field<&R::integMode, Characters>("integMode", Column{21}),
    field<&R::coordSys, Characters>("coordSys", Column{45}),
    field<&R::partials, Characters>("partials", Column{62}),
};
constexpr std::array kStepMode = {
    field<&R::stepMode, Characters>("stepMode", Column{15}),
    field<&R::fixedStep, Characters>("fixedStep", Column{33}),
    field<&R::stepSelection, Characters>("stepSelection", Column{59}),
};
constexpr std::array kStepSize = {
    field<&R::initStepSize, Fixed<8, 3, 0>>("initStepSize", Column{27}),
    field<&R::errorControl, Scientific<9, 3, 0>>("errorControl", Column{52}),
};
constexpr auto kPosSigmas = vectorFields<&R::posSigmas, Fixed<10, 4, 4>>(
    {"posSigmas U", "posSigmas V", "posSigmas W"}, Column{36}, 11);
constexpr auto kVelSigmas = vectorFields<&R::velSigmas, Fixed<8, 4, 4>>(
    {"velSigmas UD", "velSigmas VD", "velSigmas WD"}, Column{38}, 11);
constexpr std::array kCovarianceHead = {
    field<&R::covMtxSize, Integer<2>>("covMtxSize", Column{42}),
    field<&R::covMtxSize, WrittenOnly<2>>("covMtxSize", Column{45}),
    field<&R::wtdRms, Scientific<12, 5, 10>>("wtdRms", Column{58}),
};

constexpr bool kFullFormOnly = false;
constexpr bool kBareFormToo = true;
constexpr Label kNotRead{Column{1}, 0};

}  // namespace

// clang-format off
constexpr std::array<LineLayout, kMessageLines> kMultiLineLayout = {{
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

}  // namespace vcm
