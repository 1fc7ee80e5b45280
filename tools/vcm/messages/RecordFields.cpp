#include "messages/RecordFields.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "VCM/VcmFormats/Field.h"

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
    {"satellite_number", &R::satNum, kRequired},
    {"international_designator", text<&R::intlDes>()},
    {"common_name", text<&R::commonName>()},
    {"epoch_utc", &R::epoch, kRequired},
    {"revolution_at_epoch", &R::epochRev},
    {"j2000_position_km", VectorMember{&R::j2kPos, "j2000_position", "xyz", "km"}},
    {"j2000_velocity_km_per_s", VectorMember{&R::j2kVel, "j2000_velocity", "xyz", "km_per_s"}},
    {"eci_position_km", VectorMember{&R::eciPos, "eci_position", "xyz", "km"}},
    {"eci_velocity_km_per_s", VectorMember{&R::eciVel, "eci_velocity", "xyz", "km_per_s"}},
    {"efg_position_km", VectorMember{&R::efgPos, "efg_position", "xyz", "km"}},
    {"efg_velocity_km_per_s", VectorMember{&R::efgVel, "efg_velocity", "xyz", "km_per_s"}},
    {"geopotential_model", text<&R::geoName>()},
    {"geopotential_zonals", &R::geoZonals},
    {"geopotential_tesserals", &R::geoTesserals},
    {"drag_model", text<&R::dragModel>()},
    {"lunar_solar", text<&R::lunarSolar>()},
    {"solar_radiation_pressure", text<&R::radPress>()},
    {"solid_earth_tides", text<&R::earthTides>()},
    {"in_track_thrust", text<&R::intrackThrust>()},
    {"ballistic_coefficient_m2_per_kg", real<&R::bTerm>()},
    {"ballistic_coefficient_rate_m2_per_kg_s", real<&R::bDot>()},
    {"solar_radiation_pressure_coefficient_m2_per_kg", real<&R::agom>()},
    {"energy_dissipation_rate_w_per_kg", real<&R::edr>()},
    {"thrust_acceleration_m_per_s2", real<&R::thrustAccel>()},
    {"center_of_mass_offset_m", real<&R::cmOffset>()},
    {"solar_flux_f10", &R::f10},
    {"average_f10", &R::avgF10},
    {"average_ap", real<&R::avgAp>()},
    {"tai_minus_utc_s", real<&R::taiMinusUtc>()},
    {"ut1_minus_utc_s", real<&R::ut1MinusUtc>()},
    {"ut1_rate_ms_per_day", RealMember{millisecondRate, setMillisecondRate}},
    {"polar_motion_x_arcsec", real<&R::polarMotionX>()},
    {"polar_motion_y_arcsec", real<&R::polarMotionY>()},
    {"nutation_terms", &R::nutationTerms},
    {"leap_second_time_utc", &R::leapSecondTime},
    {"integrator_mode", text<&R::integMode>()},
    {"coordinate_system", text<&R::coordSys>()},
    {"partials", text<&R::partials>()},
    {"step_mode", text<&R::stepMode>()},
    {"fixed_step", text<&R::fixedStep>()},
    {"step_size_selection", text<&R::stepSelection>()},
    {"initial_step_size_s", real<&R::initStepSize>()},
    {"error_control", real<&R::errorControl>()},
    {"position_sigmas_uvw_km", VectorMember{&R::posSigmas, "position_sigma", "uvw", "km"}},
    {"velocity_sigmas_uvw_km_per_s",
     VectorMember{&R::velSigmas, "velocity_sigma", "uvw", "km_per_s"}},
    {"weighted_rms", real<&R::wtdRms>()},
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
