// The host framework's core library, as this library calls it.
//
// Every argument goes by reference; a text is a pointer and a length, blank padded and without a
// terminator. All functions may be called from any thread. The bundled host (host/) implements
// these declarations; with VCM_BUNDLED_HOST=OFF the framework's own libraries do.
#ifndef HOST_HOSTCORE_H
#define HOST_HOSTCORE_H

#include <cstdint>
#include <cstdio>

extern "C" {

// ---- files -------------------------------------------------------------------------------------

// Opens a file. `mode`: 0 create or replace, 1 read, 2 append. Blanks at the end of the name do not
// count. Returns 0 and the stream, which the caller closes with fclose; or a nonzero code and null.
std::int32_t fileopen(const char* name, const std::int32_t* nameLength, const std::int32_t* mode,
                      std::FILE** stream);

// Takes the file name out of a directive card: what follows the keyword and an optional "=",
// without quotes, in the card's own case. `name` is blank padded to `nameLength`, blank when there
// is none.
void getinputfilename(const char* card, const std::int32_t* cardLength, char* name,
                      const std::int32_t* nameLength);

// ---- trace log ---------------------------------------------------------------------------------

// One line into the error trace, or as information.
void tracelogerror(const char* text, const std::int32_t* length);
void traceloginfo(const char* text, const std::int32_t* length);

// A line that describes the library of that short name, blank padded to `infoLength`.
void getsoftwareinfo(const char* name, const std::int32_t* nameLength, char* info,
                     const std::int32_t* infoLength);

// ---- satellite keys ----------------------------------------------------------------------------

// When nonzero, allkeymodeget gives the key mode, otherwise elsetkeymodeget. Mode 1 is direct
// addresses, any other value ordinary keys.
extern std::int32_t useAllKeyMode;
std::int32_t allkeymodeget();
std::int32_t elsetkeymodeget();
void elsetkeymodeset(const std::int32_t* mode);

// Nonzero when the key stands for an address.
std::int32_t isdma(const std::int64_t* satKey);
// The address that a direct-address key stands for, as a pointer and as a number; null and 0 when
// it stands for none. The pointer is not known to be readable.
void* keytocptr(const std::int64_t* satKey);
std::int64_t satkeytoaddr(const std::int64_t* satKey);
// The ordinary key to try after this one.
std::int64_t nextsatkey(const std::int64_t* satKey);

// ---- matrices and sorting ----------------------------------------------------------------------

// Between a symmetric square matrix (column by column) and its lower triangle, row by row: the
// first n(n+1)/2 values are the triangle of the leading n x n block.
void sqrmtx2lta(const double* square, const std::int32_t* dimension, double* packed);
void lta2sqrmtx(const double* packed, const std::int32_t* dimension, double* square);

// Sorts `count` texts of `textLength` characters ascending, byte by byte, and carries `carried`
// along. Equal texts come in ascending order of their carried value.
void quicksortiterative(char* texts, const std::int32_t* textLength, std::int64_t* carried,
                        const std::int32_t* count);

// ---- texts -------------------------------------------------------------------------------------

// The characters of an array up to its first NUL, as a blank-padded text; and back.
void chararrtostr(const char* array, const std::int32_t* arrayLength, char* text,
                  const std::int32_t* textLength);
void strtochararr(const char* text, const std::int32_t* textLength, char* array,
                  const std::int32_t* arrayLength);
// The number that a text holds. One that cannot be read gives 0 and a line in the error trace.
std::int32_t strtoint(const char* text, const std::int32_t* length);
double strtoreal(const char* text, const std::int32_t* length);
// In place: capitals for letters, blanks for NULs, zeros for blanks.
void touppercase(char* text, const std::int32_t* length);
void nulltospace(char* text, const std::int32_t* length);
void blanktozerochar(char* text, const std::int32_t* length);
// Replaces every `from` by `to`, in place; what grows past the end is cut, what shrinks is filled
// with blanks.
void replacestring(char* text, const std::int32_t* length, const char* from,
                   const std::int32_t* fromLength, const char* to, const std::int32_t* toLength);

}  // extern "C"

#endif
