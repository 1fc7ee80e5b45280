#include "VCM/VcmFormats/FieldTable.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

#include "Host/HostCore.h"
#include "VCM/VcmFormats/Field.h"
#include "VCM/VcmFormats/FieldDate.h"
#include "vcm/Vcm.h"

namespace vcm {

namespace {

// ---- formats: what the host's readers make of a value is taken as it is --------------------------

template <int Width>
struct IntegerValue : Integer<Width> {
  static bool read(std::string_view value, std::int32_t& member) {
    const auto length = static_cast<std::int32_t>(value.size());
    member = strtoint(value.data(), &length);
    return true;
  }
};

template <class Format>
struct Real : Format {
  static bool read(std::string_view value, double& member) {
    const auto length = static_cast<std::int32_t>(value.size());
    member = strtoreal(value.data(), &length);
    return true;
  }
};

using RealValue = Real<Fixed<35, 15, 0>>;
using ErrorControlValue = Real<Scientific<10, 3, 0>>;

struct GeneralNotation {
  static constexpr int width = kGeneralWidth;
  static constexpr Look look{"g17"};
  static void write(double value, char* out) { writeGeneral(out, value); }
};
using FreeFormValue = Real<GeneralNotation>;

struct MillisecondRateValue : RealValue {
  static void write(double value, char* out) {
    RealValue::write(value / kSecondsPerMillisecond, out);
  }
  static bool read(std::string_view value, double& member) {
    RealValue::read(value, member);
    member *= kSecondsPerMillisecond;
    return true;
  }
};

struct FieldDate {
  static constexpr int width = kFieldDateWidth;
  static constexpr Look look{"date"};
  static void write(const InputDate& date, char* out) { writeFieldDate(date, out); }
  static bool read(std::string_view value, InputDate& date) { return readFieldDate(value, date); }
};

// ---- rows ---------------------------------------------------------------------------------------

constexpr FieldKind kindOf(const std::int32_t&) { return FieldKind::integer; }
constexpr FieldKind kindOf(const double&) { return FieldKind::real; }
constexpr FieldKind kindOf(const InputDate&) { return FieldKind::date; }
template <std::size_t N>
constexpr FieldKind kindOf(const FixedText<N>&) {
  return FieldKind::text;
}

FieldValue valueOf(double member) { return member; }
FieldValue valueOf(const InputDate& member) { return inputDateToDs50(member); }
template <std::size_t N>
FieldValue valueOf(const FixedText<N>& member) {
  return withoutLeadingBlanks(withoutTrailingBlanks(member.view()));
}

template <auto Member, class Format, std::size_t... Component>
constexpr SingleField row(std::int32_t index, std::string_view name) {
  constexpr Field kField = field<Member, Format, Component...>({}, Column{1});
  constexpr FieldKind kKind = kindOf(
      std::remove_cvref_t<decltype(memberOf<Member, Component...>(std::declval<VcmRecord&>()))>());
  return {index,
          name,
          kKind,
          kField.width,
          [](const VcmRecord& record, char* out) {
            Format::write(memberOf<Member, Component...>(record), out);
          },
          [](const VcmRecord& record) { return valueOf(memberOf<Member, Component...>(record)); },
          kField.read,
          {},
          kField.look};
}

template <auto Member, class Format>
constexpr SingleField refused(std::int32_t index, std::string_view name,
                              std::string_view refusedAs) {
  SingleField result = row<Member, Format>(index, name);
  result.read = nullptr;
  result.refusedAs = refusedAs;
  return result;
}

using R = VcmRecord;

// clang-format off
constexpr std::array kFields = {
    refused<&R::satNum, Integer<9>>(VCM_FIELD_SATNUM, "satNum", "satellite's number"),
    row<&R::intlDes, Characters>(VCM_FIELD_INTLDES, "intlDes"),
    refused<&R::epoch, FieldDate>(VCM_FIELD_EPOCH, "epoch", "satellite's epoch"),
    row<&R::epochRev, IntegerValue<5>>(VCM_FIELD_EPOCHREV, "epochRev"),
    row<&R::eciPos, RealValue, 0>(VCM_FIELD_ECIPOSX, "eciPosX"),
    row<&R::eciPos, RealValue, 1>(VCM_FIELD_ECIPOSY, "eciPosY"),
    row<&R::eciPos, RealValue, 2>(VCM_FIELD_ECIPOSZ, "eciPosZ"),
    row<&R::eciVel, RealValue, 0>(VCM_FIELD_ECIVELX, "eciVelX"),
    row<&R::eciVel, RealValue, 1>(VCM_FIELD_ECIVELY, "eciVelY"),
    row<&R::eciVel, RealValue, 2>(VCM_FIELD_ECIVELZ, "eciVelZ"),
    row<&R::geoName, Characters>(VCM_FIELD_GEONAME, "geoName"),
    row<&R::geoZonals, IntegerValue<2>>(VCM_FIELD_GEOZONALS, "geoZonals"),
    row<&R::geoTesserals, IntegerValue<2>>(VCM_FIELD_GEOTESSERALS, "geoTesserals"),
    row<&R::dragModel, Characters>(VCM_FIELD_DRAGMODEL, "dragModel"),
    row<&R::lunarSolar, Characters>(VCM_FIELD_LUNARSOLAR, "lunarSolar"),
    row<&R::radPress, Characters>(VCM_FIELD_RADPRESS, "radPress"),
    row<&R::earthTides, Characters>(VCM_FIELD_EARTHTIDES, "earthTides"),
    row<&R::intrackThrust, Characters>(VCM_FIELD_INTRACKTHRUST, "intrackThrust"),
    row<&R::bTerm, RealValue>(VCM_FIELD_BTERM, "bTerm"),
    row<&R::agom, RealValue>(VCM_FIELD_AGOM, "agom"),
    row<&R::thrustAccel, RealValue>(VCM_FIELD_THRUSTACCEL, "thrustAccel"),
    row<&R::cmOffset, RealValue>(VCM_FIELD_CMOFFSET, "cmOffset"),
    row<&R::f10, IntegerValue<3>>(VCM_FIELD_F10, "f10"),
    row<&R::avgF10, IntegerValue<3>>(VCM_FIELD_AVGF10, "avgF10"),
    row<&R::avgAp, RealValue>(VCM_FIELD_AVGAP, "avgAp"),
    row<&R::taiMinusUtc, RealValue>(VCM_FIELD_TAIMINUSUTC, "taiMinusUtc"),
    row<&R::ut1MinusUtc, RealValue>(VCM_FIELD_UT1MINUSUTC, "ut1MinusUtc"),
    row<&R::ut1Rate, MillisecondRateValue>(VCM_FIELD_UT1RATE, "ut1Rate"),
    row<&R::polarMotionX, RealValue>(VCM_FIELD_POLARMOTIONX, "polarMotionX"),
    row<&R::polarMotionY, RealValue>(VCM_FIELD_POLARMOTIONY, "polarMotionY"),
    row<&R::nutationTerms, IntegerValue<3>>(VCM_FIELD_NUTATIONTERMS, "nutationTerms"),
    row<&R::leapSecondTime, FieldDate>(VCM_FIELD_LEAPSECONDTIME, "leapSecondTime"),
    row<&R::integMode, Characters>(VCM_FIELD_INTEGMODE, "integMode"),
    row<&R::partials, Characters>(VCM_FIELD_PARTIALS, "partials"),
    row<&R::stepMode, Characters>(VCM_FIELD_STEPMODE, "stepMode"),
    row<&R::fixedStep, Characters>(VCM_FIELD_FIXEDSTEP, "fixedStep"),
    row<&R::stepSelection, Characters>(VCM_FIELD_STEPSELECTION, "stepSelection"),
    row<&R::initStepSize, RealValue>(VCM_FIELD_INITSTEPSIZE, "initStepSize"),
    row<&R::errorControl, ErrorControlValue>(VCM_FIELD_ERRORCONTROL, "errorControl"),
    row<&R::wtdRms, RealValue>(VCM_FIELD_WTDRMS, "wtdRms"),
    row<&R::bDot, FreeFormValue>(VCM_FIELD_BDOT, "bDot"),
    row<&R::edr, FreeFormValue>(VCM_FIELD_EDR, "edr"),
};
// clang-format on

// A field is found by its place, which is its index less one.
constexpr bool inOrder() {
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    if (kFields[i].index != static_cast<std::int32_t>(i) + 1 || kFields[i].width > kMaxFieldWidth) {
      return false;
    }
  }
  return true;
}
static_assert(inOrder());

}  // namespace

constexpr std::span<const SingleField> kSingleFields = kFields;

const SingleField* findSingleField(std::int32_t index) {
  const bool known = index >= 1 && static_cast<std::size_t>(index) <= kFields.size();
  return known ? &kFields[static_cast<std::size_t>(index) - 1] : nullptr;
}

}  // namespace vcm
