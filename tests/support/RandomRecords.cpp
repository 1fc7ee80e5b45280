#include "support/RandomRecords.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "VCM/VcmTree/Covariance.h"

using vcm::VcmRecord;
using vcm::Vector3;

double RandomRecords::real(double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random_);
}

int RandomRecords::integer(int low, int high) {
  return std::uniform_int_distribution<int>(low, high)(random_);
}

VcmRecord RandomRecords::nextSmall(int satellites) {
  VcmRecord record;
  record.satNum = integer(1, satellites);
  record.epoch = {2000, integer(1, 2), integer(0, 23), integer(0, 59), 0.0};
  record.eciPos[0] = real(-50000.0, 50000.0);
  return record;
}

VcmRecord RandomRecords::next() {
  VcmRecord r;
  // Gives each member a value of its own.
  const auto fill = [](const auto& make, auto&... members) { ((members = make()), ...); };
  const auto upTo = [this](int high) { return [this, high] { return integer(0, high); }; };
  const auto within = [this](double size) { return [this, size] { return real(-size, size); }; };
  const auto vector = [this](double size) {
    return [this, size] {
      return Vector3{real(-size, size), real(-size, size), real(-size, size)};
    };
  };
  const auto onOff = [this] { return vcm::FixedText<3>(integer(0, 1) == 0 ? "ON " : "OFF"); };
  // Spread over the exponents that two digits hold.
  const auto scientific = [this] { return real(-1.0, 1.0) * std::pow(10.0, integer(-40, 3)); };
  fill(upTo(99999), r.satNum, r.epochRev);
  r.intlDes.assign(std::to_string(integer(57, 99)) + std::to_string(integer(100, 999)) + "ABC");
  r.epoch = {integer(1957, 2050), integer(1, 365), integer(0, 23), integer(0, 59),
             integer(0, 59999) / 1000.0};
  r.leapSecondTime = {2016, 366, 0, 0, 0.0};
  fill(vector(50000.0), r.j2kPos, r.eciPos, r.efgPos);
  fill(vector(11.0), r.j2kVel, r.eciVel, r.efgVel, r.velSigmas, r.posSigmas);
  fill(scientific, r.bTerm, r.bDot, r.agom, r.edr, r.thrustAccel, r.cmOffset, r.errorControl);
  fill(within(0.9), r.ut1MinusUtc, r.polarMotionX, r.polarMotionY, r.wtdRms);
  fill(upTo(99), r.geoZonals, r.geoTesserals, r.nutationTerms, r.taiMinusUtc);
  fill(upTo(999), r.f10, r.avgF10);
  fill(within(90.0), r.avgAp, r.initStepSize);
  r.ut1Rate = real(-0.003, 0.003);
  fill(onOff, r.lunarSolar, r.radPress, r.earthTides, r.intrackThrust, r.fixedStep);
  r.geoName.assign("EGM-96");
  r.dragModel.assign("JAC70/MSIS90");
  r.integMode.assign("ASW");
  r.coordSys.assign("J2000");
  r.partials.assign("ANALYTIC");
  r.stepMode.assign("TIME");
  r.stepSelection.assign("MANUAL");
  r.covMtxSize = integer(0, 9);
  vcm::CovarianceTriangle values{};
  std::generate_n(values.begin(), vcm::covarianceValueCount(r.covMtxSize), scientific);
  r.covMtx = vcm::Vcm1dTo2d(values);
  return r;
}
