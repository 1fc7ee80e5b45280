/*
 * Gives a satellite another ballistic coefficient, in a copy of a file of messages.
 *
 *   change_field MESSAGES SATELLITE VALUE OUTPUT
 *   change_field samples/catalogue.vcm 1 0.0125 changed.vcm
 */
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

int main(int argc, char** argv) {
  char epoch[VCM_FIELD_VALUE_LENGTH];
  char before[VCM_FIELD_VALUE_LENGTH];
  char after[VCM_FIELD_VALUE_LENGTH];

  if (argc != 5) {
    fprintf(stderr, "usage: change_field MESSAGES SATELLITE VALUE OUTPUT\n");
    return 2;
  }
  VcmInit();
  if (VcmLoadFile(argv[1]) != 0) {
    return failed("loading");
  }
  const int64_t key = VcmGetSatKey(atoi(argv[2]));
  if (key == -1 || VcmGetField(key, VCM_FIELD_EPOCH, epoch) != 0 ||
      VcmGetField(key, VCM_FIELD_BTERM, before) != 0) {
    return failed("looking the satellite up");
  }
  if (VcmSetField(key, VCM_FIELD_BTERM, argv[3]) != 0 ||
      VcmGetField(key, VCM_FIELD_BTERM, after) != 0) {
    return failed("changing the field");
  }
  printf("satellite %s at %.*s: %.*s -> %.*s m2/kg\n", argv[2], lengthOf(epoch, sizeof epoch),
         epoch, lengthOf(before, sizeof before), before, lengthOf(after, sizeof after), after);
  if (VcmSaveFile(argv[4], 0) != 0) {
    return failed("saving");
  }
  printf("%d messages saved in %s\n", VcmGetCount(), argv[4]);
  return 0;
}
