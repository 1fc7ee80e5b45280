#include "support/RandomRecords.h"

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
  const auto onOff = [this] { return integer(0, 1) == 0 ? "ON " : "OFF"; };
  const auto vector = [this](double size) {
    return Vector3{real(-size, size), real(-size, size), real(-size, size)};
  };
  // Spread over the exponents that two digits hold.
  const auto scientific = [this] { return real(-1.0, 1.0) * std::pow(10.0, integer(-40, 3)); };
  r.satNum = integer(1, 99999);
  r.intlDes.assign(std::to_string(integer(57, 99)) + std::to_string(integer(100, 999)) + "ABC");
  r.epoch = {integer(1957, 2050), integer(1, 365), integer(0, 23), integer(0, 59),
             integer(0, 59999) / 1000.0};
  r.epochRev = integer(0, 99999);
  r.j2kPos = vector(50000.0);
  r.j2kVel = vector(11.0);
  r.eciPos = vector(50000.0);
  r.eciVel = vector(11.0);
  r.efgPos = vector(50000.0);
  r.efgVel = vector(11.0);
  r.geoName.assign("EGM-96");
  r.geoZonals = integer(0, 99);
  r.geoTesserals = integer(0, 99);
  r.dragModel.assign("JAC70/MSIS90");
  r.lunarSolar.assign(onOff());
  r.radPress.assign(onOff());
  r.earthTides.assign(onOff());
  r.intrackThrust.assign(onOff());
  r.bTerm = scientific();
  r.bDot = scientific();
  r.agom = scientific();
  r.edr = std::fabs(scientific());
  r.thrustAccel = scientific();
  r.cmOffset = scientific();
  r.f10 = integer(0, 999);
  r.avgF10 = integer(0, 999);
  r.avgAp = real(0.0, 400.0);
  r.taiMinusUtc = integer(0, 60);
  r.ut1MinusUtc = real(-0.9, 0.9);
  r.ut1Rate = real(-0.003, 0.003);
  r.polarMotionX = real(-1.0, 1.0);
  r.polarMotionY = real(-1.0, 1.0);
  r.nutationTerms = integer(0, 106);
  r.leapSecondTime = {2016, 366, 0, 0, 0.0};
  r.integMode.assign("ASW");
  r.coordSys.assign("J2000");
  r.partials.assign("ANALYTIC");
  r.stepMode.assign("TIME");
  r.fixedStep.assign(onOff());
  r.stepSelection.assign("MANUAL");
  r.initStepSize = real(0.0, 2000.0);
  r.errorControl = std::fabs(scientific());
  r.posSigmas = vector(900.0);
  r.velSigmas = vector(90.0);
  r.covMtxSize = integer(0, 9);
  r.wtdRms = real(0.0, 3.0);
  vcm::CovarianceTriangle values{};
  for (int i = 0; i < vcm::covarianceValueCount(r.covMtxSize); ++i) {
    values[static_cast<std::size_t>(i)] = scientific();
  }
  r.covMtx = vcm::Vcm1dTo2d(values);
  return r;
}
