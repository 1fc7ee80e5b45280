// What kind of line a card of an input file is.
#ifndef VCM_VCMCARDREADING_CARDTYPE_H
#define VCM_VCMCARDREADING_CARDTYPE_H

#include <array>
#include <cstdint>
#include <string_view>

#include "VCM/VcmTypes/FixedText.h"

namespace vcm {

enum class CardType : std::int32_t {
  multiLineHeader = 1,  // first line of a multi-line message
  oneLineMessage = 2,
  directive = 3,      // names a further input file
  bareFirstLine = 4,  // first line of a multi-line message without its leads and header
  keyMode = 5,        // switches satellite keys to direct addresses
  other = 100
};

// What cards begin with.
inline constexpr std::string_view kHeader = "<> SP VEC";
inline constexpr std::string_view kBareFirstLine = "SATELLITE NUMBER:";
inline constexpr std::string_view kKeyMode = "QZ_DMA_ON";
inline constexpr std::array<std::string_view, 7> kDirectives = {
    "VECFIL", "VECTORFILE", "ELTFIL", "ELSETFILE", "SPVMSG", "VCMFIL", "SATFIL"};

// Classifies a card in capitals: the first rule that matches, in the order of the codes.
CardType VcmCardType(std::string_view card);

// Classifies a card as a file holds it. It is a one-line message as it stands, since the columns of
// one count and may begin with blanks; the other kinds may be indented and in any case.
CardType fileCardType(std::string_view card);

// True when the card cannot be one that the first pass over a file looks for (a directive or the
// key-mode card), told by its first letter alone.
inline bool isNoDirective(std::string_view card) {
  constexpr std::string_view kFirstLetters = "VESQvesq";
  card = withoutLeadingBlanks(card);
  return card.empty() || kFirstLetters.find(card.front()) == std::string_view::npos;
}

}  // namespace vcm

#endif
