// Records as multi-line messages: into memory, into a file, and the whole store into a file.
#ifndef VCM_VCMTREE_MULTILINEWRITER_H
#define VCM_VCMTREE_MULTILINEWRITER_H

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "VCM/VcmTree/LineOutput.h"
#include "VCM/VcmTypes/VcmBinTree.h"

namespace vcm {

inline constexpr std::int32_t kWritten = 1;

// What a saved file begins with.
inline constexpr std::array<std::string_view, 4> kFileHeading = {"", "", "",
                                                                 "*** Orbital Elements - VCMs ***"};

// Writes a record into an area of 80-character lines, at least 36 of them; the rest of the area is
// blanked. Always returns kWritten; `lineCount`, if asked for, gets the number of lines.
std::int32_t Vcm2VcmLines(const VcmRecord& record, std::span<char> area,
                          std::int32_t* lineCount = nullptr);

// Writes a record's lines to an open file, without their trailing blanks. Returns kWritten.
std::int32_t Vcm2Lines(const VcmRecord& record, LineOutput& output);

// Writes every stored record, ascending by key, while the store is kept from changing.
void VcmWriteLines(LineOutput& output, const VcmMedia& media);

}  // namespace vcm

#endif
