// Files of one-line messages into files of multi-line messages, as text.
#ifndef VCM_VCMDLLVARSUTILS_LINEEXPANSION_H
#define VCM_VCMDLLVARSUTILS_LINEEXPANSION_H

#include <cstdint>
#include <string_view>

namespace vcm {

// Copies the columns of every line of the input file behind the labels of a multi-line message: no
// number is read, nothing is validated; a tab or a CR counts as a blank. A line without a blank in columns 518 to 601 gets an older,
// shorter form. A backslash in either name (of up to 512 characters) is taken for a slash; the output
// file is created or replaced, once the input file is open. A read error ends the input. Returns 0,
// or the nonzero code of an open or a write that failed.
std::int32_t Vcm1LineToMany(std::string_view inputFile, std::string_view outputFile);

}  // namespace vcm

#endif
