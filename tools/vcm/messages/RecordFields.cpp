#include "messages/RecordFields.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "VCM/VcmFormats/Field.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

using R = vcm::VcmRecord;

template <auto Member>
constexpr TextMember text() {
  return {std::remove_cvref_t<decltype(std::declval<R>().*Member)>::width,
          [](const R& record) { return vcm::withoutTrailingBlanks((record.*Member).view()); },
          [](R& record, std::string_view value) { (record.*Member).assign(value); }};
}

template <auto Member>
constexpr RealMember real() {
  return {[](const R& record) { return record.*Member; },
          [](R& record, double value) { record.*Member = value; }};
}

// The UT1 rate in milliseconds per day: of the numbers that read back as exactly what is stored the
// one with the fewest digits, which is what a message said.
double millisecondRate(const R& record) {
  constexpr int kDigits = 17;  // that tell any two numbers apart
  const double rate = record.ut1Rate / vcm::kSecondsPerMillisecond;
  for (int digits = 1; digits <= kDigits; ++digits) {
    const double shorter = std::strtod(fmt::format("{:.{}e}", rate, digits - 1).c_str(), nullptr);
    if (shorter * vcm::kSecondsPerMillisecond == record.ut1Rate) {
      return shorter;
    }
  }
  return rate;
}

void setMillisecondRate(R& record, double value) {
  record.ut1Rate = value * vcm::kSecondsPerMillisecond;
}

constexpr bool kRequired = true;

constexpr std::array kFields = std::to_array<RecordField>({
    {"satellite_number", &R::satNum, VCM_FIELD_SATNUM, kRequired},
    {"international_designator", text<&R::intlDes>(), VCM_FIELD_INTLDES},
    {"common_name", text<&R::commonName>()},
    {"epoch_utc", &R::epoch, VCM_FIELD_EPOCH, kRequired},
    {"revolution_at_epoch", &R::epochRev, VCM_FIELD_EPOCHREV},
    {"j2000_position_km", VectorMember{&R::j2kPos, "j2000_position", "xyz", "km"}},
    {"j2000_velocity_km_per_s", VectorMember{&R::j2kVel, "j2000_velocity", "xyz", "km_per_s"}},
    {"eci_position_km", VectorMember{&R::eciPos, "eci_position", "xyz", "km"}, VCM_FIELD_ECIPOSX},
    {"eci_velocity_km_per_s", VectorMember{&R::eciVel, "eci_velocity", "xyz", "km_per_s"},
     VCM_FIELD_ECIVELX},
    {"efg_position_km", VectorMember{&R::efgPos, "efg_position", "xyz", "km"}},
    {"efg_velocity_km_per_s", VectorMember{&R::efgVel, "efg_velocity", "xyz", "km_per_s"}},
    {"geopotential_model", text<&R::geoName>(), VCM_FIELD_GEONAME},
    {"geopotential_zonals", &R::geoZonals, VCM_FIELD_GEOZONALS},
    {"geopotential_tesserals", &R::geoTesserals, VCM_FIELD_GEOTESSERALS},
    {"drag_model", text<&R::dragModel>(), VCM_FIELD_DRAGMODEL},
    {"lunar_solar", text<&R::lunarSolar>(), VCM_FIELD_LUNARSOLAR},
    {"solar_radiation_pressure", text<&R::radPress>(), VCM_FIELD_RADPRESS},
    {"solid_earth_tides", text<&R::earthTides>(), VCM_FIELD_EARTHTIDES},
    {"in_track_thrust", text<&R::intrackThrust>(), VCM_FIELD_INTRACKTHRUST},
    {"ballistic_coefficient_m2_per_kg", real<&R::bTerm>(), VCM_FIELD_BTERM},
    {"ballistic_coefficient_rate_m2_per_kg_s", real<&R::bDot>(), VCM_FIELD_BDOT},
    {"solar_radiation_pressure_coefficient_m2_per_kg", real<&R::agom>(), VCM_FIELD_AGOM},
    {"energy_dissipation_rate_w_per_kg", real<&R::edr>(), VCM_FIELD_EDR},
    {"thrust_acceleration_m_per_s2", real<&R::thrustAccel>(), VCM_FIELD_THRUSTACCEL},
    {"center_of_mass_offset_m", real<&R::cmOffset>(), VCM_FIELD_CMOFFSET},
    {"solar_flux_f10", &R::f10, VCM_FIELD_F10},
    {"average_f10", &R::avgF10, VCM_FIELD_AVGF10},
    {"average_ap", real<&R::avgAp>(), VCM_FIELD_AVGAP},
    {"tai_minus_utc_s", real<&R::taiMinusUtc>(), VCM_FIELD_TAIMINUSUTC},
    {"ut1_minus_utc_s", real<&R::ut1MinusUtc>(), VCM_FIELD_UT1MINUSUTC},
    {"ut1_rate_ms_per_day", RealMember{millisecondRate, setMillisecondRate}, VCM_FIELD_UT1RATE},
    {"polar_motion_x_arcsec", real<&R::polarMotionX>(), VCM_FIELD_POLARMOTIONX},
    {"polar_motion_y_arcsec", real<&R::polarMotionY>(), VCM_FIELD_POLARMOTIONY},
    {"nutation_terms", &R::nutationTerms, VCM_FIELD_NUTATIONTERMS},
    {"leap_second_time_utc", &R::leapSecondTime, VCM_FIELD_LEAPSECONDTIME},
    {"integrator_mode", text<&R::integMode>(), VCM_FIELD_INTEGMODE},
    {"coordinate_system", text<&R::coordSys>()},
    {"partials", text<&R::partials>(), VCM_FIELD_PARTIALS},
    {"step_mode", text<&R::stepMode>(), VCM_FIELD_STEPMODE},
    {"fixed_step", text<&R::fixedStep>(), VCM_FIELD_FIXEDSTEP},
    {"step_size_selection", text<&R::stepSelection>(), VCM_FIELD_STEPSELECTION},
    {"initial_step_size_s", real<&R::initStepSize>(), VCM_FIELD_INITSTEPSIZE},
    {"error_control", real<&R::errorControl>(), VCM_FIELD_ERRORCONTROL},
    {"position_sigmas_uvw_km", VectorMember{&R::posSigmas, "position_sigma", "uvw", "km"}},
    {"velocity_sigmas_uvw_km_per_s",
     VectorMember{&R::velSigmas, "velocity_sigma", "uvw", "km_per_s"}},
    {"weighted_rms", real<&R::wtdRms>(), VCM_FIELD_WTDRMS},
});

}  // namespace

constexpr std::span<const RecordField> kRecordFields = kFields;

std::string VectorMember::component(std::size_t index) const {
  return fmt::format("{}_{}_{}", quantity, axes[index], unit);
}

std::string covarianceElement(std::size_t row, std::size_t column) {
  return fmt::format("{}_{}_{}", kCovarianceName, kCovarianceLabels[row],
                     kCovarianceLabels[column]);
}

std::size_t covarianceSize(const vcm::VcmRecord& record) {
  return static_cast<std::size_t>(std::clamp(record.covMtxSize, 0, vcm::kCovarianceDimension));
}

}  // namespace vcmtool
