/* Looks for a satellite in an empty store, and shows what the library says of it. */
#include <host/HostTrace.h>
#include <stdio.h>
#include <stdlib.h>
#include <vcm/Vcm.h>

static void show(int32_t isError, const char* text, int32_t length, void* context) {
  if (isError != 0) {
    printf("satellite %s: %.*s\n", (const char*)context, (int)length, text);
  }
}

int main(int argc, char** argv) {
  if (argc != 2) {
    return 2;
  }
  VcmInit();
  hosttracesink(show, argv[1]);
  return VcmGetSatKey(atoi(argv[1])) == -1 ? 0 : 1;
}
