#include "files/MessageFile.h"

#include <fmt/format.h>

#include <cstdio>
#include <string_view>

#include "Host/HostCore.h"
#include "Host/TraceLine.h"
#include "VCM/VcmCardReading/CardReader.h"
#include "VCM/VcmCardReading/CardType.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "VCM/VcmCardReading/InputFileReader.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/Store.h"
#include "VCM/VcmTypes/FixedText.h"
#include "files/NoMessage.h"
#include "messages/Forms.h"
#include "messages/JsonReading.h"

namespace vcmtool {

namespace {

// No text form of a message begins like this. The stream, wherever it was, is then at the file's
// start.
bool isJson(std::FILE* file) {
  constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
  std::rewind(file);
  int c = std::getc(file);
  while (c != EOF && (vcm::isBlank(static_cast<char>(c)) ||
                      kByteOrderMark.find(static_cast<char>(c)) != std::string_view::npos)) {
    c = std::getc(file);
  }
  std::rewind(file);
  return c == '[' || c == '{';
}

// Whether a line of a message holds something where readers do not look.
bool holdsUnread(std::string_view card) {
  constexpr std::size_t kTime = 2;
  constexpr std::size_t kCommonName = 4;
  for (const std::size_t line : {kTime, kCommonName}) {
    const std::string_view empty = vcm::withoutTrailingBlanks(vcm::kMultiLineLayout[line].text);
    if (card.starts_with(empty.substr(0, empty.find(':')))) {
      return vcm::withoutTrailingBlanks(card) != empty;
    }
  }
  return false;
}

}  // namespace

FileReading readMessageFile(const std::string& name, vcm::ReadingObserver& observer,
                            Progress& progress) {
  vcm::logInfo(fmt::format("Reading \"{}\"", name));
  vcm::OpenFile file;
  if (const std::int32_t code = vcm::openInputFile(name, file); code != 0) {
    return {code, ""};
  }
  const Progress::Reading reading(progress, fileno(file.get()));
  if (isJson(file.get())) {
    readJsonMessages(file.get(), name, &observer);
    return {};
  }
  MessageSighting sighting(observer);
  vcm::CardReader cards(file.get());
  const std::int32_t code = vcm::ReadVcmsFrFileUnit(cards, name, &sighting);
  return {code, code != 0 || sighting.any() ? "" : whyNoMessage(file.get())};
}

void startAfresh() {
  constexpr std::int32_t kOrdinaryKeys = 0;
  std::int32_t status = vcm::kStored;
  vcm::VcmEmptyTree(vcm::mediaVcm, status);
  elsetkeymodeset(&kOrdinaryKeys);
}

FileForm formOf(const std::string& name) {
  vcm::OpenFile file;
  if (vcm::openInputFile(name, file) != 0) {
    return {};
  }
  if (isJson(file.get())) {
    return {kJsonForm, ""};
  }
  bool anyMultiLine = false;
  bool anyOneLine = false;
  FileForm form;
  vcm::CardReader cards(file.get());
  while (cards.next()) {
    switch (vcm::fileCardType(cards.card())) {
      case vcm::CardType::multiLineHeader:
      case vcm::CardType::bareFirstLine:
        anyMultiLine = true;
        break;
      case vcm::CardType::oneLineMessage:
        anyOneLine = true;
        break;
      case vcm::CardType::directive:
        form.loses = "a card that names another file";
        break;
      case vcm::CardType::keyMode:
        form.loses = "its key-mode card";
        break;
      default:
        if (holdsUnread(cards.card())) {
          form.loses = "a message's time, centre or common name";
        }
    }
  }
  if (anyOneLine && !anyMultiLine) {
    form.name = kOneLineForm;
  } else if (anyOneLine) {
    form.loses = "one of its two forms";
  }
  return form;
}

}  // namespace vcmtool
