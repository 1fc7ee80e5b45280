#include "support/InterfaceStore.h"

namespace {

class AddSatellites : public InterfaceStore {};

TEST_F(AddSatellites, TextWithWhatDoesNotCount) {
  Lines noCovariance = withText(goldenMessage(), 27, 42, " 0x 0");
  noCovariance.resize(27);
  std::int64_t key = 4711;
  VcmAddSatFrLinesML((joined(noCovariance, "\r\n") + "<> more\n<> and more").c_str(), &key);
  const std::string lines = written<VcmGetLines, VCM_TEXT_LENGTH>(0, key);
  noCovariance[26].resize(VCM_TEXT_LENGTH - 2080, ' ');
  EXPECT_EQ(lines.substr(2080), noCovariance[26]);
  // The shortest text that is told to be a one-line message; it has another state.
  EXPECT_GT(VcmAddSatFrLines(goldenOneLine().substr(0, 57).c_str()), key);
  EXPECT_EQ(trace_.takeErrors(), Lines{});
}

// By all functions that take a text, with the same words.
TEST_F(AddSatellites, TextThatIsRefused) {
  const Lines golden = goldenMessage();
  const std::string limit =
      " ValidateVcmValues: Invalid Year of Epoch =         1942 (valid >=1956)";
  std::string badOneLine = goldenOneLine();
  putAt(badOneLine, 7, "1942");
  const std::pair<std::string, std::string> rows[] = {
      {"", "AnyVcmStrings2Vcm: Invalid concatenated vcm string."},
      {joined(Lines(golden.begin(), golden.begin() + 26)),
       "AnyVcmStrings2Vcm: Number of vcm records needs to be at least 27."},
      {"before it " + joined(golden),  // makes the first line a line of its own
       "MultiLine2Vcm: Invalid line caused read error @ 'SATELLITE NUMBER'."},
      {badOneLine, limit}};
  for (const auto& [text, error] : rows) {
    EXPECT_EQ(VcmAddSatFrLines(text.c_str()), -1) << text;
    EXPECT_EQ(toOneLine(text, 2), blanks(VCM_ONE_LINE_LENGTH)) << text;
    EXPECT_TRUE(Arrays::ofText(text, 2) == Arrays::zero()) << text;
    EXPECT_EQ(trace_.takeErrors(), Lines(3, error)) << text;
  }
  // Lines outside limits can still be converted.
  const std::string badLines = joined(withText(golden, 6, 22, "1942"));
  EXPECT_EQ(toOneLine(badLines).substr(6, 7), "1942206");
  EXPECT_EQ(Arrays::ofText(badLines)[VCM_NUM_EPOCHREV], 5513.0);
  EXPECT_EQ(VcmAddSatFrLines(badLines.c_str()), -1);
  EXPECT_EQ(trace_.takeErrors(), Lines{limit});
  EXPECT_EQ(VcmGetCount(), 0);
}

TEST_F(AddSatellites, Fields) {
  Arrays arrays = Arrays::of(addGolden());
  std::int64_t key = 4711;
  VcmAddSatFrFieldsML(arrays.texts.data(), arrays.numbers.data(), &key);
  EXPECT_EQ(key, 0) << "a duplicate";
  // Integers are truncated, and texts that end with a NUL at once are blank.
  arrays[VCM_NUM_SATNUM] = 2.9;
  VcmAddSatFrFieldsML("", arrays.numbers.data(), &key);
  EXPECT_EQ(Arrays::of(key).texts, blanks(VCM_CHAR_ARRAY_LENGTH));
  EXPECT_EQ(field(key, VCM_FIELD_SATNUM), "2");
  arrays[VCM_NUM_EPOCH] = -1e300;
  EXPECT_EQ(arrays.add(), -1);
}

}  // namespace
