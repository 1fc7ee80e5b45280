// One SP Vector/Covariance Message in memory.
#ifndef VCM_VCMTYPES_VCMRECORD_H
#define VCM_VCMTYPES_VCMRECORD_H

#include <array>
#include <cstdint>
#include <vector>

#include "VCM/VcmTypes/FixedText.h"
#include "VCM/VcmTypes/InputDate.h"

namespace vcm {

using Vector3 = std::array<double, 3>;

// Outcome of building a record, as VcmRecord::parseStatus and as a result code.
inline constexpr std::int32_t kGood = 0;
inline constexpr std::int32_t kRejected = 2;

inline constexpr int kCovarianceDimension = 9;
// Elements of a full covariance, and values of its lower triangle.
inline constexpr std::size_t kCovarianceElements =
    std::size_t{kCovarianceDimension} * kCovarianceDimension;
inline constexpr int kCovarianceValues = kCovarianceDimension * (kCovarianceDimension + 1) / 2;

// Column by column, internal element order, both triangles filled.
using CovarianceMatrix = std::array<double, kCovarianceElements>;
// The lower triangle in external element order, row by row: the values of a message.
using CovarianceTriangle = std::array<double, kCovarianceValues>;

// Values of the lower triangle of a leading n x n block; sizes outside 0 to 9 count as the nearest.
constexpr int covarianceValueCount(int size) {
  const int n = size < 0 ? 0 : (size > kCovarianceDimension ? kCovarianceDimension : size);
  return n * (n + 1) / 2;
}

// A maneuver card that followed a message in its input file.
using ExtraLine = FixedText<512>;
inline constexpr std::size_t kMaxExtraLines = 100;

// A default record is the empty image that every parser starts from; copies are deep.
struct VcmRecord {
  std::int32_t parseStatus = kGood;
  std::int32_t satNum = 0;
  FixedText<8> intlDes;  // two-digit launch year, then the piece
  FixedText<25> commonName;
  InputDate epoch;
  std::int32_t epochRev = 0;  // revolution number at epoch
  Vector3 j2kPos{};           // km
  Vector3 j2kVel{};           // km/s
  Vector3 eciPos{};           // true of date, km
  Vector3 eciVel{};           // km/s
  Vector3 efgPos{};           // Earth-fixed, km
  Vector3 efgVel{};           // km/s
  FixedText<6> geoName;       // geopotential model
  std::int32_t geoZonals = 0;
  std::int32_t geoTesserals = 0;
  FixedText<12> dragModel;
  FixedText<3> lunarSolar;  // ON or OFF, as the three below
  FixedText<3> radPress;    // solar radiation pressure
  FixedText<3> earthTides;  // solid earth tides
  FixedText<3> intrackThrust;
  double bTerm = 0.0;        // ballistic coefficient, m2/kg
  double bDot = 0.0;         // its rate, m2/kg-s
  double agom = 0.0;         // solar radiation pressure coefficient, m2/kg
  double edr = 0.0;          // energy dissipation rate, W/kg
  double thrustAccel = 0.0;  // m/s2
  double cmOffset = 0.0;     // centre-of-mass offset, m
  std::int32_t f10 = 0;      // solar flux
  std::int32_t avgF10 = 0;
  double avgAp = 0.0;
  double taiMinusUtc = 0.0;        // s
  double ut1MinusUtc = 0.0;        // s
  double ut1Rate = 0.0;            // s/day; every text, array and field shows ms/day
  double polarMotionX = 0.0;       // arcsec
  double polarMotionY = 0.0;       // arcsec
  std::int32_t nutationTerms = 0;  // IAU 1980
  InputDate leapSecondTime;        // time-constant leap second time
  FixedText<6> integMode;
  FixedText<5> coordSys;
  FixedText<8> partials;
  FixedText<4> stepMode;
  FixedText<3> fixedStep;  // ON or OFF
  FixedText<6> stepSelection;
  double initStepSize = 0.0;  // s
  double errorControl = 0.0;
  Vector3 posSigmas{};          // U, V, W, km
  Vector3 velSigmas{};          // UD, VD, WD, km/s
  std::int32_t covMtxSize = 0;  // below 1 there is no covariance
  double wtdRms = 0.0;          // weighted RMS of the fit
  CovarianceMatrix covMtx{};    // equinoctial elements
  std::vector<ExtraLine> extraLines;

  // Whether everything is the same; not what makes two records duplicates, which is equal() below.
  friend bool operator==(const VcmRecord&, const VcmRecord&) = default;

  std::int32_t extraLineCount() const { return static_cast<std::int32_t>(extraLines.size()); }
};

// Gives back the memory of a record's extra lines; the fixed part stays.
void freeVcmRecord(VcmRecord& record);

// True when two records describe the same state: satellite number, epoch, ECI state, ballistic and
// radiation pressure coefficient. Nothing else is compared.
bool equal(const VcmRecord& a, const VcmRecord& b);

}  // namespace vcm

#endif
