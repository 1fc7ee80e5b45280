#include <array>

#include "support/InterfaceStore.h"

namespace {

class BulkFields : public InterfaceStore {};

// Every output of VcmGetAllFields, in its order; texts between two characters that must stay.
struct AllFields {
  template <std::size_t N>
  struct Text {
    std::string area = std::string(N + 2, '?');
    char* data() { return area.data() + 1; }
    std::string value() const { return area.substr(1, N); }
    bool kept() const { return area.front() == '?' && area.back() == '?'; }
  };
  std::int32_t satNum = -1, epochRev = -1, geoZonals = -1, geoTesserals = -1, f10 = -1, avgF10 = -1,
               nutationTerms = -1;
  double bTerm = -1, agom = -1, thrustAccel = -1, cmOffset = -1, avgAp = -1, initStepSize = -1,
         errorControl = -1, wtdRms = -1;
  std::array<double, 3> eciPos{-1, -1, -1}, eciVel{-1, -1, -1};
  std::array<double, 5> timeTerms{-1, -1, -1, -1, -1};
  Text<8> intlDes, partials;
  Text<17> epoch, leapSecondTime;
  Text<6> geoName, integMode, stepSelection;
  Text<12> dragModel;
  Text<3> lunarSolar, radPress, earthTides, intrackThrust, fixedStep;
  Text<4> stepMode;

  int get(std::int64_t key) {
    return VcmGetAllFields(key, &satNum, intlDes.data(), epoch.data(), &epochRev, eciPos.data(),
                           eciVel.data(), geoName.data(), &geoZonals, &geoTesserals,
                           dragModel.data(), lunarSolar.data(), radPress.data(), earthTides.data(),
                           intrackThrust.data(), &bTerm, &agom, &thrustAccel, &cmOffset, &f10,
                           &avgF10, &avgAp, timeTerms.data(), &nutationTerms, leapSecondTime.data(),
                           integMode.data(), partials.data(), stepMode.data(), fixedStep.data(),
                           stepSelection.data(), &initStepSize, &errorControl, &wtdRms);
  }
  std::vector<double> numbers() const {
    return {double(satNum),
            double(epochRev),
            eciPos[0],
            eciPos[1],
            eciPos[2],
            eciVel[0],
            eciVel[1],
            eciVel[2],
            double(geoZonals),
            double(geoTesserals),
            bTerm,
            agom,
            thrustAccel,
            cmOffset,
            double(f10),
            double(avgF10),
            avgAp,
            timeTerms[0],
            timeTerms[1],
            timeTerms[2],
            timeTerms[3],
            timeTerms[4],
            double(nutationTerms),
            initStepSize,
            errorControl,
            wtdRms};
  }
  std::string texts() const {
    EXPECT_TRUE(intlDes.kept() && partials.kept() && epoch.kept() && leapSecondTime.kept() &&
                geoName.kept() && integMode.kept() && stepSelection.kept() && dragModel.kept() &&
                lunarSolar.kept() && radPress.kept() && earthTides.kept() && intrackThrust.kept() &&
                fixedStep.kept() && stepMode.kept());
    return intlDes.value() + epoch.value() + geoName.value() + dragModel.value() +
           lunarSolar.value() + radPress.value() + earthTides.value() + intrackThrust.value() +
           leapSecondTime.value() + integMode.value() + partials.value() + stepMode.value() +
           fixedStep.value() + stepSelection.value();
  }
};

TEST_F(BulkFields, AllFieldsOfAMessageAndOfNone) {
  const std::int64_t key = addGolden();
  AllFields fields;
  EXPECT_EQ(fields.get(key), 0);
  EXPECT_EQ(fields.texts(),
            "89021F  2028206120431.384EGM-96JAC70/MSIS90ON ON OFFOFF"
            "2016366000000.000ASW   ANALYTICTIMEOFFMANUAL");
  // The numbers are those of the array form.
  const std::vector<double> arrays = Arrays::of(key).numbers;
  std::vector<double> expected;
  for (const int position :
       {VCM_NUM_SATNUM,       VCM_NUM_EPOCHREV,     VCM_NUM_ECIPOS,        VCM_NUM_ECIPOS + 1,
        VCM_NUM_ECIPOS + 2,   VCM_NUM_ECIVEL,       VCM_NUM_ECIVEL + 1,    VCM_NUM_ECIVEL + 2,
        VCM_NUM_GEOZONALS,    VCM_NUM_GEOTESSERALS, VCM_NUM_BTERM,         VCM_NUM_AGOM,
        VCM_NUM_THRUSTACCEL,  VCM_NUM_CMOFFSET,     VCM_NUM_F10,           VCM_NUM_AVGF10,
        VCM_NUM_AVGAP,        VCM_NUM_TAIMINUSUTC,  VCM_NUM_UT1MINUSUTC,   VCM_NUM_UT1RATE,
        VCM_NUM_POLARMOTIONX, VCM_NUM_POLARMOTIONY, VCM_NUM_NUTATIONTERMS, VCM_NUM_INITSTEPSIZE,
        VCM_NUM_ERRORCONTROL, VCM_NUM_WTDRMS}) {
    expected.push_back(arrays[static_cast<std::size_t>(position)]);
  }
  EXPECT_EQ(fields.numbers(), expected);
  EXPECT_DOUBLE_EQ(fields.timeTerms[VCM_TIME_UT1RATE], 0.308);

  EXPECT_EQ(fields.get(-1), 2);
  EXPECT_EQ(fields.numbers(), std::vector<double>(26, 0.0));
  EXPECT_EQ(fields.texts(), std::string(99, ' '));
  EXPECT_EQ(trace_.takeErrors(), unknownKey("VcmGetAllFields", "                 -1"));
}

TEST_F(BulkFields, UpdateReplacesAllButNumberAndEpoch) {
  // From a one-line message, which has a common name.
  const std::int64_t key = VcmAddSatFrLines(goldenOneLine().c_str());
  Arrays arrays = Arrays::of(key);
  const double epoch = arrays.numbers[VCM_NUM_EPOCH];
  arrays.numbers[VCM_NUM_SATNUM] = 99.0;
  arrays.numbers[VCM_NUM_EPOCH] += 1000.0;
  arrays.numbers[VCM_NUM_BTERM] = 0.5;
  arrays.numbers[VCM_NUM_ECIPOS] = 1e300;  // new values are not held against limits
  arrays.numbers[VCM_NUM_COVMTXSIZE] = 0.9;
  arrays.texts.replace(VCM_CHAR_DRAGMODEL, 12, "NEW\tMODEL   ");
  EXPECT_EQ(VcmUpdateSatFrFields(key, arrays.texts.data(), arrays.numbers.data()), 0);
  Arrays updated = Arrays::of(key);
  EXPECT_EQ(updated.texts.substr(VCM_CHAR_DRAGMODEL, 12), "NEW MODEL   ");
  for (const auto& [position, number] :
       {std::pair(VCM_NUM_SATNUM, 1.0), std::pair(VCM_NUM_EPOCH, epoch),
        std::pair(VCM_NUM_BTERM, 0.5), std::pair(VCM_NUM_ECIPOS, 1e300),
        std::pair(VCM_NUM_COVMTXSIZE, 0.0), std::pair(VCM_NUM_COVARIANCE, 0.0)}) {
    EXPECT_EQ(updated.numbers[static_cast<std::size_t>(position)], number) << position;
  }
  // The message that is stored now breaks a limit, and so cannot be updated any more.
  EXPECT_EQ(VcmUpdateSatFrFields(key, updated.texts.data(), Arrays::zero().numbers.data()), 2);
  EXPECT_EQ(trace_.takeErrors(),
            Lines{" ValidateVcmValues: Invalid ECI PosX = 1e+300 (valid -1E7 to 1E7)"});
  EXPECT_TRUE(Arrays::of(key) == updated);
  EXPECT_EQ(VcmUpdateSatFrFields(5, updated.texts.data(), updated.numbers.data()), 2);
  EXPECT_EQ(trace_.takeErrors(), unknownKey("VcmUpdateSatFrFields", "                  5"));
}

}  // namespace
