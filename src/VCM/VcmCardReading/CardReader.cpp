#include "VCM/VcmCardReading/CardReader.h"

namespace vcm {

namespace {

// The first place behind a line end where another character stands, `end` when there is none. Whole
// stretches are looked at without a branch, which the compiler does many characters at a time.
const char* findLineNotBeginningWith(char first, const char* at, const char* end) {
  constexpr std::ptrdiff_t kStretch = 512;
  for (; end - at > kStretch; at += kStretch) {
    unsigned char found = 0;  // as wide as what is compared
    for (std::ptrdiff_t i = 0; i < kStretch; ++i) {
      found = static_cast<unsigned char>(
          found | (static_cast<int>(at[i] == '\n') & static_cast<int>(at[i + 1] != first)));
    }
    if (found != 0) {
      break;
    }
  }
  while (at != end) {
    const void* const lineEnd = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
    if (lineEnd == nullptr) {
      return end;
    }
    at = static_cast<const char*>(lineEnd) + 1;
    if (at != end && *at != first) {
      return at;
    }
  }
  return end;
}

// Where the last line begins.
const char* lastLine(const char* begin, const char* end) {
  while (end != begin && end[-1] != '\n') {
    --end;
  }
  return end;
}

}  // namespace

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

bool CardReader::nextNotBeginningWith(char first) {
  while (begin_ == end_ || *begin_ == first) {
    if (begin_ != end_) {
      const char* const line = findLineNotBeginningWith(first, begin_, end_);
      begin_ = line == end_ ? lastLine(begin_, end_) : line;
    }
    if (begin_ == end_ || *begin_ == first) {
      keepUnfinished();
      if (!refill()) {
        return false;
      }
    }
  }
  return next();
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
