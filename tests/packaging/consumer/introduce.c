/* Which host the library was linked with, and where its errors go. */
#include <stdio.h>
#include <vcm/Vcm.h>

int main(void) {
  char info[VCM_INFO_LENGTH];
  VcmInit();
  VcmGetInfo(info);
  printf("%.*s\n", VCM_INFO_LENGTH, info);
  return VcmGetSatKey(300) == -1 ? 0 : 1;
}
