// Directive cards: `KEYWORD name`, `KEYWORD = name`, `KEYWORD="name with blanks"`.
#include "Host/HostCore.h"
#include "Text.h"

namespace {

using hostcore::kBlanks;
using hostcore::withoutLeading;
using hostcore::withoutTrailing;

std::string_view withoutKeyword(std::string_view card) {
  const std::size_t end = card.find_first_of("= \t\r\n");
  return card.substr(std::min(end, card.size()));
}

std::string_view unquoted(std::string_view name) {
  if (name.empty() || (name.front() != '\'' && name.front() != '"')) {
    return name;
  }
  const char quote = name.front();
  name.remove_prefix(1);
  return name.substr(0, name.find(quote));
}

std::string_view fileNameOf(std::string_view card) {
  card = withoutTrailing(withoutLeading(card, kBlanks), kBlanks);
  card = withoutLeading(withoutKeyword(card), kBlanks);
  if (!card.empty() && card.front() == '=') {
    card = withoutLeading(card.substr(1), kBlanks);
  }
  return unquoted(card);
}

}  // namespace

void getinputfilename(const char* card, const std::int32_t* cardLength, char* name,
                      const std::int32_t* nameLength) {
  hostcore::copyPadded(fileNameOf(hostcore::viewOf(card, cardLength)), name,
                       hostcore::sizeOf(nameLength));
}
