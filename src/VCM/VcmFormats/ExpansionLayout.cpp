#include "VCM/VcmFormats/ExpansionLayout.h"

#include <array>

namespace vcm {

namespace {

// Common name and designator are taken a column to the right of where the one-line layout has them,
// deliberately.
constexpr ExpansionLine kSatellite{
    "<> SATELLITE NUMBER: {1-5}                    INT. DES.: {1491-1500} "};
constexpr ExpansionLine kCommonName{"<> COMMON NAME: {1466-1490}", false};

constexpr std::array kFull = {
    ExpansionLine{"<> SP VECTOR/COVARIANCE MESSAGE - V2.0", false},
    ExpansionLine{"<>", false},
    ExpansionLine{"<> MESSAGE TIME (UTC):                                  CENTER:", false},
    kSatellite,
    kCommonName,
    ExpansionLine{
        "<> EPOCH TIME (UTC):{6-10} {11-13} ({date}) {14-15}:{16-17}:{18-23}  EPOCH REV:{24-29}"},
    ExpansionLine{"<> J2K POS (KM):{30-82}"},
    ExpansionLine{"<> J2K VEL (KM/S):{83-133}"},
    ExpansionLine{"<> ECI POS (KM):{134-186}"},
    ExpansionLine{"<> ECI VEL (KM/S):{187-237}"},
    ExpansionLine{"<> EFG POS (KM):{238-290}"},
    ExpansionLine{"<> EFG VEL (KM/S):{291-341}"},
    ExpansionLine{"<> GEOPOTENTIAL:{342-356}  DRAG:{357-369}  LUNAR/SOLAR:{370-373}"},
    ExpansionLine{
        "<> SOLAR RAD PRESS:{374-377}  SOLID EARTH TIDES:{378-381}  IN-TRACK THRUST:{382-385}"},
    ExpansionLine{"<> BALLISTIC COEF (M2/KG):{386-399} BDOT (M2/KG-S):{400-412}"},
    ExpansionLine{"<> SOLAR RAD PRESS COEFF (M2/KG):{413-426}  EDR(W/KG):{427-436}"},
    ExpansionLine{"<> THRUST ACCEL (M/S2):{437-450}  C.M. OFFSET (M):{451-464}"},
    ExpansionLine{"<> SOLAR FLUX: F10:{465-468}  AVERAGE F10:{469-472}  AVERAGE AP:{473-478}"},
    ExpansionLine{"<> TAI-UTC (S):{479-481}  UT1-UTC (S):{482-490}  UT1 RATE (MS/DAY):{491-497}"},
    ExpansionLine{"<> POLAR MOT X,Y (ARCSEC):{498-513} IAU 1980 NUTAT:{514-517} TERMS"},
    ExpansionLine{"<> TIME CONST LEAP SECOND TIME (UTC): 2049 365 (31 DEC) 23:59:59.999"},
    ExpansionLine{"<> INTEGRATOR MODE:{518-530} COORD SYS:{531-536}  PARTIALS:{547-555}"},
    ExpansionLine{"<> STEP MODE:{566-571} FIXED STEP:{572-575}  STEP SIZE SELECTION:{576-582}"},
    ExpansionLine{"<> INITIAL STEP SIZE (S):{583-591}  ERROR CONTROL:{592-601}"},
    ExpansionLine{"<> VECTOR U,V,W SIGMAS (KM):      {602-634}"},
    ExpansionLine{"<> VECTOR UD,VD,WD SIGMAS (KM/S): {635-667}"},
    ExpansionLine{"<> COVARIANCE MATRIX (EQUINOCTIAL ELS):{668-675} WTD RMS:{676-688}"},
};

// The older form: no integrator settings, no leap second, no energy dissipation rate, no date.
constexpr std::array kShort = {
    ExpansionLine{"<> SP VECTOR/COVARIANCE MESSAGE", false},
    kFull[1],
    ExpansionLine{"<> MESSAGE PREPARATION TIME:                            CENTER:", false},
    kSatellite,
    kCommonName,
    ExpansionLine{
        "<> EPOCH TIME (UTC):{6-10} {11-13} {14-15} {16-17} {18-23}    EPOCH REV:{24-29}"},
    kFull[6],
    kFull[7],
    kFull[8],
    kFull[9],
    kFull[10],
    kFull[11],
    kFull[12],
    kFull[13],
    kFull[14],
    ExpansionLine{"<> SOLAR RAD PRESS COEFF (M2/KG):{413-426}"},
    kFull[16],
    kFull[17],
    kFull[18],
    kFull[19],
    kFull[24],
    kFull[25],
    kFull[26],
};

}  // namespace

constexpr std::span<const ExpansionLine> kFullForm = kFull;
constexpr std::span<const ExpansionLine> kShortForm = kShort;

}  // namespace vcm
