#include <cmath>
#include <tuple>

#include "support/InterfaceStore.h"

namespace {

class AddSatellites : public InterfaceStore {};

TEST_F(AddSatellites, TextInEveryForm) {
  const std::int64_t key = VcmFieldsToSatKey(1, "2028206120431.384");
  const Lines golden = goldenMessage();
  Lines noCovariance(golden.begin(), golden.begin() + 27);
  putAt(noCovariance[26], 42, " 0x 0");
  Lines oneLineAsLines = golden;
  putAt(oneLineAsLines[20], 39, "2049 365 (31 DEC) 23:59:59.999");
  std::string area;
  for (const std::string& line : golden) {
    area += line + blanks(80 - line.size());
  }
  const std::string one = goldenOneLine();
  const std::pair<std::string, Lines> rows[] = {
      {area + blanks(VCM_TEXT_LENGTH - area.size()), golden},
      {joined(golden), golden},
      {joined(golden, "\r\n"), golden},
      {joined(golden, ""), golden},
      {joined(noCovariance) + "<> more\n<> and more\n", noCovariance},
      {one, oneLineAsLines},
      {one + std::string(VCM_TEXT_LENGTH - one.size(), '9'), oneLineAsLines}};
  for (const auto& [text, lines] : rows) {
    std::int64_t added = 4711;
    VcmAddSatFrLinesML(text.c_str(), &added);
    EXPECT_EQ(added, key) << text;
    EXPECT_EQ(linesOf(written<VcmGetLines, VCM_TEXT_LENGTH>(0, added)), lines) << text;
    VcmRemoveAllSats();
  }
  // The shortest text that is told to be a one-line message.
  EXPECT_EQ(VcmAddSatFrLines(one.substr(0, 57).c_str()), key);
  EXPECT_EQ(trace_.takeErrors(), Lines{});
  EXPECT_EQ((written<VcmGetLines, VCM_TEXT_LENGTH>(2, 123)), blanks(VCM_TEXT_LENGTH));
  EXPECT_EQ(trace_.takeErrors(), Lines{unknownKey("VcmGetLines", 123)});
}

// By all functions that take a text, with the same words.
TEST_F(AddSatellites, TextThatIsRefused) {
  const Lines golden = goldenMessage();
  const Lines invalid = {"AnyVcmStrings2Vcm: Invalid concatenated vcm string."};
  const Lines tooFew = {"AnyVcmStrings2Vcm: Number of vcm records needs to be at least 27."};
  const Lines limits = {" ValidateVcmValues: Invalid Year of Epoch =         1942 (valid >=1956)",
                        " ValidateVcmValues: Invalid Day of Epoch =          400 (valid 1-365)"};
  std::string badOneLine = goldenOneLine();
  putAt(badOneLine, 7, "1942400");
  const std::string badEpoch = joined(withText(golden, 6, 22, "1942 400"));
  const std::pair<std::string, Lines> rows[] = {
      {"", invalid},
      {blanks(VCM_TEXT_LENGTH), invalid},
      {"garbage \x01\xff, no marks", invalid},
      {joined(Lines(golden.begin(), golden.begin() + 26)), tooFew},
      {"<<<<>>>>", tooFew},
      {joined(golden).insert(200, 1, '\0'), tooFew},  // a NUL ends it
      {"before it " + joined(golden),                 // makes the first line a line of its own
       {"MultiLine2Vcm: Invalid line caused read error @ 'SATELLITE NUMBER'."}},
      {joined(withText(golden, 11, 4, "efg")),
       {"ReadVCMFrFileUnit: Invalid line caused read error @ 'EFG POS'."}},
      {badOneLine, limits},
      {badEpoch, limits}};
  for (const auto& [text, errors] : rows) {
    EXPECT_EQ(VcmAddSatFrLines(text.c_str()), -1) << text;
    EXPECT_EQ(trace_.takeErrors(), errors) << text;
    if (text == badEpoch) {  // lines outside limits can still be converted
      EXPECT_EQ(Arrays::ofText(text)[VCM_NUM_EPOCHREV], 5513.0);
      EXPECT_EQ(toOneLine(text).substr(6, 7), "1942400");
      continue;
    }
    EXPECT_EQ(toOneLine(text, 2), blanks(VCM_ONE_LINE_LENGTH)) << text;
    EXPECT_EQ(trace_.takeErrors(), errors) << text;
    EXPECT_TRUE(Arrays::ofText(text, 2) == Arrays::zero()) << text;
    EXPECT_EQ(trace_.takeErrors(), errors) << text;
  }
  EXPECT_EQ(VcmGetCount(), 0);
}

TEST_F(AddSatellites, DuplicatesAndCollisions) {
  const std::int64_t key = addGolden();
  const Lines duplicate = {"AddRecToMem: Duplicated record/key " + shown(key) + " found."};
  EXPECT_EQ(addGolden(), 0);
  EXPECT_EQ(trace_.takeErrors(), duplicate);
  Arrays arrays = Arrays::of(key);
  arrays[VCM_NUM_WTDRMS] = 99.0;  // a duplicate all the same
  std::int64_t added = 4711;
  VcmAddSatFrFieldsML(arrays.texts.data(), arrays.numbers.data(), &added);
  EXPECT_EQ(added, 0);
  EXPECT_EQ(trace_.takeErrors(), duplicate);
  arrays[VCM_NUM_AGOM] = 99.0;
  const std::int64_t next = arrays.add();
  EXPECT_TRUE(next > key && VcmGetCount() == 2) << next;
}

TEST_F(AddSatellites, FieldsInAndOut) {
  Arrays arrays = Arrays::ofText(joined(goldenMessage()));
  // A name in the gap of the characters is lost.
  arrays.texts.replace(8, 25, 25, 'N');
  const Arrays out = Arrays::of(arrays.add());
  arrays.texts.replace(8, 25, 25, ' ');
  EXPECT_EQ(out.texts, arrays.texts);
  for (std::size_t i = 0; i < arrays.numbers.size(); ++i) {
    EXPECT_DOUBLE_EQ(out.numbers[i], arrays.numbers[i]) << i;  // dates are computed
  }
  for (const auto& [position, value, error] :
       {std::tuple(VCM_NUM_SATNUM, 1e9, "satellite number =   1000000000 (valid = 1-999999999)"),
        std::tuple(VCM_NUM_EPOCH, -1e300, "Year of Epoch =            0 (valid >=1956)"),
        std::tuple(VCM_NUM_ECIVEL + 2, HUGE_VAL, "ECI VelZ = inf (valid -1E3 to 1E3)")}) {
    Arrays bad = arrays;
    bad[position] = value;
    EXPECT_EQ(bad.add(), -1) << position;
    EXPECT_EQ(trace_.takeErrors().at(0), " ValidateVcmValues: Invalid " + std::string(error));
  }
  EXPECT_EQ(VcmGetCount(), 1);
  // Texts that end with a NUL at once are blank.
  arrays[VCM_NUM_SATNUM] = 2.9;
  const std::int64_t second = VcmAddSatFrFields("", arrays.numbers.data());
  EXPECT_EQ(Arrays::of(second).texts, blanks(VCM_CHAR_ARRAY_LENGTH));
  EXPECT_EQ(field(second, VCM_FIELD_SATNUM), "2");
}

}  // namespace
