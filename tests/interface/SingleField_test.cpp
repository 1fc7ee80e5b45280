#include <cstdio>
#include <tuple>

#include "host/HostKeyModes.h"
#include "support/InterfaceStore.h"

namespace {

class SingleField : public InterfaceStore {};

std::string fixed(double value) {
  char text[400];
  std::snprintf(text, sizeof text, "%.15f", value);
  return text;
}

TEST_F(SingleField, EachIsGotSetAndGotAgain) {
  struct Row {
    int index;
    std::string golden, set, got;
  };
  const std::string tooWide(35, '*');
  const Row rows[] = {
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
      {VCM_FIELD_AGOM, fixed(0.358704e-2), "1e300", tooWide},
      {VCM_FIELD_THRUSTACCEL, fixed(0), "-4e-16", fixed(-4e-16)},
      {VCM_FIELD_CMOFFSET, fixed(-0.559277), "12345678901234567890", tooWide},
      {VCM_FIELD_F10, "76", "1000", "***"},
      {VCM_FIELD_AVGF10, "129", "12 3", "123"},
      {VCM_FIELD_AVGAP, fixed(9.3), "999999999999999999", fixed(1e18)},
      {VCM_FIELD_TAIMINUSUTC, fixed(37), "36.9", fixed(36.9)},
      {VCM_FIELD_UT1MINUSUTC, fixed(0.20345), "", fixed(0)},
      {VCM_FIELD_UT1RATE, fixed(0.308), "1.5", "1.500000000000000"},
      {VCM_FIELD_POLARMOTIONX, fixed(-0.2986), "1e-400", fixed(0)},
      {VCM_FIELD_POLARMOTIONY, fixed(0.0534), "-0", "-0.000000000000000"},
      {VCM_FIELD_NUTATIONTERMS, "12", "+106", "106"},
      {VCM_FIELD_LEAPSECONDTIME, "2016366000000.000", "2016365235959.999", "2016365235959.999"},
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
  int index = 0;
  for (const Row& row : rows) {
    EXPECT_EQ(row.index, ++index);
    EXPECT_EQ(field(key, row.index), row.golden) << row.index;
    const bool refused = row.index == VCM_FIELD_SATNUM || row.index == VCM_FIELD_EPOCH;
    EXPECT_EQ(VcmSetField(key, row.index, row.set.c_str()), refused ? 2 : 0) << row.index;
  }
  for (const Row& row : rows) {
    EXPECT_EQ(field(key, row.index), row.got) << row.index;
  }
  EXPECT_EQ(index, VCM_FIELD_EDR);
}

// Set, got, and set to what was got.
TEST_F(SingleField, FreeFormNumbersAndDates) {
  const std::int64_t key = addGolden();
  constexpr int kDate = VCM_FIELD_LEAPSECONDTIME;
  // clang-format off
  const std::tuple<int, const char*, const char*, Lines> rows[] = {
      {VCM_FIELD_EDR, "0.5", "0.50000000000000000", {}}, {VCM_FIELD_EDR, "-0.1", "-0.10000000000000001", {}},
      {VCM_FIELD_EDR, "0.0999", "9.9900000000000003E-002", {}}, {VCM_FIELD_EDR, "0", "0.0000000000000000", {}},
      {VCM_FIELD_EDR, "12345678901234568", "12345678901234568.", {}}, {VCM_FIELD_EDR, "1", "1.0000000000000000", {}},
      {VCM_FIELD_EDR, "1e17", "1.0000000000000000E+017", {}}, {VCM_FIELD_EDR, "5e-324", "4.9406564584124654E-324", {}},
      {VCM_FIELD_EDR, "-1.7976931348623157e308", "-1.7976931348623157E+308", {}},
      // Text that is no number counts as 0, with the host's word for it.
      {VCM_FIELD_EDR, "1.2.3", "0.0000000000000000", {"strtoreal: Cannot read \"1.2.3\" as a real number."}},
      {VCM_FIELD_F10, "99999999999", "0", {"strtoint: Cannot read \"99999999999\" as an integer."}},
      {kDate, "202400507080925000", "2024005070892.500", {}},  // 17 characters count
      {kDate, "2024005070805250", "2024005070805.250", {}}, {kDate, "2024  5 7 8 9.25", "2024005070809.250", {}},
      {kDate, "20240050708 9.25", "2024005070809.250", {}}, {kDate, "202400507080 05250", "2024005070800.525", {}},
      {kDate, "", "0000000000000.000", {}}};
  // clang-format on
  for (const auto& [index, set, got, errors] : rows) {
    EXPECT_EQ(VcmSetField(key, index, set), 0) << set;
    EXPECT_EQ(trace_.takeErrors(), errors);
    EXPECT_EQ(field(key, index), got) << set;
    EXPECT_EQ(VcmSetField(key, index, got), 0) << got;
    EXPECT_EQ(field(key, index), got) << "set to what was got";
  }
}

TEST_F(SingleField, DatesCarryAndStillMakeTheKey) {
  Arrays arrays = Arrays::of(addGolden());  // of 2028, day 206
  // clang-format off
  const std::tuple<int, double, const char*> rows[] = {
      {366, 86399.9996, "2029001000000.000"}, {365, 86399.9996, "2028366000000.000"},
      {60, 3599.9996, "2028060010000.000"}, {60, 3599.9994, "2028060005959.999"}, {60, 8.9996, "2028060000009.000"}};
  // clang-format on
  for (const auto& [day, seconds, text] : rows) {
    arrays[VCM_NUM_EPOCH] = 28695.0 + day - 206 + seconds / 86400.0;
    const std::int64_t key = arrays.add();
    EXPECT_EQ(field(key, VCM_FIELD_EPOCH), text);
    EXPECT_EQ(VcmFieldsToSatKey(1, text), key) << text;
  }
}

TEST_F(SingleField, WhatIsRefusedChangesNothing) {
  const std::int64_t key = addGolden();
  const Arrays before = Arrays::of(key);
  // clang-format off
  const std::tuple<std::int64_t, int, const char*, std::string> rows[] = {  // what may not be set, whatever the key
      {123, VCM_FIELD_SATNUM, "5", "VcmSetField: Update to satellite's number is not allowed"},
      {123, VCM_FIELD_EPOCH, "5", "VcmSetField: Update to satellite's epoch is not allowed"},
      {123, VCM_FIELD_BTERM, "5", unknownKey("VcmSetField", 123)},
      {123, 43, "5", unknownKey("VcmSetField", 123)},
      {key, VCM_FIELD_EPOCHREV, "100000", " ValidateVcmValues: Invalid Epoch Revolution =       100000 (valid 0-99999)"},
      {key, VCM_FIELD_ECIVELY, "1000.5", " ValidateVcmValues: Invalid ECI VelY = 1000.5 (valid -1E3 to 1E3)"},
      {key, VCM_FIELD_LEAPSECONDTIME, "2024abc070809.250",
       "VcmSetField: Cannot read \"2024abc070809.250\" as field leapSecondTime."}};
  // clang-format on
  for (const auto& [satKey, index, value, error] : rows) {
    EXPECT_EQ(VcmSetField(satKey, index, value), 2) << index;
    EXPECT_EQ(trace_.takeErrors(), Lines{error}) << index;
  }
  for (const int index : {0, -1, 43, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(field(key, index), "") << index;
    EXPECT_EQ(VcmSetField(key, index, "5"), 0) << index;
  }
  EXPECT_EQ(trace_.takeErrors(), Lines{});
  EXPECT_TRUE(Arrays::of(key) == before);
  EXPECT_EQ((written<VcmGetField, VCM_FIELD_VALUE_LENGTH>(2, 123, VCM_FIELD_BTERM)),
            blanks(VCM_FIELD_VALUE_LENGTH));
  EXPECT_EQ(trace_.takeErrors(), Lines{unknownKey("VcmGetField", 123)});
}

TEST_F(SingleField, ValuesOfFullLengthAndDirectAddresses) {
  std::int32_t mode = 1;
  elsetkeymodeset(&mode);
  const std::int64_t key = addGolden();
  mode = 0;
  elsetkeymodeset(&mode);
  EXPECT_EQ(key % 2, 0) << "a direct address";
  // Without a terminator of its own.
  const std::string value = blanks(VCM_FIELD_VALUE_LENGTH - 4) + "0.25";
  EXPECT_EQ(VcmSetField(key, VCM_FIELD_AVGAP, std::vector(value.begin(), value.end()).data()), 0);
  EXPECT_EQ(field(key, VCM_FIELD_AVGAP), fixed(0.25));
  EXPECT_EQ(VcmRemoveSat(key), 0);
  EXPECT_EQ(VcmSetField(key, VCM_FIELD_AVGAP, "1"), 2);
  EXPECT_EQ(VcmRemoveSat(key), 2);
  EXPECT_EQ(VcmRemoveSat(-10), 2);
  EXPECT_EQ(trace_.takeErrors(), (Lines{unknownKey("VcmSetField", key),
                                        "RemoveDMA: /DMA doesn't exist or was already deallocated",
                                        "RemoveNode: Invalid DMA key (<=0)."}));
}

}  // namespace
