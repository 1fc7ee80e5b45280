/**
 * @file
 * Vcm.h - an in-memory store of SP Vector/Covariance Messages (VCMs).
 *
 * Compiles as C99 and as C++. Link with libvcm and the host framework's libraries (the bundled host
 * comes with it).
 *
 * Conventions of every function:
 *
 * - Keys: A stored message is addressed by a signed 64-bit key, satKey. It is made of satellite
 *   number and epoch or, in the direct-address key mode, of a memory address. -1 is no key.
 * - Texts: A text argument is an array of fixed length (the VCM_..._LENGTH named beside it), blank
 *   padded, not terminated on output. On input a NUL ends it, so that a C string is fine; no more
 *   than the fixed length is read.
 * - Results: 0 is success, 2 is "not found, refused or not readable". Other codes stand with the
 *   function that gives them.
 * - Messages: A function that fails writes a line to the host's error trace; warnings and
 *   information go to the trace as information. The library keeps no error state. Nothing is
 *   thrown; only exhausted memory ends the process.
 * - Threads: Every function may be called from any thread. Functions that read the store run side
 *   by side; one that changes it waits for them and has it alone.
 * - Ownership: Everything passed in is copied; everything passed out is written into the caller's
 *   arrays. No pointer is kept.
 * - Null: No argument may be null.
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

#define VCM_INFO_LENGTH 128        /**< description of the library */
#define VCM_FILE_NAME_LENGTH 512   /**< name of a file */
#define VCM_EPOCH_TEXT_LENGTH 20   /**< epoch that a key is made of */
#define VCM_TEXT_LENGTH 4000       /**< multi-line message: 50 lines of 80 characters */
#define VCM_ONE_LINE_LENGTH 1500   /**< one-line message */
#define VCM_FIELD_VALUE_LENGTH 512 /**< value of a field */
#define VCM_CHAR_ARRAY_LENGTH 512  /**< texts of the array form */
#define VCM_NUM_ARRAY_LENGTH 512   /**< numbers of the array form */

/* ---- lengths of the texts in a message, in characters ----------------------------------- */

#define VCM_INTLDES_LENGTH 8    /**< international designator: launch year (2), piece (6) */
#define VCM_DATE_LENGTH 17      /**< yyyydddhhmmss.sss (ddd: day of the year), rounded to the ms */
#define VCM_GEONAME_LENGTH 6    /**< geopotential model */
#define VCM_DRAGMODEL_LENGTH 12 /**< drag model */
#define VCM_ONOFF_LENGTH 3      /**< ON or OFF */
#define VCM_INTEGMODE_LENGTH 6  /**< integrator mode */
#define VCM_COORDSYS_LENGTH 5   /**< integrator coordinate system */
#define VCM_PARTIALS_LENGTH 8   /**< partials */
#define VCM_STEPMODE_LENGTH 4   /**< step mode */
#define VCM_STEPSELECTION_LENGTH 6 /**< step size selection */

/* ---- orders of VcmGetLoaded ------------------------------------------------------------- */

#define VCM_ORDER_SATELLITE 0         /**< by satellite number, then epoch */
#define VCM_ORDER_SATELLITE_REVERSE 1 /**< the same backwards */
#define VCM_ORDER_LOADED 2            /**< in the order of loading */
#define VCM_ORDER_KEY 3               /**< by key; so is every other value */

/* ---- indexes of single fields ----------------------------------------------------------- */

/*
 * Behind each: how VcmGetField writes the field, and its unit.
 *   i9       integer of up to 9 columns        f35.15  fixed point, up to 35 columns, 15 decimals
 *   text 8   up to 8 characters                e10.3   0.ddd, E, sign and two digits of exponent
 *   date     yyyydddhhmmss.sss, UTC            g17     17 significant digits
 * A number that does not fit its columns is as many asterisks.
 */
#define VCM_FIELD_SATNUM 1          /**< i9: satellite number; may not be set */
#define VCM_FIELD_INTLDES 2         /**< text 8: international designator */
#define VCM_FIELD_EPOCH 3           /**< date: epoch; may not be set */
#define VCM_FIELD_EPOCHREV 4        /**< i5: revolution number at epoch */
#define VCM_FIELD_ECIPOSX 5         /**< f35.15: ECI (true of date) position, km */
#define VCM_FIELD_ECIPOSY 6         /**< f35.15: the same */
#define VCM_FIELD_ECIPOSZ 7         /**< f35.15: the same */
#define VCM_FIELD_ECIVELX 8         /**< f35.15: ECI velocity, km/s */
#define VCM_FIELD_ECIVELY 9         /**< f35.15: the same */
#define VCM_FIELD_ECIVELZ 10        /**< f35.15: the same */
#define VCM_FIELD_GEONAME 11        /**< text 6: geopotential model */
#define VCM_FIELD_GEOZONALS 12      /**< i2: zonal terms */
#define VCM_FIELD_GEOTESSERALS 13   /**< i2: tesseral terms */
#define VCM_FIELD_DRAGMODEL 14      /**< text 12: drag model */
#define VCM_FIELD_LUNARSOLAR 15     /**< text 3: lunar and solar perturbations, ON or OFF */
#define VCM_FIELD_RADPRESS 16       /**< text 3: solar radiation pressure, ON or OFF */
#define VCM_FIELD_EARTHTIDES 17     /**< text 3: solid earth tides, ON or OFF */
#define VCM_FIELD_INTRACKTHRUST 18  /**< text 3: in-track thrust, ON or OFF */
#define VCM_FIELD_BTERM 19          /**< f35.15: ballistic coefficient, m2/kg */
#define VCM_FIELD_AGOM 20           /**< f35.15: solar radiation pressure coefficient, m2/kg */
#define VCM_FIELD_THRUSTACCEL 21    /**< f35.15: thrust acceleration, m/s2 */
#define VCM_FIELD_CMOFFSET 22       /**< f35.15: centre-of-mass offset, m */
#define VCM_FIELD_F10 23            /**< i3: solar flux F10 */
#define VCM_FIELD_AVGF10 24         /**< i3: average F10 */
#define VCM_FIELD_AVGAP 25          /**< f35.15: average Ap */
#define VCM_FIELD_TAIMINUSUTC 26    /**< f35.15: TAI-UTC, s */
#define VCM_FIELD_UT1MINUSUTC 27    /**< f35.15: UT1-UTC, s */
#define VCM_FIELD_UT1RATE 28        /**< f35.15: UT1 rate, ms/day */
#define VCM_FIELD_POLARMOTIONX 29   /**< f35.15: polar motion, arcsec */
#define VCM_FIELD_POLARMOTIONY 30   /**< f35.15: polar motion, arcsec */
#define VCM_FIELD_NUTATIONTERMS 31  /**< i3: IAU 1980 nutation terms */
#define VCM_FIELD_LEAPSECONDTIME 32 /**< date: time-constant leap second time */
#define VCM_FIELD_INTEGMODE 33      /**< text 6: integrator mode */
#define VCM_FIELD_PARTIALS 34       /**< text 8: partials */
#define VCM_FIELD_STEPMODE 35       /**< text 4: step mode */
#define VCM_FIELD_FIXEDSTEP 36      /**< text 3: fixed step, ON or OFF */
#define VCM_FIELD_STEPSELECTION 37  /**< text 6: step size selection */
#define VCM_FIELD_INITSTEPSIZE 38   /**< f35.15: initial step size, s */
#define VCM_FIELD_ERRORCONTROL 39   /**< e10.3: integrator error control */
#define VCM_FIELD_WTDRMS 40         /**< f35.15: weighted RMS of the fit */
#define VCM_FIELD_BDOT 41           /**< g17: rate of the ballistic coefficient, m2/kg-s */
#define VCM_FIELD_EDR 42            /**< g17: energy dissipation rate, W/kg */

/* ---- positions in the time terms of VcmGetAllFields ------------------------------------- */

#define VCM_TIME_TERMS 5        /**< how many there are */
#define VCM_TIME_TAIMINUSUTC 0  /**< s */
#define VCM_TIME_UT1MINUSUTC 1  /**< s */
#define VCM_TIME_UT1RATE 2      /**< ms/day */
#define VCM_TIME_POLARMOTIONX 3 /**< arcsec */
#define VCM_TIME_POLARMOTIONY 4 /**< arcsec */

/* ---- positions in the number array, counted from 0 -------------------------------------- */

#define VCM_NUM_SATNUM 0          /**< satellite number */
#define VCM_NUM_EPOCH 1           /**< days since 1950 UTC (1950 January 1, 0 h is 1.0) */
#define VCM_NUM_EPOCHREV 2        /**< revolution number at epoch */
#define VCM_NUM_J2KPOS 3          /**< to 5: J2000 position, km */
#define VCM_NUM_J2KVEL 6          /**< to 8: J2000 velocity, km/s */
#define VCM_NUM_ECIPOS 9          /**< to 11: ECI (true of date) position, km */
#define VCM_NUM_ECIVEL 12         /**< to 14: ECI velocity, km/s */
#define VCM_NUM_EFGPOS 15         /**< to 17: Earth-fixed position, km */
#define VCM_NUM_EFGVEL 18         /**< to 20: Earth-fixed velocity, km/s */
#define VCM_NUM_GEOZONALS 21      /**< zonal terms */
#define VCM_NUM_GEOTESSERALS 22   /**< tesseral terms */
#define VCM_NUM_BTERM 23          /**< ballistic coefficient, m2/kg */
#define VCM_NUM_BDOT 24           /**< rate of the ballistic coefficient, m2/kg-s */
#define VCM_NUM_AGOM 25           /**< solar radiation pressure coefficient, m2/kg */
#define VCM_NUM_EDR 26            /**< energy dissipation rate, W/kg */
#define VCM_NUM_THRUSTACCEL 27    /**< thrust acceleration, m/s2 */
#define VCM_NUM_CMOFFSET 28       /**< centre-of-mass offset, m */
#define VCM_NUM_F10 29            /**< solar flux F10 */
#define VCM_NUM_AVGF10 30         /**< average F10 */
#define VCM_NUM_AVGAP 31          /**< average Ap */
#define VCM_NUM_TAIMINUSUTC 32    /**< TAI-UTC, s */
#define VCM_NUM_UT1MINUSUTC 33    /**< UT1-UTC, s */
#define VCM_NUM_UT1RATE 34        /**< UT1 rate, ms/day */
#define VCM_NUM_POLARMOTIONX 35   /**< polar motion, arcsec */
#define VCM_NUM_POLARMOTIONY 36   /**< polar motion, arcsec */
#define VCM_NUM_NUTATIONTERMS 37  /**< IAU 1980 nutation terms */
#define VCM_NUM_LEAPSECONDTIME 38 /**< days since 1950 UTC */
#define VCM_NUM_INITSTEPSIZE 39   /**< initial step size, s */
#define VCM_NUM_ERRORCONTROL 40   /**< integrator error control */
#define VCM_NUM_POSSIGMAS 41      /**< to 43: position sigmas U, V, W, km */
#define VCM_NUM_VELSIGMAS 44      /**< to 46: velocity sigmas UD, VD, WD, km/s */
#define VCM_NUM_COVMTXSIZE 47     /**< covariance dimension n; below 1 there is none */
#define VCM_NUM_WTDRMS 48         /**< weighted RMS of the fit */
#define VCM_NUM_COVARIANCE 100    /**< to 144: lower triangle of 9 x 9, row by row */
/* The covariance's rows and columns are af, ag, L, n, chi, psi, B, Bdot, AGOM. */

/* ---- positions in the character array, counted from 0 ----------------------------------- */

#define VCM_CHAR_INTLDES 0        /**< 8: international designator: launch year (2), piece (6) */
#define VCM_CHAR_GEONAME 33       /**< 6: geopotential model */
#define VCM_CHAR_DRAGMODEL 39     /**< 12: drag model */
#define VCM_CHAR_LUNARSOLAR 51    /**< 3: lunar and solar perturbations, ON or OFF */
#define VCM_CHAR_RADPRESS 54      /**< 3: solar radiation pressure, ON or OFF */
#define VCM_CHAR_EARTHTIDES 57    /**< 3: solid earth tides, ON or OFF */
#define VCM_CHAR_INTRACKTHRUST 60 /**< 3: in-track thrust, ON or OFF */
#define VCM_CHAR_INTEGMODE 63     /**< 6: integrator mode */
#define VCM_CHAR_COORDSYS 69      /**< 5: integrator coordinate system */
#define VCM_CHAR_PARTIALS 74      /**< 8: partials */
#define VCM_CHAR_STEPMODE 82      /**< 4: step mode */
#define VCM_CHAR_FIXEDSTEP 86     /**< 3: fixed step, ON or OFF */
#define VCM_CHAR_STEPSELECTION 89 /**< 6: step size selection */

/* ---- lifecycle -------------------------------------------------------------------------- */

/**
 * Prepares the library. Call it once, after the host framework's own initialisation.
 *
 * @return 0.
 */
VCM_API int32_t VcmInit(void) VCM_NOEXCEPT;

/**
 * Describes the library.
 *
 * @param[out] info  name, version and host, blank padded (VCM_INFO_LENGTH).
 */
VCM_API void VcmGetInfo(char info[VCM_INFO_LENGTH]) VCM_NOEXCEPT;

/**
 * Counts the stored messages.
 *
 * @return their number. It walks the whole store.
 */
VCM_API int32_t VcmGetCount(void) VCM_NOEXCEPT;

/**
 * Lists the keys of all stored messages.
 *
 * @param[in]  order    VCM_ORDER_SATELLITE, _SATELLITE_REVERSE, _LOADED or _KEY.
 * @param[out] satKeys  as many keys as VcmGetCount gives. The array must have room for them: let no
 *                      thread add messages between that call and this one.
 *
 * An empty store leaves the array alone and writes "Warning-VcmGetLoaded: The binary tree is empty.
 * No satKey returns." as information.
 */
VCM_API void VcmGetLoaded(int32_t order, int64_t* satKeys) VCM_NOEXCEPT;

/**
 * Removes one message.
 *
 * @param[in] satKey  its key.
 * @return 0, or 2 when no such message is stored; why stands in the error trace.
 */
VCM_API int32_t VcmRemoveSat(int64_t satKey) VCM_NOEXCEPT;

/**
 * Removes all messages.
 *
 * @return 0.
 */
VCM_API int32_t VcmRemoveAllSats(void) VCM_NOEXCEPT;

/* ---- keys ------------------------------------------------------------------------------- */

/**
 * Finds a stored message of a satellite. Of several, which one is not determined: list the keys to
 * see all.
 *
 * @param[in] satNum  satellite number.
 * @return its key, or -1 with "GetSatKey: Unable to locate satellite number <satNum> in the VCM
 *         binary tree." in the error trace.
 */
VCM_API int64_t VcmGetSatKey(int32_t satNum) VCM_NOEXCEPT;

/**
 * The same, for callers that cannot receive a 64-bit result.
 *
 * @param[in]  satNum  as for VcmGetSatKey.
 * @param[out] satKey  what the function also returns.
 * @return the key or -1.
 */
VCM_API int64_t VcmGetSatKeyML(int32_t satNum, int64_t* satKey) VCM_NOEXCEPT;

/**
 * Makes the key of a satellite number and an epoch, as the host makes it for a message. The store
 * is not asked: the message may not be there, or may have moved to a later key because another
 * message had this one.
 *
 * @param[in] satNum  satellite number, 0 to 999999999.
 * @param[in] epoch   UTC, in one of two forms, leading blanks allowed (VCM_EPOCH_TEXT_LENGTH):
 *                    "YYDDD.DDDDDDDD" (years 57 to 99 are 19xx) or "YYYYDDDHHMMSS.SSS".
 * @return the key, or -1 when the number or the epoch is none.
 */
VCM_API int64_t VcmFieldsToSatKey(int32_t satNum, const char* epoch) VCM_NOEXCEPT;

/**
 * The same, for callers that cannot receive a 64-bit result.
 *
 * @param[in]  satNum  as for VcmFieldsToSatKey.
 * @param[in]  epoch   as for VcmFieldsToSatKey.
 * @param[out] satKey  the key or -1.
 */
VCM_API void VcmFieldsToSatKeyML(int32_t satNum, const char* epoch, int64_t* satKey) VCM_NOEXCEPT;

/* ---- files ------------------------------------------------------------------------------ */

/**
 * Loads every good message of a file, and of the files that its directive cards name, into the
 * store. Multi-line, bare and one-line messages may be mixed with maneuver cards, comments (a "*"
 * in column 1) and any other text. A card QZ_DMA_ON anywhere in the file switches keys to direct
 * addresses. A directive card may not name a device or a pipe.
 *
 * @param[in] vcmFile  name of the file (VCM_FILE_NAME_LENGTH); blanks around it do not count. It
 *                     may be a pipe.
 * @return 0, or the nonzero code of an open that failed (this file's or a named one's, or that of
 *         the temporary file which a pipe is copied to).
 *
 * Information: the file's name, and at the end
 * "Total VCMs = <n>, Loaded = <n>, Dup = <n>, Bad = <n>". Each message that is a duplicate or cannot
 * be read or stored has its line in the error trace. One file is loaded at a time: other threads'
 * loads wait.
 */
VCM_API int32_t VcmLoadFile(const char* vcmFile) VCM_NOEXCEPT;

/**
 * Saves every stored message as a multi-line message, ascending by key, behind a heading.
 *
 * @param[in] vcmFile   name of the file (VCM_FILE_NAME_LENGTH); blanks around it do not count.
 * @param[in] saveMode  0 creates or replaces the file, any other value appends to it.
 * @return 0, or the nonzero code of an open that failed. What a full disk does not take is not
 *         reported.
 *
 * Not saved: the common name, maneuver cards, and digits beyond those of the form's fields. Seconds
 * of 0.9995 or more above a whole one make their line a character longer than the form has it
 * (59.9996 is written as 591.000): such a message does not load again as it was.
 */
VCM_API int32_t VcmSaveFile(const char* vcmFile, int32_t saveMode) VCM_NOEXCEPT;

/* ---- adding ----------------------------------------------------------------------------- */

/**
 * Adds one message to the store.
 *
 * @param[in] vcmText  a multi-line message, as lines of 80 characters, as lines that end with LF or
 *                     CR LF, or as one string (VCM_TEXT_LENGTH); or a one-line message, of which no
 *                     more than VCM_ONE_LINE_LENGTH characters are read. It begins with the first
 *                     character and has its header; what follows it does not count. Lines of files
 *                     that lack the header are for VcmLoadFile alone.
 * @return the new key; 0 when the same message is stored already ("AddRecToMem: Duplicated
 *         record/key <key> found."); -1 when the text makes no message within its limits. Nothing
 *         is stored then.
 *
 * Why a text is refused stands in the error trace: one line for each limit broken
 * ("ValidateVcmValues: ..."), or for the line of the message that is not what it should be
 * ("MultiLine2Vcm: Invalid line caused read error @ '...'."), or "AnyVcmStrings2Vcm: Invalid
 * concatenated vcm string." for a text without any line, or "AnyVcmStrings2Vcm: Number of vcm
 * records needs to be at least 27.". A number that cannot be read is zero, in silence, and so are
 * those behind it on its line.
 *
 * Messages that make the same key and differ in state, ballistic or radiation pressure coefficient
 * are kept both: the later one gets the next free key. With direct addresses every message is new.
 */
VCM_API int64_t VcmAddSatFrLines(const char* vcmText) VCM_NOEXCEPT;

/**
 * The same, for callers that cannot receive a 64-bit result.
 *
 * @param[in]  vcmText  as for VcmAddSatFrLines.
 * @param[out] satKey   the new key, 0 or -1.
 */
VCM_API void VcmAddSatFrLinesML(const char* vcmText, int64_t* satKey) VCM_NOEXCEPT;

/**
 * Adds one message, given in the array form, to the store.
 *
 * @param[in] vcmCharArray  texts at the positions VCM_CHAR_... (VCM_CHAR_ARRAY_LENGTH).
 * @param[in] vcmNumArray   numbers at the positions VCM_NUM_... (VCM_NUM_ARRAY_LENGTH). Integers
 *                          are truncated toward zero and kept within 32 bits, not-a-number is 0
 *                          there. The covariance is taken when its dimension is 1 or more.
 * @return the new key; 0 when the same message is stored already ("AddRecToMem: Duplicated
 *         record/key <key> found."); -1 when the fields make no message within its limits, with one
 *         line "ValidateVcmValues: ..." for each limit broken. Nothing is stored then.
 */
VCM_API int64_t VcmAddSatFrFields(const char* vcmCharArray,
                                  const double vcmNumArray[VCM_NUM_ARRAY_LENGTH]) VCM_NOEXCEPT;

/**
 * The same, for callers that cannot receive a 64-bit result.
 *
 * @param[in]  vcmCharArray  as for VcmAddSatFrFields.
 * @param[in]  vcmNumArray   as for VcmAddSatFrFields.
 * @param[out] satKey        the new key, 0 or -1.
 */
VCM_API void VcmAddSatFrFieldsML(const char* vcmCharArray,
                                 const double vcmNumArray[VCM_NUM_ARRAY_LENGTH],
                                 int64_t* satKey) VCM_NOEXCEPT;

/* ---- text conversions ------------------------------------------------------------------- */

/**
 * Turns a message into the one-line form. The store is not touched.
 *
 * @param[in]  vcmText   a message in any form that VcmAddSatFrLines takes (VCM_TEXT_LENGTH).
 * @param[out] vcm1Line  the one-line message.
 * @return 0, or 2 and blanks when the text cannot be read, or is a one-line message outside its
 *         limits: why stands in the error trace, as for VcmAddSatFrLines. A multi-line message's
 *         values are not held against limits.
 *
 * The form has no place for the leap-second time, and five columns for the satellite number: a
 * larger one is asterisks.
 */
VCM_API int32_t VcmMultiLineTo1Line(const char* vcmText,
                                    char vcm1Line[VCM_ONE_LINE_LENGTH]) VCM_NOEXCEPT;

/**
 * Turns a one-line message into lines. The store is not touched.
 *
 * @param[in]  vcm1Line  the message (VCM_ONE_LINE_LENGTH).
 * @param[out] vcmText   50 lines of 80 characters without line ends, unused ones blank. All blank
 *                       when the message is outside its limits: that is no failure, and the error
 *                       trace says why.
 * @return 0; 2 when the lines cannot be written, which does not happen.
 *
 * The leap-second time is 2049 365 23:59:59.999, which stands for an unknown one; the common name
 * is left out.
 */
VCM_API int32_t Vcm1LineToMultiLine(const char* vcm1Line,
                                    char vcmText[VCM_TEXT_LENGTH]) VCM_NOEXCEPT;

/**
 * Gives a stored message as lines.
 *
 * @param[in]  satKey   its key.
 * @param[out] vcmText  50 lines of 80 characters without line ends, unused ones blank.
 * @return 0, or 2 and blanks when no such message is stored: then "VcmGetLines: Unable to locate
 *         satKey <satKey> in the VCM binary tree." stands in the error trace.
 */
VCM_API int32_t VcmGetLines(int64_t satKey, char vcmText[VCM_TEXT_LENGTH]) VCM_NOEXCEPT;

/* ---- single fields ---------------------------------------------------------------------- */

/**
 * Reads one field of a stored message.
 *
 * @param[in]  satKey      its key.
 * @param[in]  fieldIndex  VCM_FIELD_....
 * @param[out] valueStr    the field as text, from the first character on. Blank for an index that
 *                         is none.
 * @return 0, also for an index that is none; 2 and blanks when no such message is stored: then
 *         "VcmGetField: Unable to locate satKey <satKey> in the VCM binary tree." stands in the
 *         error trace.
 */
VCM_API int32_t VcmGetField(int64_t satKey, int32_t fieldIndex,
                            char valueStr[VCM_FIELD_VALUE_LENGTH]) VCM_NOEXCEPT;

/**
 * Changes one field of a stored message. Satellite number and epoch may not be changed.
 *
 * @param[in] satKey      its key.
 * @param[in] fieldIndex  VCM_FIELD_.... An index that is none changes nothing.
 * @param[in] valueStr    the value, blanks in front allowed (VCM_FIELD_VALUE_LENGTH). A text longer
 *                        than its field is cut. A date may leave out the point, but not the three
 *                        decimals.
 * @return 0, or 2 with nothing changed and a line in the error trace: "VcmSetField: Update to
 *         satellite's number is not allowed" or "VcmSetField: Update to satellite's epoch is not
 *         allowed", whatever the key; "VcmSetField: Unable to locate satKey <satKey> in the VCM
 *         binary tree."; "ValidateVcmValues: ..." for each limit that the changed message would
 *         break; "VcmSetField: Cannot read "<value>" as field <name>." for a text that is no date.
 *
 * Blanks within a number are left out, as in the columns of a message; one that is all blank counts
 * as 0. So does a text that is no number, with the host's own line in the error trace: check what a
 * user typed before. Of two threads that change the same message at the same time, the later one's
 * message stays as a whole.
 */
VCM_API int32_t VcmSetField(int64_t satKey, int32_t fieldIndex, const char* valueStr) VCM_NOEXCEPT;

/* ---- all fields ------------------------------------------------------------------------- */

/**
 * Gives the fields of a stored message, VCM_FIELD_SATNUM to VCM_FIELD_WTDRMS, each in a type of its
 * own.
 *
 * @param[in]  satKey          its key.
 * @param[out] satNum          satellite number
 * @param[out] intlDes         international designator: launch year (2), piece (6)
 * @param[out] epoch           yyyydddhhmmss.sss, UTC
 * @param[out] epochRev        revolution number at epoch
 * @param[out] eciPos          ECI (true of date) position, km
 * @param[out] eciVel          ECI velocity, km/s
 * @param[out] geoName         geopotential model
 * @param[out] geoZonals       zonal terms
 * @param[out] geoTesserals    tesseral terms
 * @param[out] dragModel       drag model
 * @param[out] lunarSolar      lunar and solar perturbations, ON or OFF
 * @param[out] radPress        solar radiation pressure, ON or OFF
 * @param[out] earthTides      solid earth tides, ON or OFF
 * @param[out] intrackThrust   in-track thrust, ON or OFF
 * @param[out] bTerm           ballistic coefficient, m2/kg
 * @param[out] agom            solar radiation pressure coefficient, m2/kg
 * @param[out] thrustAccel     thrust acceleration, m/s2
 * @param[out] cmOffset        centre-of-mass offset, m
 * @param[out] f10             solar flux F10
 * @param[out] avgF10          average F10
 * @param[out] avgAp           average Ap
 * @param[out] timeTerms       TAI-UTC and UT1-UTC, s, UT1 rate, ms/day, polar motion, arcsec:
 *                             VCM_TIME_...
 * @param[out] nutationTerms   IAU 1980 nutation terms
 * @param[out] leapSecondTime  time-constant leap second time, as the epoch
 * @param[out] integMode       integrator mode
 * @param[out] partials        partials
 * @param[out] stepMode        step mode
 * @param[out] fixedStep       fixed step, ON or OFF
 * @param[out] stepSelection   step size selection
 * @param[out] initStepSize    initial step size, s
 * @param[out] errorControl    integrator error control
 * @param[out] wtdRms          weighted RMS of the fit
 * @return 0, or 2 when no such message is stored: then "VcmGetAllFields: Unable to locate satKey
 *         <satKey> in the VCM binary tree." stands in the error trace, numbers are 0 and texts
 *         blank.
 */
VCM_API int32_t VcmGetAllFields(
    int64_t satKey, int32_t* satNum, char intlDes[VCM_INTLDES_LENGTH], char epoch[VCM_DATE_LENGTH],
    int32_t* epochRev, double eciPos[3], double eciVel[3], char geoName[VCM_GEONAME_LENGTH],
    int32_t* geoZonals, int32_t* geoTesserals, char dragModel[VCM_DRAGMODEL_LENGTH],
    char lunarSolar[VCM_ONOFF_LENGTH], char radPress[VCM_ONOFF_LENGTH],
    char earthTides[VCM_ONOFF_LENGTH], char intrackThrust[VCM_ONOFF_LENGTH], double* bTerm,
    double* agom, double* thrustAccel, double* cmOffset, int32_t* f10, int32_t* avgF10,
    double* avgAp, double timeTerms[VCM_TIME_TERMS], int32_t* nutationTerms,
    char leapSecondTime[VCM_DATE_LENGTH], char integMode[VCM_INTEGMODE_LENGTH],
    char partials[VCM_PARTIALS_LENGTH], char stepMode[VCM_STEPMODE_LENGTH],
    char fixedStep[VCM_ONOFF_LENGTH], char stepSelection[VCM_STEPSELECTION_LENGTH],
    double* initStepSize, double* errorControl, double* wtdRms) VCM_NOEXCEPT;

/**
 * Gives a stored message in the array form.
 *
 * @param[in]  satKey        its key.
 * @param[out] vcmCharArray  texts (VCM_CHAR_ARRAY_LENGTH), blanks where VCM_CHAR_... names nothing.
 * @param[out] vcmNumArray   numbers (VCM_NUM_ARRAY_LENGTH), 0 where VCM_NUM_... names nothing.
 * @return 0, or 2 when no such message is stored: then "GetSatToFields: Unable to locate satKey
 *         <satKey> in the VCM binary tree." stands in the error trace, the characters are blank and
 *         the numbers as they were.
 */
VCM_API int32_t VcmRetrieveAllData(int64_t satKey, char vcmCharArray[VCM_CHAR_ARRAY_LENGTH],
                                   double vcmNumArray[VCM_NUM_ARRAY_LENGTH]) VCM_NOEXCEPT;

/**
 * Replaces a stored message by one in the array form, all but its satellite number and epoch. What
 * the form does not carry (the common name, maneuver cards) is lost.
 *
 * @param[in] satKey        its key.
 * @param[in] vcmCharArray  texts at the positions VCM_CHAR_... (VCM_CHAR_ARRAY_LENGTH).
 * @param[in] vcmNumArray   numbers at the positions VCM_NUM_...; VCM_NUM_SATNUM and VCM_NUM_EPOCH
 *                          do not count.
 * @return 0, or 2 with nothing changed when no such message is stored ("VcmUpdateSatFrFields:
 *         Unable to locate satKey <satKey> in the VCM binary tree." in the error trace) or the
 *         message that is stored breaks a limit. The new values are not held against limits.
 *
 * Note that the characters come before the numbers here, as in VcmRetrieveAllData and
 * VcmAddSatFrFields; the conversions below have them the other way round.
 */
VCM_API int32_t VcmUpdateSatFrFields(int64_t satKey, const char* vcmCharArray,
                                     const double vcmNumArray[VCM_NUM_ARRAY_LENGTH]) VCM_NOEXCEPT;

/* ---- array form and text ---------------------------------------------------------------- */

/**
 * Turns a message into the array form. The store is not touched.
 *
 * @param[in]  vcmText       a message in any form that VcmAddSatFrLines takes (VCM_TEXT_LENGTH).
 * @param[out] vcmNumArray   numbers at the positions VCM_NUM_..., 0 elsewhere.
 * @param[out] vcmCharArray  texts at the positions VCM_CHAR_..., blanks elsewhere.
 * @return 0, or 2 with zeros and blanks when the text cannot be read, or is a one-line message
 *         outside its limits: why stands in the error trace, as for VcmAddSatFrLines.
 */
VCM_API int32_t VcmStringToArray(const char* vcmText, double vcmNumArray[VCM_NUM_ARRAY_LENGTH],
                                 char vcmCharArray[VCM_CHAR_ARRAY_LENGTH]) VCM_NOEXCEPT;

/**
 * Turns the array form into a one-line message. Any double may stand anywhere: nothing is held
 * against limits. The store is not touched.
 *
 * @param[in]  vcmNumArray   numbers at the positions VCM_NUM_....
 * @param[in]  vcmCharArray  texts at the positions VCM_CHAR_... (VCM_CHAR_ARRAY_LENGTH).
 * @param[out] vcm1Line      the message. A number that does not fit its columns is asterisks;
 *                           not-a-number is NaN, but 0 where an integer stands. A date outside the
 *                           calendar (years 1 to 9999) is all zeros; 0 days are 1949, day 365. A
 *                           covariance dimension above 9 stands as it is, with 9 x 9 values.
 * @return 0.
 */
VCM_API int32_t VcmArrayToVcm1Line(const double vcmNumArray[VCM_NUM_ARRAY_LENGTH],
                                   const char* vcmCharArray,
                                   char vcm1Line[VCM_ONE_LINE_LENGTH]) VCM_NOEXCEPT;

/**
 * Turns the array form into a multi-line message, as VcmArrayToVcm1Line into a one-line one.
 *
 * @param[in]  vcmNumArray   as for VcmArrayToVcm1Line.
 * @param[in]  vcmCharArray  as for VcmArrayToVcm1Line.
 * @param[out] vcmText       50 lines of 80 characters without line ends, unused ones blank.
 * @return 0.
 */
VCM_API int32_t VcmArrayToVcmLines(const double vcmNumArray[VCM_NUM_ARRAY_LENGTH],
                                   const char* vcmCharArray,
                                   char vcmText[VCM_TEXT_LENGTH]) VCM_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif
