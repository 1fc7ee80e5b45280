/* The header compiles as C99, and its functions work from C: each on the arrays, of exact size, that
   others have filled. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "vcm/Vcm.h"

static void require(int condition, const char* what) {
  if (!condition) {
    fprintf(stderr, "failed: %s\n", what);
    exit(1);
  }
}

int main(int argc, char** argv) {
  char texts[VCM_CHAR_ARRAY_LENGTH];
  double numbers[VCM_NUM_ARRAY_LENGTH];
  char text[VCM_TEXT_LENGTH];
  char line[VCM_ONE_LINE_LENGTH];
  char value[VCM_FIELD_VALUE_LENGTH];
  int64_t key = 0;
  int64_t* keys;

  require(argc == 2 && VcmInit() == 0 && VcmLoadFile(argv[1]) == 0, "VcmLoadFile");
  keys = malloc((size_t)VcmGetCount() * sizeof *keys);
  VcmGetLoaded(VCM_ORDER_SATELLITE, keys);
  require(VcmGetSatKeyML(1, &key) == keys[0] && key == keys[0], "VcmGetSatKeyML");
  VcmFieldsToSatKeyML(1, "2028206120431.384", &key);
  require(key == keys[0], "VcmFieldsToSatKeyML");
  require(VcmRetrieveAllData(key, texts, numbers) == 0, "VcmRetrieveAllData");
  require(VcmSetField(key, VCM_FIELD_BTERM, "0.125") == 0, "VcmSetField");
  require(VcmGetField(key, VCM_FIELD_BTERM, value) == 0, "VcmGetField");
  require(memcmp(value, "0.125000000000000 ", 18) == 0, "value of a field");
  require(VcmGetLines(key, text) == 0 && VcmMultiLineTo1Line(text, line) == 0, "VcmGetLines");
  require(Vcm1LineToMultiLine(line, text) == 0, "Vcm1LineToMultiLine");
  require(VcmAddSatFrLines(text) == 0, "VcmAddSatFrLines, a duplicate");
  require(VcmStringToArray(line, numbers, texts) == 0, "VcmStringToArray");
  require(VcmArrayToVcmLines(numbers, texts, text) == 0, "VcmArrayToVcmLines");
  require(VcmArrayToVcm1Line(numbers, texts, line) == 0, "VcmArrayToVcm1Line");
  require(VcmUpdateSatFrFields(key, texts, numbers) == 0, "VcmUpdateSatFrFields");
  require(VcmRemoveSat(key) == 0 && VcmRemoveSat(key) == 2, "VcmRemoveSat");
  VcmAddSatFrFieldsML(texts, numbers, &key);
  require(key == keys[0] && VcmRemoveSat(key) == 0, "VcmAddSatFrFieldsML");
  VcmAddSatFrLinesML(line, &key);
  require(key == keys[0], "VcmAddSatFrLinesML");
  require(VcmRemoveAllSats() == 0 && VcmGetCount() == 0, "VcmRemoveAllSats");
  free(keys);
  return 0;
}
