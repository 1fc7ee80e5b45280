#include <cstdio>

#include "host/HostKeyModes.h"
#include "support/InterfaceStore.h"

namespace {

class SingleField : public InterfaceStore {};

const std::string kUnknown = "                123";

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
  ASSERT_GT(key, 0);
  int index = 0;
  for (const Row& row : rows) {
    EXPECT_EQ(row.index, ++index);
    EXPECT_EQ(field(key, row.index), row.golden) << row.index;
    const bool refused = row.index == VCM_FIELD_SATNUM || row.index == VCM_FIELD_EPOCH;
    EXPECT_EQ(VcmSetField(key, row.index, row.set.c_str()), refused ? 2 : 0) << row.index;
  }
  EXPECT_EQ(index, 42);
  for (const Row& row : rows) {
    EXPECT_EQ(field(key, row.index), row.got) << row.index;
  }
  EXPECT_EQ(trace_.takeErrors(),
            (Lines{"VcmSetField: Update to satellite's number is not allowed",
                   "VcmSetField: Update to satellite's epoch is not allowed"}));
}

TEST_F(SingleField, FreeFormNumbers) {
  const std::int64_t key = addGolden();
  const std::pair<const char*, const char*> rows[] = {
      {"0.5", "0.50000000000000000"},
      {"-0.1", "-0.10000000000000001"},
      {"0.0999", "9.9900000000000003E-002"},
      {"0", "0.0000000000000000"},
      {"1", "1.0000000000000000"},
      {"12345678901234568", "12345678901234568."},
      {"1e17", "1.0000000000000000E+017"},
      {"-1.7976931348623157e308", "-1.7976931348623157E+308"},
      {"5e-324", "4.9406564584124654E-324"}};
  for (const auto& [set, got] : rows) {
    EXPECT_EQ(VcmSetField(key, VCM_FIELD_EDR, set), 0);
    EXPECT_EQ(field(key, VCM_FIELD_EDR), got) << set;
    EXPECT_EQ(VcmSetField(key, VCM_FIELD_EDR, field(key, VCM_FIELD_EDR).c_str()), 0);
    EXPECT_EQ(field(key, VCM_FIELD_EDR), got) << "set to what was got";
  }
}

TEST_F(SingleField, Dates) {
  const std::int64_t key = addGolden();
  struct Row {
    const char *set, *got;
    int result;
  };
  const Row rows[] = {{"202400507080925000", "2024005070892.500", 0},  // 17 characters count
                      {"2024005070805250", "2024005070805.250", 0},
                      {"2024  5 7 8 9.25", "2024005070809.250", 0},
                      {"20240050708 9.25", "2024005070809.250", 0},
                      {"202400507080 05250", "2024005070800.525", 0},  // 3 implied decimals
                      {"", "0000000000000.000", 0},
                      {"2024abc070809.250", "0000000000000.000", 2},
                      {"today", "0000000000000.000", 2}};
  for (const Row& row : rows) {
    EXPECT_EQ(VcmSetField(key, VCM_FIELD_LEAPSECONDTIME, row.set), row.result) << row.set;
    EXPECT_EQ(field(key, VCM_FIELD_LEAPSECONDTIME), row.got) << row.set;
  }
  EXPECT_EQ(trace_.takeErrors(),
            (Lines{"VcmSetField: Cannot read \"2024abc070809.250\" as field leapSecondTime.",
                   "VcmSetField: Cannot read \"today\" as field leapSecondTime."}));
}

TEST_F(SingleField, DatesCarryAndStillMakeTheKey) {
  Arrays arrays = Arrays::of(addGolden());  // of 2028, day 206
  const auto dayOf2028 = [](int day, double seconds) {
    return 28695.0 + day - 206 + seconds / 86400.0;
  };
  for (const auto& [epoch, text] : {std::pair(dayOf2028(366, 86399.9996), "2029001000000.000"),
                                    std::pair(dayOf2028(365, 86399.9996), "2028366000000.000"),
                                    std::pair(dayOf2028(60, 3599.9996), "2028060010000.000"),
                                    std::pair(dayOf2028(60, 3599.9994), "2028060005959.999"),
                                    std::pair(dayOf2028(60, 8.9996), "2028060000009.000")}) {
    arrays.numbers[VCM_NUM_EPOCH] = epoch;
    const std::int64_t key = VcmAddSatFrFields(arrays.texts.data(), arrays.numbers.data());
    EXPECT_EQ(field(key, VCM_FIELD_EPOCH), text);
    EXPECT_EQ(VcmFieldsToSatKey(1, text), key) << text;
  }
}

TEST_F(SingleField, WhatIsRefusedChangesNothing) {
  const std::int64_t key = addGolden();
  const Arrays before = Arrays::of(key);
  const auto fails = [&](std::int64_t satKey, int index, const char* value, const Lines& errors) {
    EXPECT_EQ(VcmSetField(satKey, index, value), 2) << index;
    EXPECT_EQ(trace_.takeErrors(), errors) << index;
  };
  fails(123, VCM_FIELD_SATNUM, "5", {"VcmSetField: Update to satellite's number is not allowed"});
  fails(123, VCM_FIELD_BTERM, "5", unknownKey("VcmSetField", kUnknown));
  fails(123, 43, "5", unknownKey("VcmSetField", kUnknown));
  fails(key, VCM_FIELD_EPOCHREV, "100000",
        {" ValidateVcmValues: Invalid Epoch Revolution =       100000 (valid 0-99999)"});
  fails(key, VCM_FIELD_ECIVELY, "1000.5",
        {" ValidateVcmValues: Invalid ECI VelY = 1000.5 (valid -1E3 to 1E3)"});
  EXPECT_TRUE(Arrays::of(key) == before);

  // Text that is no number counts as 0, with the host's word for it.
  EXPECT_EQ(VcmSetField(key, VCM_FIELD_WTDRMS, "1.2.3"), 0);
  EXPECT_EQ(VcmSetField(key, VCM_FIELD_F10, "99999999999"), 0);
  EXPECT_EQ(trace_.takeErrors(), (Lines{"strtoreal: Cannot read \"1.2.3\" as a real number.",
                                        "strtoint: Cannot read \"99999999999\" as an integer."}));
  EXPECT_EQ(field(key, VCM_FIELD_WTDRMS) + field(key, VCM_FIELD_F10), fixed(0) + "0");
}

TEST_F(SingleField, UnknownKeysAndIndexes) {
  const std::int64_t key = addGolden();
  const Arrays before = Arrays::of(key);
  for (const int index : {0, -1, 43, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(field(key, index), "") << index;
    EXPECT_EQ(VcmSetField(key, index, "5"), 0) << index;
  }
  EXPECT_TRUE(Arrays::of(key) == before);
  EXPECT_EQ(trace_.takeErrors(), Lines{});
  std::string value(VCM_FIELD_VALUE_LENGTH, '?');
  EXPECT_EQ(VcmGetField(123, VCM_FIELD_BTERM, value.data()), 2);
  EXPECT_EQ(value, std::string(VCM_FIELD_VALUE_LENGTH, ' '));
  EXPECT_EQ(trace_.takeErrors(), unknownKey("VcmGetField", kUnknown));
}

TEST_F(SingleField, ValuesOfFullLengthAndDirectAddresses) {
  std::int32_t mode = 1;
  elsetkeymodeset(&mode);
  const std::int64_t key = addGolden();
  mode = 0;
  elsetkeymodeset(&mode);
  EXPECT_EQ(key % 2, 0) << "a direct address";
  std::string value(VCM_FIELD_VALUE_LENGTH, ' ');  // without a terminator of its own
  value.replace(500, 4, "0.25");
  EXPECT_EQ(VcmSetField(key, VCM_FIELD_AVGAP, value.data()), 0);
  EXPECT_EQ(field(key, VCM_FIELD_AVGAP), fixed(0.25));
  EXPECT_EQ(VcmRemoveSat(key), 0);
  EXPECT_EQ(VcmGetField(key, VCM_FIELD_AVGAP, value.data()), 2);
  EXPECT_EQ(VcmSetField(key, VCM_FIELD_AVGAP, "1"), 2);
  EXPECT_EQ(VcmRemoveSat(key), 2);
  EXPECT_EQ(VcmRemoveSat(-10), 2);
  std::string key19 = std::to_string(key);
  key19.insert(0, 19 - key19.size(), ' ');
  EXPECT_EQ(trace_.takeErrors(),
            (Lines{unknownKey("VcmGetField", key19)[0], unknownKey("VcmSetField", key19)[0],
                   "RemoveDMA: /DMA doesn't exist or was already deallocated",
                   "RemoveNode: Invalid DMA key (<=0)."}));
}

}  // namespace
