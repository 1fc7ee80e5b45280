// The host framework's time library, as this library calls it. Every argument goes by reference;
// all functions may be called from any thread.
//
// Days since 1950 count 1950 January 1, 0 h UTC as 1.0; every day has 86400 seconds.
#ifndef HOST_HOSTCALENDAR_H
#define HOST_HOSTCALENDAR_H

#include <cstdint>

extern "C" {

// The key of a satellite at an epoch. Exactly one epoch is given, the other is null: `epochText`
// (20 characters, a point in column 6 for YYDDD.DDDDDDDD or in column 14 for YYYYDDDHHMMSS.SSS) or
// `ds50Utc` (days since 1950). Keys of one satellite grow with the epoch. Returns -1 on failure.
std::int64_t createsatkey(const std::int32_t* satNum, const std::int32_t* elsetType,
                          const char* epochText, const double* ds50Utc);

// Days since 1950 of a date. `year` is the caller's copy: two digits become four.
double tcomps2utc(const std::int32_t* dayOfYear, const std::int32_t* hour,
                  const std::int32_t* minute, const double* seconds, std::int32_t* year);

// The date of days since 1950, seconds rounded to the microsecond. What is no date (not a number,
// beyond four-digit years) gives zeros.
void dyklok(const double* ds50Utc, std::int32_t* year, std::int32_t* dayOfYear, std::int32_t* hour,
            std::int32_t* minute, double* seconds);

// Nonzero for a leap year.
std::int32_t hleap(const std::int32_t* year);

// Four digits for a two-digit year: 57 to 99 are 19xx, 00 to 56 are 20xx. Others stay.
std::int32_t fixyr(const std::int32_t* year);

// Month (1 to 12) and day of month. A day of year outside the year is counted from the year's first
// or last month.
void jul2mmdd(const std::int32_t* year, const std::int32_t* dayOfYear, std::int32_t* month,
              std::int32_t* dayOfMonth);

}  // extern "C"

#endif
