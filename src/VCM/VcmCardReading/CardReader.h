// The cards of an open input file: its lines, each cut to 1500 characters.
#ifndef VCM_VCMCARDREADING_CARDREADER_H
#define VCM_VCMCARDREADING_CARDREADER_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <vector>

namespace vcm {

// For one thread. Reads blocks of a megabyte and hands out cards as views into the block, so that
// memory stays the same however long the file or a line is. Lines end at LF; a CR before it stays
// in the card and counts as a blank. A read error ends the file.
class CardReader {
 public:
  // The stream stays the caller's. It can be rewound, and is.
  explicit CardReader(std::FILE* stream);
  ~CardReader() = default;
  CardReader(const CardReader&) = delete;
  CardReader& operator=(const CardReader&) = delete;

  // Goes to the next card; false at the end of the file.
  bool next();
  // Valid until the next call of next() or rewind().
  std::string_view card() const { return card_; }
  // The card's line in the file, counted from 1.
  std::int64_t lineNumber() const { return lineNumber_; }

  // Back to before the first card.
  void rewind();

 private:
  bool refill();
  void take(std::size_t end, std::size_t nextCard);

  std::FILE* stream_;
  std::vector<char> block_;
  std::size_t begin_ = 0;  // of the next card
  std::size_t end_ = 0;    // of what the block holds
  bool atEnd_ = false;
  std::string_view card_;
  std::int64_t lineNumber_ = 0;
};

// Reads and drops up to `count` cards; the end of the file is not reported.
void SkipLines(CardReader& cards, int count);

}  // namespace vcm

#endif
