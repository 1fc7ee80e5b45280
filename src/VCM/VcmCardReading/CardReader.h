// The cards of an open input file: its lines, each cut to 1500 characters.
#ifndef VCM_VCMCARDREADING_CARDREADER_H
#define VCM_VCMCARDREADING_CARDREADER_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

namespace vcm {

// For one thread. Reads blocks small enough for a processor's cache and hands out cards as views into
// the block, so that memory stays the same however long the file or a line is. Lines end at LF; a CR
// before it stays in the card and counts as a blank. A read error ends the file.
class CardReader {
 public:
  // The stream stays the caller's. It can be rewound, and is.
  explicit CardReader(std::FILE* stream);
  ~CardReader() = default;
  CardReader(const CardReader&) = delete;
  CardReader& operator=(const CardReader&) = delete;

  // Goes to the next card; false at the end of the file.
  bool next() {
    const void* const lineEnd = std::memchr(begin_, '\n', static_cast<std::size_t>(end_ - begin_));
    return lineEnd != nullptr ? take(static_cast<const char*>(lineEnd), 1) : nextAfterRefill();
  }
  // Goes to the next card that begins with another character, at little more than the cost of passing
  // over the others; their lines are not counted.
  bool nextNotBeginningWith(char first);

  // Valid until the next card is gone to, or rewind().
  std::string_view card() const { return card_; }
  // The card's line in the file, counted from 1.
  std::int64_t lineNumber() const { return lineNumber_; }

  // Back to before the first card.
  void rewind();

 private:
  static constexpr std::size_t kCardWidth = 1500;
  static constexpr std::size_t kBlockSize = std::size_t{1} << 18;

  // Takes the card that ends there and passes over what follows.
  bool take(const char* end, int over) {
    card_ = {begin_, std::min(static_cast<std::size_t>(end - begin_), kCardWidth)};
    begin_ = end + over;
    ++lineNumber_;
    return true;
  }
  bool nextAfterRefill();
  std::size_t keepUnfinished();
  bool refill();

  std::FILE* stream_;
  std::vector<char> block_;
  const char* begin_ = nullptr;  // of the next card
  const char* end_ = nullptr;    // of what the block holds
  bool atEnd_ = false;
  std::string_view card_;
  std::int64_t lineNumber_ = 0;
};

// Reads and drops up to `count` cards; the end of the file is not reported.
void SkipLines(CardReader& cards, int count);

}  // namespace vcm

#endif
