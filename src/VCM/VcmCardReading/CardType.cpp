#include "VCM/VcmCardReading/CardType.h"

#include <algorithm>
#include <array>

#include "Host/HostCore.h"
#include "VCM/VcmFormats/OneLineLayout.h"

namespace vcm {

CardType VcmCardType(std::string_view card) {
  if (card.starts_with(kHeader)) {
    return CardType::multiLineHeader;
  }
  if (isOneLineMessage(card)) {
    return CardType::oneLineMessage;
  }
  if (std::any_of(kDirectives.begin(), kDirectives.end(),
                  [card](std::string_view keyword) { return card.starts_with(keyword); })) {
    return CardType::directive;
  }
  if (card.starts_with(kBareFirstLine)) {
    return CardType::bareFirstLine;
  }
  return card.starts_with(kKeyMode) ? CardType::keyMode : CardType::other;
}

CardType fileCardType(std::string_view card) {
  // No rule but the one-line one looks further into a card than this.
  constexpr std::size_t kLongestRule = kBareFirstLine.size();
  std::array<char, kLongestRule> start;
  copyPadded(withoutLeadingBlanks(card), start.data(), start.size());
  constexpr std::int32_t kLength = kLongestRule;
  touppercase(start.data(), &kLength);
  const CardType type = VcmCardType({start.data(), start.size()});
  return type != CardType::multiLineHeader && isOneLineMessage(card) ? CardType::oneLineMessage
                                                                     : type;
}

}  // namespace vcm
