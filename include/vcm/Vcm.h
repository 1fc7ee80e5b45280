/*
 * Vcm.h - an in-memory store of SP Vector/Covariance Messages (VCMs).
 *
 * Compiles as C99 and as C++. Link with libvcm and the host framework's libraries (the bundled host
 * comes with it).
 *
 * Conventions of every function
 *
 * Keys       A stored message is addressed by a signed 64-bit key, satKey. It is made of satellite
 *            number and epoch or, in the direct-address key mode, of a memory address. -1 is no key.
 * Texts      A text argument is an array of fixed length (the VCM_..._LENGTH named beside it), blank
 *            padded, not terminated on output. On input a NUL ends it, so that a C string is fine; no
 *            more than the fixed length is read.
 * Results    0 is success, 2 is "not found, refused or not readable". Other codes stand with the
 *            function that gives them.
 * Messages   A function that fails writes a line to the host's error trace; warnings and information
 *            go to the trace as information. The library keeps no error state. Nothing is thrown; only
 *            exhausted memory ends the process.
 * Threads    Every function may be called from any thread. Functions that read the store run side by
 *            side; one that changes it waits for them and has it alone.
 * Ownership  Everything passed in is copied; everything passed out is written into the caller's
 *            arrays. No pointer is kept.
 * Null       No argument may be null.
 */
#ifndef VCM_VCM_H
#define VCM_VCM_H

#include <stdint.h>

#if defined(VCM_BUILDING_LIBRARY)
#define VCM_API __attribute__((visibility("default")))
#else
#define VCM_API
#endif

#ifdef __cplusplus
#define VCM_NOEXCEPT noexcept
extern "C" {
#else
#define VCM_NOEXCEPT
#endif

/* ---- lengths of texts and arrays, in characters and elements ---------------------------- */

#define VCM_INFO_LENGTH 128       /* description of the library */
#define VCM_FILE_NAME_LENGTH 512  /* name of a file */
#define VCM_EPOCH_TEXT_LENGTH 20  /* epoch that a key is made of */
#define VCM_CHAR_ARRAY_LENGTH 512 /* texts of the array form */
#define VCM_NUM_ARRAY_LENGTH 512  /* numbers of the array form */

/* ---- orders of VcmGetLoaded ------------------------------------------------------------- */

#define VCM_ORDER_SATELLITE 0         /* by satellite number, then epoch */
#define VCM_ORDER_SATELLITE_REVERSE 1 /* the same backwards */
#define VCM_ORDER_LOADED 2            /* in the order of loading */
#define VCM_ORDER_KEY 3               /* by key; so is every other value */

/* ---- positions in the number array, counted from 0 -------------------------------------- */

#define VCM_NUM_SATNUM 0          /* satellite number */
#define VCM_NUM_EPOCH 1           /* days since 1950 UTC (1950 January 1, 0 h is 1.0) */
#define VCM_NUM_EPOCHREV 2        /* revolution number at epoch */
#define VCM_NUM_J2KPOS 3          /* to 5: J2000 position, km */
#define VCM_NUM_J2KVEL 6          /* to 8: J2000 velocity, km/s */
#define VCM_NUM_ECIPOS 9          /* to 11: ECI (true of date) position, km */
#define VCM_NUM_ECIVEL 12         /* to 14: ECI velocity, km/s */
#define VCM_NUM_EFGPOS 15         /* to 17: Earth-fixed position, km */
#define VCM_NUM_EFGVEL 18         /* to 20: Earth-fixed velocity, km/s */
#define VCM_NUM_GEOZONALS 21      /* zonal terms */
#define VCM_NUM_GEOTESSERALS 22   /* tesseral terms */
#define VCM_NUM_BTERM 23          /* ballistic coefficient, m2/kg */
#define VCM_NUM_BDOT 24           /* its rate, m2/kg-s */
#define VCM_NUM_AGOM 25           /* solar radiation pressure coefficient, m2/kg */
#define VCM_NUM_EDR 26            /* energy dissipation rate, W/kg */
#define VCM_NUM_THRUSTACCEL 27    /* thrust acceleration, m/s2 */
#define VCM_NUM_CMOFFSET 28       /* centre-of-mass offset, m */
#define VCM_NUM_F10 29            /* solar flux F10 */
#define VCM_NUM_AVGF10 30         /* average F10 */
#define VCM_NUM_AVGAP 31          /* average Ap */
#define VCM_NUM_TAIMINUSUTC 32    /* s */
#define VCM_NUM_UT1MINUSUTC 33    /* s */
#define VCM_NUM_UT1RATE 34        /* ms/day */
#define VCM_NUM_POLARMOTIONX 35   /* arcsec */
#define VCM_NUM_POLARMOTIONY 36   /* arcsec */
#define VCM_NUM_NUTATIONTERMS 37  /* IAU 1980 terms */
#define VCM_NUM_LEAPSECONDTIME 38 /* days since 1950 UTC */
#define VCM_NUM_INITSTEPSIZE 39   /* s */
#define VCM_NUM_ERRORCONTROL 40
#define VCM_NUM_POSSIGMAS 41   /* to 43: U, V, W, km */
#define VCM_NUM_VELSIGMAS 44   /* to 46: UD, VD, WD, km/s */
#define VCM_NUM_COVMTXSIZE 47  /* covariance dimension n; below 1 there is none */
#define VCM_NUM_WTDRMS 48      /* weighted RMS of the fit */
#define VCM_NUM_COVARIANCE 100 /* to 144: lower triangle of 9 x 9, row by row */

/* ---- positions in the character array, counted from 0 ----------------------------------- */

#define VCM_CHAR_INTLDES 0        /* 8: launch year (2), piece (6) */
#define VCM_CHAR_GEONAME 33       /* 6: geopotential model */
#define VCM_CHAR_DRAGMODEL 39     /* 12 */
#define VCM_CHAR_LUNARSOLAR 51    /* 3: ON or OFF, as the three below */
#define VCM_CHAR_RADPRESS 54      /* 3 */
#define VCM_CHAR_EARTHTIDES 57    /* 3 */
#define VCM_CHAR_INTRACKTHRUST 60 /* 3 */
#define VCM_CHAR_INTEGMODE 63     /* 6: integrator mode */
#define VCM_CHAR_COORDSYS 69      /* 5: integrator coordinate system */
#define VCM_CHAR_PARTIALS 74      /* 8 */
#define VCM_CHAR_STEPMODE 82      /* 4 */
#define VCM_CHAR_FIXEDSTEP 86     /* 3: ON or OFF */
#define VCM_CHAR_STEPSELECTION 89 /* 6 */

/* ---- lifecycle -------------------------------------------------------------------------- */

/*
 * Prepares the library. Call it once, after the host framework's own initialisation.
 *
 * Result: 0.
 */
VCM_API int32_t VcmInit(void) VCM_NOEXCEPT;

/*
 * Describes the library.
 *
 * Returned: info  name, version and host, blank padded (VCM_INFO_LENGTH).
 */
VCM_API void VcmGetInfo(char info[VCM_INFO_LENGTH]) VCM_NOEXCEPT;

/*
 * Counts the stored messages.
 *
 * Result: their number. It walks the whole store.
 */
VCM_API int32_t VcmGetCount(void) VCM_NOEXCEPT;

/*
 * Lists the keys of all stored messages.
 *
 * Given:    order    VCM_ORDER_SATELLITE, _SATELLITE_REVERSE, _LOADED or _KEY.
 * Returned: satKeys  as many keys as VcmGetCount gives. The array must have room for them: let no
 *                    thread add messages between that call and this one.
 *
 * An empty store leaves the array alone and writes "Warning-VcmGetLoaded: The binary tree is empty.
 * No satKey returns." as information.
 */
VCM_API void VcmGetLoaded(int32_t order, int64_t* satKeys) VCM_NOEXCEPT;

/*
 * Removes one message.
 *
 * Given:  satKey  its key.
 * Result: 0, or 2 when no such message is stored; why stands in the error trace.
 */
VCM_API int32_t VcmRemoveSat(int64_t satKey) VCM_NOEXCEPT;

/*
 * Removes all messages.
 *
 * Result: 0.
 */
VCM_API int32_t VcmRemoveAllSats(void) VCM_NOEXCEPT;

/* ---- keys ------------------------------------------------------------------------------- */

/*
 * Finds a stored message of a satellite. Of several, which one is not determined: list the keys to
 * see all.
 *
 * Given:  satNum  satellite number.
 * Result: its key, or -1 with "GetSatKey: Unable to locate satellite number <satNum> in the VCM
 *         binary tree." in the error trace.
 */
VCM_API int64_t VcmGetSatKey(int32_t satNum) VCM_NOEXCEPT;

/*
 * The same, for callers that cannot receive a 64-bit result.
 *
 * Returned: satKey  what the function also returns.
 */
VCM_API int64_t VcmGetSatKeyML(int32_t satNum, int64_t* satKey) VCM_NOEXCEPT;

/*
 * Makes the key of a satellite number and an epoch, as the host makes it for a message. The store
 * is not asked: the message may not be there, or may have moved to a later key because another
 * message had this one.
 *
 * Given:  satNum  satellite number, 0 to 999999999.
 *         epoch   UTC, in one of two forms, leading blanks allowed (VCM_EPOCH_TEXT_LENGTH):
 *                 "YYDDD.DDDDDDDD" (years 57 to 99 are 19xx) or "YYYYDDDHHMMSS.SSS".
 * Result: the key, or -1 when the number or the epoch is none.
 */
VCM_API int64_t VcmFieldsToSatKey(int32_t satNum, const char* epoch) VCM_NOEXCEPT;

/*
 * The same, for callers that cannot receive a 64-bit result.
 *
 * Returned: satKey  the key or -1.
 */
VCM_API void VcmFieldsToSatKeyML(int32_t satNum, const char* epoch, int64_t* satKey) VCM_NOEXCEPT;

/* ---- files ------------------------------------------------------------------------------ */

/*
 * Loads every good message of a file, and of the files that its directive cards name, into the
 * store. Multi-line, bare and one-line messages may be mixed with maneuver cards, comments (a "*"
 * in column 1) and any other text. A card QZ_DMA_ON anywhere in the file switches keys to direct
 * addresses.
 *
 * Given:  vcmFile  name of the file (VCM_FILE_NAME_LENGTH); blanks around it do not count. It may be
 *                  a pipe.
 * Result: 0, or the nonzero code of an open that failed (this file's or a named one's, or that of the
 *         temporary file which a pipe is copied to).
 *
 * Information: the file's name, and at the end
 * "Total VCMs = <n>, Loaded = <n>, Dup = <n>, Bad = <n>". Each message that is a duplicate or cannot
 * be read or stored has its line in the error trace. One file is loaded at a time: other threads'
 * loads wait.
 */
VCM_API int32_t VcmLoadFile(const char* vcmFile) VCM_NOEXCEPT;

/*
 * Saves every stored message as a multi-line message, ascending by key, behind a heading.
 *
 * Given:  vcmFile   name of the file (VCM_FILE_NAME_LENGTH); blanks around it do not count.
 *         saveMode  0 creates or replaces the file, any other value appends to it.
 * Result: 0, or the nonzero code of an open that failed. What a full disk does not take is not
 *         reported.
 *
 * Not saved: the common name, maneuver cards, and digits beyond those of the form's fields. Seconds of
 * 0.9995 or more above a whole one make their line a character longer than the form has it (59.9996
 * is written as 591.000): such a message does not load again as it was.
 */
VCM_API int32_t VcmSaveFile(const char* vcmFile, int32_t saveMode) VCM_NOEXCEPT;

/* ---- all fields ------------------------------------------------------------------------- */

/*
 * Gives a stored message in the array form.
 *
 * Given:    satKey        its key.
 * Returned: vcmCharArray  texts (VCM_CHAR_ARRAY_LENGTH), blanks where VCM_CHAR_... names nothing.
 *           vcmNumArray   numbers (VCM_NUM_ARRAY_LENGTH), 0 where VCM_NUM_... names nothing.
 * Result:   0, or 2 when no such message is stored: then "GetSatToFields: Unable to locate satKey
 *           <satKey> in the VCM binary tree." stands in the error trace, the characters are blank and
 *           the numbers as they were.
 */
VCM_API int32_t VcmRetrieveAllData(int64_t satKey, char vcmCharArray[VCM_CHAR_ARRAY_LENGTH],
                                   double vcmNumArray[VCM_NUM_ARRAY_LENGTH]) VCM_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif
