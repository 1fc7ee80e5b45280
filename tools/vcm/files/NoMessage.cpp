#include "files/NoMessage.h"

#include <algorithm>
#include <array>

#include "VCM/VcmCardReading/CardReader.h"
#include "VCM/VcmTypes/FixedText.h"
#include "messages/RecordFields.h"

namespace vcmtool {

namespace {

struct Kind {
  std::string_view start;
  std::string_view reason;
};

constexpr std::string_view kCompressed = ": it is compressed";
constexpr std::string_view kUtf16 = ": it is UTF-16";
constexpr auto kKinds = std::to_array<Kind>({{"\x1f\x8b", kCompressed},
                                             {"BZh", kCompressed},
                                             {"\xfd\x37zXZ", kCompressed},
                                             {"\x28\xb5\x2f\xfd", kCompressed},
                                             {"PK\x03\x04", kCompressed},
                                             {"\xff\xfe", kUtf16},
                                             {"\xfe\xff", kUtf16}});

std::string_view reasonOf(std::string_view card) {
  const auto* const known = std::find_if(kKinds.begin(), kKinds.end(), [card](const Kind& kind) {
    return card.starts_with(kind.start);
  });
  if (known != kKinds.end()) {
    return known->reason;
  }
  const std::string_view firstName = kRecordFields.front().name;
  const bool isCsv = card.starts_with(firstName) && card.substr(firstName.size()).starts_with(',');
  return isCsv ? ": CSV is not read" : "";
}

}  // namespace

std::string whyNoMessage(std::FILE* file) {
  vcm::CardReader cards(file);
  while (cards.next()) {
    if (!cards.card().starts_with('*') && !vcm::isAllBlank(cards.card())) {
      return std::string("no message in it").append(reasonOf(cards.card()));
    }
  }
  return {};
}

}  // namespace vcmtool
