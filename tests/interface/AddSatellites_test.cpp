#include "support/InterfaceStore.h"

namespace {

class AddSatellites : public InterfaceStore {};

constexpr const char* kGoldenEpoch = "2028206120431.384";

std::string concatenated(const Lines& lines) { return joined(lines, ""); }

TEST_F(AddSatellites, TextInEveryForm) {
  const std::int64_t key = VcmFieldsToSatKey(1, kGoldenEpoch);
  const Lines golden = goldenMessage();
  Lines noCovariance(golden.begin(), golden.begin() + 27);
  putAt(noCovariance[26], 42, " 0x 0");
  Lines oneLineAsLines = golden;
  oneLineAsLines[20].replace(38, 30, "2049 365 (31 DEC) 23:59:59.999");
  const std::string one = goldenOneLine();
  const auto full = [](std::string text, char fill = ' ') {
    text.resize(VCM_TEXT_LENGTH, fill);
    return text;
  };
  const std::pair<std::string, Lines> rows[] = {
      {full(areaOf(golden)), golden},
      {areaOf(golden), golden},
      {joined(golden), golden},
      {full(joined(golden, "\r\n")), golden},
      {concatenated(golden), golden},
      {full(concatenated(golden)), golden},
      {"before it " + joined(golden), {}},  // makes the first line a line of its own
      {joined(noCovariance), noCovariance},
      {joined(noCovariance) + "<> more\n<> and more\n", noCovariance},
      {one, oneLineAsLines},
      {full(one), oneLineAsLines},
      {full(one, '9'), oneLineAsLines},
  };
  for (const auto& [text, lines] : rows) {
    std::int64_t added = 4711;
    VcmAddSatFrLinesML(text.c_str(), &added);
    EXPECT_EQ(added, lines.empty() ? -1 : key) << text;
    std::string area(VCM_TEXT_LENGTH, '?');
    EXPECT_EQ(VcmGetLines(added, area.data()), lines.empty() ? 2 : 0);
    Lines expected = lines;
    if (!expected.empty()) {
      expected[4] = "<> COMMON NAME:";
    }
    EXPECT_EQ(linesOf(area), expected) << text;
    VcmRemoveAllSats();
  }
}

TEST_F(AddSatellites, TextThatIsRefused) {
  const Lines golden = goldenMessage();
  const std::string invalid = "AnyVcmStrings2Vcm: Invalid concatenated vcm string.";
  const std::string tooFew = "AnyVcmStrings2Vcm: Number of vcm records needs to be at least 27.";
  std::string badOneLine = goldenOneLine();
  putAt(badOneLine, 7, "1942400");
  Lines badEpoch = withText(golden, 6, 22, "1942 400");
  const Lines limits = {" ValidateVcmValues: Invalid Year of Epoch =         1942 (valid >=1956)",
                        " ValidateVcmValues: Invalid Day of Epoch =          400 (valid 1-365)"};
  const std::pair<std::string, Lines> rows[] = {
      {"", {invalid}},
      {std::string(VCM_TEXT_LENGTH, ' '), {invalid}},
      {"garbage \x01\xff, no marks", {invalid}},
      {joined(Lines(golden.begin(), golden.begin() + 26)), {tooFew}},
      {"<<<<>>>>", {tooFew}},
      {joined(golden).insert(200, 1, '\0').c_str(), {tooFew}},  // a NUL ends it
      {joined(withText(golden, 11, 4, "efg")),
       {"ReadVCMFrFileUnit: Invalid line caused read error @ 'EFG POS'."}},
      {joined(withText(golden, 36, 30, "x")),
       {"MultiLine2Vcm: Invalid line caused read error @ 'COVARIANCE MATRIX'."}},
      {joined(badEpoch), limits},
      {badOneLine, limits},
      {goldenOneLine().substr(0, 57),  // the shortest text that is told to be a one-line message
       {}},
  };
  for (const auto& [text, errors] : rows) {
    const std::int64_t expected = errors.empty() ? VcmFieldsToSatKey(1, kGoldenEpoch) : -1;
    EXPECT_EQ(VcmAddSatFrLines(text.c_str()), expected) << text;
    EXPECT_EQ(trace_.takeErrors(), errors) << text;
    EXPECT_EQ(VcmGetCount(), errors.empty() ? 1 : 0) << text;
  }
}

TEST_F(AddSatellites, DuplicatesAndCollisions) {
  const std::int64_t key = addGolden();
  std::string key19 = std::to_string(key);
  key19.insert(0, 19 - key19.size(), ' ');
  const Lines duplicate = {"AddRecToMem: Duplicated record/key " + key19 + " found."};
  EXPECT_EQ(addGolden(), 0);
  EXPECT_EQ(trace_.takeErrors(), duplicate);
  Arrays arrays = Arrays::of(key);
  std::int64_t added = 4711;
  VcmAddSatFrFieldsML(arrays.texts.data(), arrays.numbers.data(), &added);
  EXPECT_EQ(added, 0);
  EXPECT_EQ(trace_.takeErrors(), duplicate);
  // What a duplicate test does not look at, and what it does.
  arrays.numbers[VCM_NUM_WTDRMS] = 99.0;
  EXPECT_EQ(VcmAddSatFrFields(arrays.texts.data(), arrays.numbers.data()), 0);
  arrays.numbers[VCM_NUM_AGOM] = 99.0;
  const std::int64_t next = VcmAddSatFrFields(arrays.texts.data(), arrays.numbers.data());
  EXPECT_TRUE(next > key && VcmGetCount() == 2) << next;
}

TEST_F(AddSatellites, FieldsInAndOut) {
  Arrays arrays = Arrays::of(addGolden());
  VcmRemoveAllSats();
  // A name in the gap of the characters is lost; characters may end early, numbers come whole.
  arrays.texts.replace(8, 13, "NAME IN A GAP");
  const std::int64_t key = VcmAddSatFrFields(arrays.texts.c_str(), arrays.numbers.data());
  EXPECT_EQ(key, VcmFieldsToSatKey(1, kGoldenEpoch));
  arrays.texts.replace(8, 25, 25, ' ');
  const Arrays out = Arrays::of(key);
  EXPECT_EQ(out.texts, arrays.texts);
  for (std::size_t i = 0; i < arrays.numbers.size(); ++i) {
    EXPECT_DOUBLE_EQ(out.numbers[i], arrays.numbers[i])
        << i;  // dates and the UT1 rate are computed
  }

  const auto refused = [&](std::size_t position, double value, const Lines& errors) {
    Arrays bad = arrays;
    bad.numbers[position] = value;
    EXPECT_EQ(VcmAddSatFrFields(bad.texts.data(), bad.numbers.data()), -1) << position;
    EXPECT_EQ(trace_.takeErrors(), errors) << position;
  };
  refused(VCM_NUM_SATNUM, 1e9,
          {" ValidateVcmValues: Invalid satellite number =   1000000000 (valid = 1-999999999)"});
  refused(VCM_NUM_EPOCH, -1e300,
          {" ValidateVcmValues: Invalid Year of Epoch =            0 (valid >=1956)",
           " ValidateVcmValues: Invalid Day of Epoch =            0 (valid 1-366)"});
  refused(VCM_NUM_ECIVEL + 2, 1e308 * 10,
          {" ValidateVcmValues: Invalid ECI VelZ = inf (valid -1E3 to 1E3)"});
  EXPECT_EQ(VcmGetCount(), 1);

  // Texts that end with a NUL at once are blank.
  arrays.numbers[VCM_NUM_SATNUM] = 2.9;
  const std::int64_t second = VcmAddSatFrFields("", arrays.numbers.data());
  EXPECT_EQ(Arrays::of(second).texts, std::string(VCM_CHAR_ARRAY_LENGTH, ' '));
  EXPECT_EQ(field(second, VCM_FIELD_SATNUM), "2");
}

}  // namespace
