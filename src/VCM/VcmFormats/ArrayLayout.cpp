#include "VCM/VcmFormats/ArrayLayout.h"

#include <array>

#include "VCM/VcmFormats/Field.h"

namespace vcm {

namespace {

using R = VcmRecord;

// A number as it stands, or one component of a vector.
template <auto Member, std::size_t... Component>
constexpr ArrayNumber number(std::size_t position) {
  return {position, [](const VcmRecord& record) {
            return static_cast<double>(memberOf<Member, Component...>(record));
          }};
}

// A date, as days since 1950 UTC.
template <auto Member>
constexpr ArrayNumber date(std::size_t position) {
  return {position, [](const VcmRecord& record) { return inputDateToDs50(record.*Member); }};
}

// A rate of seconds per day, as milliseconds per day.
template <auto Member>
constexpr ArrayNumber millisecondRate(std::size_t position) {
  return {position,
          [](const VcmRecord& record) { return record.*Member / kSecondsPerMillisecond; }};
}

template <auto Member>
constexpr ArrayText text(std::size_t position) {
  return {position, [](const VcmRecord& record) { return (record.*Member).view(); }};
}

constexpr std::array kNumbers = {
    number<&R::satNum>(0),
    date<&R::epoch>(1),
    number<&R::epochRev>(2),
    number<&R::j2kPos, 0>(3),
    number<&R::j2kPos, 1>(4),
    number<&R::j2kPos, 2>(5),
    number<&R::j2kVel, 0>(6),
    number<&R::j2kVel, 1>(7),
    number<&R::j2kVel, 2>(8),
    number<&R::eciPos, 0>(9),
    number<&R::eciPos, 1>(10),
    number<&R::eciPos, 2>(11),
    number<&R::eciVel, 0>(12),
    number<&R::eciVel, 1>(13),
    number<&R::eciVel, 2>(14),
    number<&R::efgPos, 0>(15),
    number<&R::efgPos, 1>(16),
    number<&R::efgPos, 2>(17),
    number<&R::efgVel, 0>(18),
    number<&R::efgVel, 1>(19),
    number<&R::efgVel, 2>(20),
    number<&R::geoZonals>(21),
    number<&R::geoTesserals>(22),
    number<&R::bTerm>(23),
    number<&R::bDot>(24),
    number<&R::agom>(25),
    number<&R::edr>(26),
    number<&R::thrustAccel>(27),
    number<&R::cmOffset>(28),
    number<&R::f10>(29),
    number<&R::avgF10>(30),
    number<&R::avgAp>(31),
    number<&R::taiMinusUtc>(32),
    number<&R::ut1MinusUtc>(33),
    millisecondRate<&R::ut1Rate>(34),
    number<&R::polarMotionX>(35),
    number<&R::polarMotionY>(36),
    number<&R::nutationTerms>(37),
    date<&R::leapSecondTime>(38),
    number<&R::initStepSize>(39),
    number<&R::errorControl>(40),
    number<&R::posSigmas, 0>(41),
    number<&R::posSigmas, 1>(42),
    number<&R::posSigmas, 2>(43),
    number<&R::velSigmas, 0>(44),
    number<&R::velSigmas, 1>(45),
    number<&R::velSigmas, 2>(46),
    number<&R::covMtxSize>(47),
    number<&R::wtdRms>(48),
};

// Positions 8 to 32 stay blank: a gap of a common name's width, deliberately kept.
constexpr std::array kTexts = {
    text<&R::intlDes>(0),        text<&R::geoName>(33),   text<&R::dragModel>(39),
    text<&R::lunarSolar>(51),    text<&R::radPress>(54),  text<&R::earthTides>(57),
    text<&R::intrackThrust>(60), text<&R::integMode>(63), text<&R::coordSys>(69),
    text<&R::partials>(74),      text<&R::stepMode>(82),  text<&R::fixedStep>(86),
    text<&R::stepSelection>(89),
};

}  // namespace

constexpr std::span<const ArrayNumber> kArrayNumberLayout = kNumbers;
constexpr std::span<const ArrayText> kArrayTextLayout = kTexts;

}  // namespace vcm
