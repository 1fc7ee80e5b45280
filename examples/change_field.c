/*
 * Gives a satellite another ballistic coefficient, in a copy of a file of messages.
 *
 *   change_field MESSAGES SATELLITE VALUE OUTPUT
 *   change_field samples/catalogue.vcm 1 0.0125 changed.vcm
 */
#include <math.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <vcm/Vcm.h>

/* A text of the library as one that printf can print: without the blanks at its end. */
static int lengthOf(const char* text, int length) {
  while (length > 0 && text[length - 1] == ' ') {
    length--;
  }
  return length;
}

/* Why a call failed stands in the host's trace log. */
static int failed(const char* what) {
  fprintf(stderr, "%s failed; HOST_TRACE_LOG=- shows why\n", what);
  return 1;
}

static int wrong(const char* text, const char* what) {
  fprintf(stderr, "%s is no %s\n", text, what);
  return 2;
}

int main(int argc, char** argv) {
  char value[32];
  char* end = NULL;
  char epoch[VCM_FIELD_VALUE_LENGTH];
  char before[VCM_FIELD_VALUE_LENGTH];
  char after[VCM_FIELD_VALUE_LENGTH];

  if (argc != 5) {
    fprintf(stderr, "usage: change_field MESSAGES SATELLITE VALUE OUTPUT\n");
    return 2;
  }
  const long satellite = strtol(argv[2], &end, 10);
  if (end == argv[2] || *end != '\0' || satellite < 0 || satellite > INT32_MAX) {
    return wrong(argv[2], "satellite number");
  }
  const double bTerm = strtod(argv[3], &end);
  if (end == argv[3] || *end != '\0' || !isfinite(bTerm)) {
    return wrong(argv[3], "number"); /* the library would take it as 0 */
  }
  snprintf(value, sizeof value, "%.17g", bTerm);
  VcmInit();
  if (VcmLoadFile(argv[1]) != 0) {
    return failed("loading");
  }
  const int64_t key = VcmGetSatKey((int32_t)satellite);
  if (key == -1 || VcmGetField(key, VCM_FIELD_EPOCH, epoch) != 0 ||
      VcmGetField(key, VCM_FIELD_BTERM, before) != 0) {
    return failed("looking the satellite up");
  }
  if (VcmSetField(key, VCM_FIELD_BTERM, value) != 0 ||
      VcmGetField(key, VCM_FIELD_BTERM, after) != 0) {
    return failed("changing the field");
  }
  printf("satellite %ld at %.*s: %.*s -> %.*s m2/kg\n", satellite, lengthOf(epoch, sizeof epoch),
         epoch, lengthOf(before, sizeof before), before, lengthOf(after, sizeof after), after);
  if (VcmSaveFile(argv[4], 0) != 0) {
    return failed("saving");
  }
  printf("%d messages saved in %s\n", VcmGetCount(), argv[4]);
  return 0;
}
