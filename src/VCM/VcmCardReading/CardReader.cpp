#include "VCM/VcmCardReading/CardReader.h"

#include <algorithm>
#include <cstring>

namespace vcm {

namespace {

constexpr std::size_t kCardWidth = 1500;
constexpr std::size_t kBlockSize = std::size_t{1} << 20;

}  // namespace

CardReader::CardReader(std::FILE* stream) : stream_(stream), block_(kBlockSize) { rewind(); }

void CardReader::rewind() {
  std::rewind(stream_);
  begin_ = end_ = 0;
  atEnd_ = false;
  card_ = {};
  lineNumber_ = 0;
}

bool CardReader::next() {
  std::size_t searched = begin_;
  for (;;) {
    const void* const lineEnd = std::memchr(block_.data() + searched, '\n', end_ - searched);
    if (lineEnd != nullptr) {
      const auto end = static_cast<std::size_t>(static_cast<const char*>(lineEnd) - block_.data());
      take(end, end + 1);
      return true;
    }
    const std::size_t unfinished = end_ - begin_;
    if (atEnd_ || !refill()) {
      if (unfinished == 0) {
        return false;
      }
      take(end_, end_);
      return true;
    }
    searched = std::min(unfinished, kCardWidth);
  }
}

// Moves the unfinished card to the front, no more of it than a card holds, and reads on behind it.
bool CardReader::refill() {
  const std::size_t kept = std::min(end_ - begin_, kCardWidth);
  std::memmove(block_.data(), block_.data() + begin_, kept);
  begin_ = 0;
  const std::size_t n = std::fread(block_.data() + kept, 1, block_.size() - kept, stream_);
  end_ = kept + n;
  atEnd_ = n == 0;
  return n > 0;
}

void CardReader::take(std::size_t end, std::size_t nextCard) {
  card_ = {block_.data() + begin_, std::min(end - begin_, kCardWidth)};
  begin_ = nextCard;
  ++lineNumber_;
}

void SkipLines(CardReader& cards, int count) {
  for (int i = 0; i < count && cards.next(); ++i) {
  }
}

}  // namespace vcm
