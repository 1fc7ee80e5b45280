#include <cstdio>
#include <tuple>

#include "support/InterfaceStore.h"

namespace {

class SingleField : public InterfaceStore {};

std::string fixed(double value) {
  char text[400];
  std::snprintf(text, sizeof text, "%.15f", value);
  return text;
}

TEST_F(SingleField, EachIsGotSetAndGotAgain) {
  // Index, what the golden message or the row before left there, what is set, what is got then.
  const std::tuple<int, std::string, std::string, std::string> rows[] = {
      {VCM_FIELD_SATNUM, "1", "", "1"},
      {VCM_FIELD_INTLDES, "89021F", "98067A", "98067A"},
      {VCM_FIELD_EPOCH, "2028206120431.384", "", "2028206120431.384"},
      {VCM_FIELD_EPOCHREV, "5513", "99999", "99999"},
      {VCM_FIELD_ECIPOSX, fixed(-11044.91823553), "1E7", fixed(1e7)},
      {VCM_FIELD_ECIPOSY, fixed(3239.31921365), " -1.5D+03", fixed(-1500)},
      {VCM_FIELD_ECIPOSZ, fixed(6221.00051833), ".25", fixed(0.25)},
      {VCM_FIELD_ECIVELX, fixed(2.903596202111), "-1000", fixed(-1000)},
      {VCM_FIELD_ECIVELY, fixed(3.053663290781), "1.5-3", fixed(0.0015)},
      {VCM_FIELD_ECIVELZ, fixed(3.565052342644), "+7.", fixed(7)},
      {VCM_FIELD_GEONAME, "EGM-96", "WGS-84/2", "WGS-84"},
      {VCM_FIELD_GEOZONALS, "70", "-1", "-1"},
      {VCM_FIELD_GEOTESSERALS, "70", "100", "**"},
      {VCM_FIELD_DRAGMODEL, "JAC70/MSIS90", "NONE", "NONE"},
      {VCM_FIELD_LUNARSOLAR, "ON", "   ABC", "ABC"},
      {VCM_FIELD_RADPRESS, "ON", "OFFX", "OFF"},
      {VCM_FIELD_EARTHTIDES, "OFF", "", ""},
      {VCM_FIELD_INTRACKTHRUST, "OFF", "ON", "ON"},
      {VCM_FIELD_BTERM, fixed(0.112473e-2), "0.1", fixed(0.1)},
      {VCM_FIELD_AGOM, fixed(0.358704e-2), "1e300", std::string(35, '*')},
      {VCM_FIELD_THRUSTACCEL, fixed(0), "-4e-16", fixed(-4e-16)},
      {VCM_FIELD_CMOFFSET, fixed(-0.559277), "-2.5", fixed(-2.5)},
      {VCM_FIELD_F10, "76", "1000", "***"},
      {VCM_FIELD_AVGF10, "129", "12 3", "123"},
      {VCM_FIELD_AVGAP, fixed(9.3), blanks(VCM_FIELD_VALUE_LENGTH - 4) + "0.259", fixed(0.25)},
      {VCM_FIELD_TAIMINUSUTC, fixed(37), "36.9", fixed(36.9)},
      {VCM_FIELD_UT1MINUSUTC, fixed(0.20345), "", fixed(0)},
      {VCM_FIELD_UT1RATE, fixed(0.308), "1.5", "1.500000000000000"},
      {VCM_FIELD_POLARMOTIONX, fixed(-0.2986), "1.2.3", fixed(0)},
      {VCM_FIELD_POLARMOTIONY, fixed(0.0534), "-0", "-0.000000000000000"},
      {VCM_FIELD_NUTATIONTERMS, "12", "+106", "106"},
      // A date: 17 characters count, the point may be left out, blanks are zeros.
      {VCM_FIELD_LEAPSECONDTIME, "2016366000000.000", "202400507080925000", "2024005070892.500"},
      {VCM_FIELD_LEAPSECONDTIME, "2024005070892.500", "2024005070805250", "2024005070805.250"},
      {VCM_FIELD_LEAPSECONDTIME, "2024005070805.250", "2024  5 7 8 9.25", "2024005070809.250"},
      {VCM_FIELD_LEAPSECONDTIME, "2024005070809.250", "202400507080 05250", "2024005070800.525"},
      {VCM_FIELD_LEAPSECONDTIME, "2024005070800.525", "", "0000000000000.000"},
      {VCM_FIELD_LEAPSECONDTIME, "0000000000000.000", "2016365235959.999", "2016365235959.999"},
      {VCM_FIELD_INTEGMODE, "ASW", "GAUSSJACKSON", "GAUSSJ"},
      {VCM_FIELD_PARTIALS, "ANALYTIC", "NUMERICAL", "NUMERICA"},
      {VCM_FIELD_STEPMODE, "TIME", "S", "S"},
      {VCM_FIELD_FIXEDSTEP, "OFF", "ON", "ON"},
      {VCM_FIELD_STEPSELECTION, "MANUAL", "AUTO", "AUTO"},
      {VCM_FIELD_INITSTEPSIZE, fixed(204.651), "60", fixed(60)},
      {VCM_FIELD_ERRORCONTROL, "0.265E-13", "-1e-15", "-0.100E-14"},
      {VCM_FIELD_WTDRMS, fixed(1.2828), "2", fixed(2)},
      {VCM_FIELD_BDOT, "7.3190499999999999E-011", "0.001", "1.0000000000000000E-003"},
      {VCM_FIELD_EDR, "3.8999999999999999E-004", "123.456", "123.45600000000000"}};
  const std::int64_t key = addGolden();
  for (const auto& [index, before, set, got] : rows) {
    EXPECT_EQ(field(key, index), before) << index;
    const bool isKey = index == VCM_FIELD_SATNUM || index == VCM_FIELD_EPOCH;
    EXPECT_EQ(VcmSetField(key, index, set.c_str()), isKey ? 2 : 0) << index;
    EXPECT_EQ(field(key, index), got) << index << " set to " << set;
  }
  EXPECT_EQ(trace_.takeErrors(), (Lines{"VcmSetField: Update to satellite's number is not allowed",
                                        "VcmSetField: Update to satellite's epoch is not allowed",
                                        "strtoreal: Cannot read \"1.2.3\" as a real number."}));
}

TEST_F(SingleField, DatesCarryAndStillMakeTheKey) {
  Arrays arrays = Arrays::of(addGolden());  // of 2028, day 206
  for (const auto& [day, seconds, text] : {std::tuple(366, 86399.9996, "2029001000000.000"),
                                           std::tuple(60, 3599.9996, "2028060010000.000"),
                                           std::tuple(60, 3599.9994, "2028060005959.999")}) {
    arrays[VCM_NUM_EPOCH] = 28695.0 + day - 206 + seconds / 86400.0;
    const std::int64_t key = arrays.add();
    EXPECT_EQ(field(key, VCM_FIELD_EPOCH), text);
    EXPECT_EQ(VcmFieldsToSatKey(1, text), key) << text;
  }
}

TEST_F(SingleField, WhatIsRefusedChangesNothing) {
  const std::int64_t key = addGolden();
  const Arrays before = Arrays::of(key);
  EXPECT_EQ(VcmSetField(123, VCM_FIELD_EPOCH, "5"), 2);
  EXPECT_EQ(VcmSetField(key, VCM_FIELD_ECIVELY, "1000.5"), 2);
  EXPECT_EQ(VcmSetField(key, VCM_FIELD_LEAPSECONDTIME, "2024abc070809.250"), 2);
  for (const int index : {0, -1, 43, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(field(key, index), "") << index;
    EXPECT_EQ(VcmSetField(key, index, "5"), 0) << index;
  }
  EXPECT_EQ(trace_.takeErrors(),
            (Lines{"VcmSetField: Update to satellite's epoch is not allowed",  // whatever the key
                   " ValidateVcmValues: Invalid ECI VelY = 1000.5 (valid -1E3 to 1E3)",
                   "VcmSetField: Cannot read \"2024abc070809.250\" as field leapSecondTime."}));
  EXPECT_TRUE(Arrays::of(key) == before);
}

}  // namespace
