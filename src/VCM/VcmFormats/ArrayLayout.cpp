#include "VCM/VcmFormats/ArrayLayout.h"

#include <array>
#include <type_traits>
#include <utility>

#include "Host/HostCalendar.h"
#include "VCM/VcmFormats/Field.h"

namespace vcm {

namespace {

using R = VcmRecord;

// A number as it stands, or one component of a vector.
template <auto Member, std::size_t... Component>
constexpr ArrayNumber number(std::size_t position) {
  return {position,
          [](const VcmRecord& record) {
            return static_cast<double>(memberOf<Member, Component...>(record));
          },
          [](VcmRecord& record, double value) {
            auto& member = memberOf<Member, Component...>(record);
            if constexpr (std::is_integral_v<std::remove_reference_t<decltype(member)>>) {
              member = truncated(value);
            } else {
              member = value;
            }
          }};
}

// A date, as days since 1950 UTC.
template <auto Member>
constexpr ArrayNumber date(std::size_t position) {
  return {position, [](const VcmRecord& record) { return inputDateToDs50(record.*Member); },
          [](VcmRecord& record, double value) {
            InputDate& date = record.*Member;
            dyklok(&value, &date.year, &date.dayOfYear, &date.hour, &date.minute, &date.seconds);
          }};
}

// A rate of seconds per day, as milliseconds per day.
template <auto Member>
constexpr ArrayNumber millisecondRate(std::size_t position) {
  return {position, [](const VcmRecord& record) { return record.*Member / kSecondsPerMillisecond; },
          [](VcmRecord& record, double value) { record.*Member = value * kSecondsPerMillisecond; }};
}

template <auto Member>
constexpr ArrayText text(std::size_t position) {
  return {position, std::remove_cvref_t<decltype(std::declval<R>().*Member)>::width,
          [](const VcmRecord& record) { return (record.*Member).view(); },
          [](VcmRecord& record, std::string_view value) { (record.*Member).assign(value); }};
}

constexpr std::array kNumbers = {
    number<&R::satNum>(VCM_NUM_SATNUM),
    date<&R::epoch>(VCM_NUM_EPOCH),
    number<&R::epochRev>(VCM_NUM_EPOCHREV),
    number<&R::j2kPos, 0>(VCM_NUM_J2KPOS),
    number<&R::j2kPos, 1>(VCM_NUM_J2KPOS + 1),
    number<&R::j2kPos, 2>(VCM_NUM_J2KPOS + 2),
    number<&R::j2kVel, 0>(VCM_NUM_J2KVEL),
    number<&R::j2kVel, 1>(VCM_NUM_J2KVEL + 1),
    number<&R::j2kVel, 2>(VCM_NUM_J2KVEL + 2),
    number<&R::eciPos, 0>(VCM_NUM_ECIPOS),
    number<&R::eciPos, 1>(VCM_NUM_ECIPOS + 1),
    number<&R::eciPos, 2>(VCM_NUM_ECIPOS + 2),
    number<&R::eciVel, 0>(VCM_NUM_ECIVEL),
    number<&R::eciVel, 1>(VCM_NUM_ECIVEL + 1),
    number<&R::eciVel, 2>(VCM_NUM_ECIVEL + 2),
    number<&R::efgPos, 0>(VCM_NUM_EFGPOS),
    number<&R::efgPos, 1>(VCM_NUM_EFGPOS + 1),
    number<&R::efgPos, 2>(VCM_NUM_EFGPOS + 2),
    number<&R::efgVel, 0>(VCM_NUM_EFGVEL),
    number<&R::efgVel, 1>(VCM_NUM_EFGVEL + 1),
    number<&R::efgVel, 2>(VCM_NUM_EFGVEL + 2),
    number<&R::geoZonals>(VCM_NUM_GEOZONALS),
    number<&R::geoTesserals>(VCM_NUM_GEOTESSERALS),
    number<&R::bTerm>(VCM_NUM_BTERM),
    number<&R::bDot>(VCM_NUM_BDOT),
    number<&R::agom>(VCM_NUM_AGOM),
    number<&R::edr>(VCM_NUM_EDR),
    number<&R::thrustAccel>(VCM_NUM_THRUSTACCEL),
    number<&R::cmOffset>(VCM_NUM_CMOFFSET),
    number<&R::f10>(VCM_NUM_F10),
    number<&R::avgF10>(VCM_NUM_AVGF10),
    number<&R::avgAp>(VCM_NUM_AVGAP),
    number<&R::taiMinusUtc>(VCM_NUM_TAIMINUSUTC),
    number<&R::ut1MinusUtc>(VCM_NUM_UT1MINUSUTC),
    millisecondRate<&R::ut1Rate>(VCM_NUM_UT1RATE),
    number<&R::polarMotionX>(VCM_NUM_POLARMOTIONX),
    number<&R::polarMotionY>(VCM_NUM_POLARMOTIONY),
    number<&R::nutationTerms>(VCM_NUM_NUTATIONTERMS),
    date<&R::leapSecondTime>(VCM_NUM_LEAPSECONDTIME),
    number<&R::initStepSize>(VCM_NUM_INITSTEPSIZE),
    number<&R::errorControl>(VCM_NUM_ERRORCONTROL),
    number<&R::posSigmas, 0>(VCM_NUM_POSSIGMAS),
    number<&R::posSigmas, 1>(VCM_NUM_POSSIGMAS + 1),
    number<&R::posSigmas, 2>(VCM_NUM_POSSIGMAS + 2),
    number<&R::velSigmas, 0>(VCM_NUM_VELSIGMAS),
    number<&R::velSigmas, 1>(VCM_NUM_VELSIGMAS + 1),
    number<&R::velSigmas, 2>(VCM_NUM_VELSIGMAS + 2),
    number<&R::covMtxSize>(VCM_NUM_COVMTXSIZE),
    number<&R::wtdRms>(VCM_NUM_WTDRMS),
};

// Positions 8 to 32 stay blank: a gap of a common name's width, deliberately kept.
constexpr std::array kTexts = {
    text<&R::intlDes>(VCM_CHAR_INTLDES),
    text<&R::geoName>(VCM_CHAR_GEONAME),
    text<&R::dragModel>(VCM_CHAR_DRAGMODEL),
    text<&R::lunarSolar>(VCM_CHAR_LUNARSOLAR),
    text<&R::radPress>(VCM_CHAR_RADPRESS),
    text<&R::earthTides>(VCM_CHAR_EARTHTIDES),
    text<&R::intrackThrust>(VCM_CHAR_INTRACKTHRUST),
    text<&R::integMode>(VCM_CHAR_INTEGMODE),
    text<&R::coordSys>(VCM_CHAR_COORDSYS),
    text<&R::partials>(VCM_CHAR_PARTIALS),
    text<&R::stepMode>(VCM_CHAR_STEPMODE),
    text<&R::fixedStep>(VCM_CHAR_FIXEDSTEP),
    text<&R::stepSelection>(VCM_CHAR_STEPSELECTION),
};

}  // namespace

constexpr std::span<const ArrayNumber> kArrayNumberLayout = kNumbers;
constexpr std::span<const ArrayText> kArrayTextLayout = kTexts;

}  // namespace vcm
