// Every byte of a message replaced by every other, and files that end anywhere: what is read is what the
// layout tables say of the text as it then stands. VCM_BYTE_STRIDE leaves out values of a byte.
#include <gtest/gtest.h>

#include "DllExports/VCM/VcmDllExports/MessageText.h"
#include "DllExports/VCM/VcmDllVarsUtils/AnyText.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "VCM/VcmCardReading/InputFileReader.h"
#include "VCM/VcmCardReading/MultiLineParser.h"
#include "VCM/VcmTree/Keys.h"
#include "support/Messages.h"
#include "support/PlainMessages.h"
#include "support/RandomCount.h"
#include "support/StoreAccess.h"

namespace {

const int kStride = randomCount("VCM_BYTE_STRIDE", kFastBuild ? 1 : 31);

// A text with the byte at a place replaced by each value that the stride leaves for that place, and by
// those that mean something anywhere.
Lines changedAt(std::size_t at, std::string text) {
  constexpr std::string_view kAlways("\n\0\t<x", 5);
  Lines all;
  for (int byte = 0; byte < 256; ++byte) {
    text[at] = static_cast<char>(byte);
    if ((byte + static_cast<int>(at)) % kStride == 0 || kAlways.find(text[at]) != kAlways.npos) {
      all.push_back(text);
    }
  }
  return all;
}

vcm::OpenFile inMemory(std::string& content) {
  return vcm::OpenFile(fmemopen(content.data(), content.size(), "rb"));
}

TEST(DamagedMessages, TextsWithAByteChanged) {
  for (const std::string& good : {joined(goldenMessage()), goldenOneLine()}) {
    for (std::size_t at = 0; at < good.size(); ++at) {
      for (const std::string& text : changedAt(at, good)) {
        const vcm::MessageText argument(text.c_str());
        const vcm::VcmRecord plain = plainText(text.c_str());  // a NUL ends it
        ASSERT_TRUE(vcm::AnyVcmStrings2Vcm(argument.view()) == plain) << at << ": " << text;
      }
    }
  }
}

// All texts of a place stand in one file: one that lacks a line end goes on with the next.
TEST(DamagedMessages, FilesWithAByteChanged) {
  for (const bool isBare : {false, true}) {
    const auto type = isBare ? vcm::CardType::bareFirstLine : vcm::CardType::multiLineHeader;
    const std::string good = joined(isBare ? bareForm(goldenMessage()) : goldenMessage());
    for (std::size_t at = 0; at < good.size(); ++at) {
      const Lines texts = changedAt(at, good);
      std::string content = joined(texts, "");
      const Views lines = linesOf(content);
      const vcm::OpenFile file = inMemory(content);
      vcm::CardReader cards(file.get());
      std::size_t start = 0;
      for (const std::string& text : texts) {
        while (cards.lineNumber() <= static_cast<std::int64_t>(start)) {
          ASSERT_TRUE(cards.next());
        }
        auto rest = std::span(lines).subspan(start);
        const vcm::VcmRecord plain = plainMessage(rest, true, isBare);
        ASSERT_TRUE(vcm::ReadVCMFrFileUnit(cards, type) == plain) << at << ": " << text;
        ASSERT_EQ(cards.lineNumber(), std::ssize(lines) - std::ssize(rest)) << at << ": " << text;
        start += static_cast<std::size_t>(std::ranges::count(text, '\n'));
      }
    }
  }
}

// Alone, and before a good message of which the cut one may use up the start.
TEST(DamagedMessages, FilesCutAnywhere) {
  Lines bare = bareForm(goldenMessage());
  putAt(bare[0], 1, "  satellite number:     1");
  const std::string other = "\n" + joined(withText(goldenMessage(), 4, 26, "7"));
  for (const std::string& good : {joined(goldenMessage()), joined(bare), goldenOneLine() + "\n"}) {
    for (std::size_t i = 0; i <= 2 * good.size(); i += static_cast<std::size_t>(kStride)) {
      std::string content = good.substr(0, i / 2) + (i % 2 == 0 ? "" : other);
      const vcm::OpenFile file = inMemory(content);
      vcm::CardReader cards(file.get());
      vcm::MessageCounts counts;
      emptyStore();
      vcm::ReadOnlyVcms(cards, counts);
      const Views lines = linesOf(content);
      for (std::span<const std::string_view> rest(lines); !rest.empty();) {
        const vcm::CardType type = vcm::fileCardType(rest.front());
        const bool isBare = type == vcm::CardType::bareFirstLine;
        vcm::VcmRecord plain, stored;
        if (isBare || type == vcm::CardType::multiLineHeader) {
          plain = plainMessage(rest, true, isBare);
        } else {
          plain = plainOneLine(rest.front());
          rest = rest.subspan(1);
          if (type != vcm::CardType::oneLineMessage) {
            continue;
          }
        }
        const bool bad = plain.parseStatus != vcm::kGood;
        counts.bad -= bad ? 1 : 0;
        if (!bad && vcm::ValidateVcmValues(plain) == vcm::kGood) {  // else counted nowhere
          vcm::VcmFindRec(vcm::mediaVcm, vcm::createSatKeyFrVcm(plain), stored);
          ASSERT_TRUE(stored == plain) << content;
          --counts.loaded;
        }
      }
      ASSERT_TRUE(counts.loaded == 0 && counts.dup == 0 && counts.bad == 0) << content;
    }
  }
  emptyStore();
}

}  // namespace
