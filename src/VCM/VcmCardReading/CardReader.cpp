#include "VCM/VcmCardReading/CardReader.h"

namespace vcm {

CardReader::CardReader(std::FILE* stream) : stream_(stream), block_(kBlockSize) { rewind(); }

void CardReader::rewind() {
  std::rewind(stream_);
  begin_ = end_ = block_.data();
  atEnd_ = false;
  card_ = {};
  lineNumber_ = 0;
}

// The block ends inside a card.
bool CardReader::nextAfterRefill() {
  for (;;) {
    const std::size_t searched = keepUnfinished();
    if (!refill()) {
      return begin_ != end_ && take(end_, 0);
    }
    const char* const from = begin_ + searched;
    const void* const lineEnd = std::memchr(from, '\n', static_cast<std::size_t>(end_ - from));
    if (lineEnd != nullptr) {
      return take(static_cast<const char*>(lineEnd), 1);
    }
  }
}

// Moves the unfinished card to the front, no more of it than a card holds. Returns how much that is.
std::size_t CardReader::keepUnfinished() {
  const std::size_t kept = std::min(static_cast<std::size_t>(end_ - begin_), kCardWidth);
  std::memmove(block_.data(), begin_, kept);
  begin_ = block_.data();
  end_ = begin_ + kept;
  return kept;
}

// Reads on behind what the block holds.
bool CardReader::refill() {
  if (atEnd_) {
    return false;
  }
  const auto kept = static_cast<std::size_t>(end_ - block_.data());
  const std::size_t n = std::fread(block_.data() + kept, 1, block_.size() - kept, stream_);
  end_ += n;
  atEnd_ = n == 0;
  return !atEnd_;
}

void SkipLines(CardReader& cards, int count) {
  for (int i = 0; i < count && cards.next(); ++i) {
  }
}

}  // namespace vcm
