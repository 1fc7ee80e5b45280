// The key modes of the bundled host, for the application that owns the process. Plain C.
//
// Mode 1 makes keys out of addresses, any other value makes ordinary keys out of satellite number and
// epoch. While `useAllKeyMode` is nonzero the all-key mode counts, otherwise the element-set key mode.
// Set them before other threads use the library.
#ifndef HOST_HOSTKEYMODES_H
#define HOST_HOSTKEYMODES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The library's own headers declare these, too: the compiler holds both against each other. */
/* NOLINTBEGIN(readability-redundant-declaration) */
extern int32_t useAllKeyMode;
int32_t allkeymodeget(void);
void allkeymodeset(const int32_t* mode);
int32_t elsetkeymodeget(void);
void elsetkeymodeset(const int32_t* mode);
/* NOLINTEND(readability-redundant-declaration) */

#ifdef __cplusplus
}
#endif

#endif
