#include "VCM/VcmCardReading/InputFileReader.h"

#include <array>
#include <mutex>
#include <string>
#include <vector>

#include "Host/HostCore.h"
#include "Host/HostOrbit.h"
#include "Host/TraceLine.h"
#include "VCM/VcmCardReading/CardType.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmCardReading/OneLineParser.h"
#include "VCM/VcmFormats/MultiLineLayout.h"
#include "VCM/VcmTree/Keys.h"
#include "VCM/VcmTree/Store.h"

namespace vcm {

namespace {

// Lets one file at a time be loaded.
std::mutex readonlyvcms;

bool isCommentOrBlank(std::string_view card) { return card.starts_with('*') || isAllBlank(card); }

bool isManeuverCard(std::string_view card) {
  const auto length = static_cast<std::int32_t>(card.size());
  return ismaneuvcardtype(card.data(), &length) != 0;
}

void tell(ReadingObserver* observer, std::string_view fileName) {
  if (observer != nullptr) {
    observer->file(fileName);
  }
}

// The messages of one file on their way into the store.
class MessageLoader {
 public:
  MessageLoader(CardReader& cards, MessageCounts& counts, ReadingObserver* observer)
      : cards_(cards), counts_(counts), observer_(observer) {}

  void load() {
    while (cards_.next()) {
      const std::string_view card = cards_.card();
      if (isCommentOrBlank(card)) {
        continue;
      }
      if (isManeuverCard(card)) {
        keepManeuver(card);
        continue;
      }
      const CardType type = fileCardType(card);
      if (type == CardType::multiLineHeader || type == CardType::oneLineMessage ||
          type == CardType::bareFirstLine) {
        attachManeuvers();
        add(type);
      }
    }
    attachManeuvers();
  }

 private:
  void keepManeuver(std::string_view card) {
    if (maneuvers_.size() < kMaxExtraLines) {
      maneuvers_.emplace_back(card);
    }
  }

  // Cards that follow a message which was not added wait for the next one that is.
  void attachManeuvers() {
    if (previousAdded_ && !maneuvers_.empty()) {
      VcmAttachExtraLines(mediaVcm, previousKey_, maneuvers_);
      maneuvers_.clear();
    }
  }

  VcmRecord parse(CardType type) {
    return type == CardType::oneLineMessage
               ? Vcm1Line2Vcm(cards_.card(), observer_, cards_.lineNumber())
               : ReadVCMFrFileUnit(cards_, type, observer_);
  }

  void add(CardType type) {
    if (observer_ != nullptr) {
      observer_->message(cards_.lineNumber());
    }
    const VcmRecord record = parse(type);
    const std::int64_t key = record.parseStatus == kGood ? AddVcmToMem(record) : kNoKey;
    previousAdded_ = false;
    MessageOutcome outcome = MessageOutcome::loaded;
    if (record.parseStatus != kGood) {
      outcome = MessageOutcome::bad;
      ++counts_.bad;
    } else if (key == kDuplicateKey) {
      outcome = MessageOutcome::duplicate;
      ++counts_.dup;
    } else if (key == kNoKey) {
      outcome = MessageOutcome::refused;  // counted nowhere, deliberately
    } else {
      ++counts_.loaded;
      previousAdded_ = true;
      previousKey_ = key;
    }
    if (observer_ != nullptr) {
      observer_->outcome(cards_.lineNumber(), outcome);
    }
  }

  CardReader& cards_;
  MessageCounts& counts_;
  ReadingObserver* observer_;
  std::vector<ExtraLine> maneuvers_;
  bool previousAdded_ = false;
  std::int64_t previousKey_ = kNoKey;
};

// Loads the file that a directive card names; nonzero when it cannot be opened.
std::int32_t followDirective(std::string_view card, MessageCounts& counts,
                             ReadingObserver* observer) {
  std::array<char, 512> name;
  const auto cardLength = static_cast<std::int32_t>(card.size());
  const auto nameLength = static_cast<std::int32_t>(name.size());
  getinputfilename(card.data(), &cardLength, name.data(), &nameLength);
  const std::string_view trimmed = withoutTrailingBlanks({name.data(), name.size()});
  OpenFile file;
  if (const std::int32_t code = openNamedFile(trimmed, file); code != 0) {
    // The code alone would not tell which of the files it is.
    std::string message("ReadVcmsFrFileUnit: Unable to open file \"");
    message.append(trimmed).append("\", which a directive card names.");
    logError(message);
    return code;
  }
  tell(observer, trimmed);
  CardReader cards(file.get());
  return ReadOnlyVcms(cards, counts, observer);
}

// The first pass. Whatever the file's messages are, directives and the key mode come before them.
std::int32_t followDirectives(CardReader& cards, MessageCounts& counts, ReadingObserver* observer) {
  while (cards.nextNotBeginningWith(kLead.front())) {
    const std::string_view card = cards.card();
    if (isNoDirective(card)) {
      continue;
    }
    switch (fileCardType(card)) {
      case CardType::directive:
        if (const std::int32_t code = followDirective(card, counts, observer); code != 0) {
          return code;
        }
        break;
      case CardType::keyMode: {
        constexpr std::int32_t kDirectAddresses = 1;
        elsetkeymodeset(&kDirectAddresses);
        break;
      }
      default:
        break;
    }
  }
  return 0;
}

}  // namespace

std::int32_t ReadVcmsFrFile(std::string_view name, ReadingObserver* observer) {
  OpenFile file;
  if (const std::int32_t code = openInputFile(name, file); code != 0) {
    return code;
  }
  CardReader cards(file.get());
  return ReadVcmsFrFileUnit(cards, name, observer);
}

std::int32_t ReadVcmsFrFileUnit(CardReader& cards, std::string_view name,
                                ReadingObserver* observer) {
  MessageCounts counts;
  cards.rewind();
  if (const std::int32_t code = followDirectives(cards, counts, observer); code != 0) {
    return code;
  }
  cards.rewind();
  tell(observer, name);
  const std::int32_t result = ReadOnlyVcms(cards, counts, observer);
  TraceLine()
      .text("Total VCMs = ")
      .number(std::int64_t{counts.loaded} + counts.dup + counts.bad)
      .text(", Loaded = ")
      .number(counts.loaded)
      .text(", Dup = ")
      .number(counts.dup)
      .text(", Bad = ")
      .number(counts.bad)
      .info();
  return result;
}

std::int32_t ReadOnlyVcms(CardReader& cards, MessageCounts& counts, ReadingObserver* observer) {
  const std::lock_guard<std::mutex> lock(readonlyvcms);
  MessageLoader(cards, counts, observer).load();
  return 0;
}

}  // namespace vcm
