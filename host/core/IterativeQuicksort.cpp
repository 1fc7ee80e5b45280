// Sorting of fixed-length texts that carry a number along.
//
// What is sorted is not the texts but small elements: the index of a text, and the bits at its
// front that tell it from the others. Bits that are the same in all texts tell nothing and are left
// out, so that for texts of digits the front reaches over about 16 columns that vary, and few texts
// share one.
#include <bit>
#include <cstring>
#include <memory>
#include <vector>

#include "BoundedQuicksort.h"
#include "Host/HostCore.h"
#include "Text.h"

namespace {

// Two words of one width: an element is then moved as a whole, which doubles the speed.
struct Element {
  std::uint64_t front;
  std::uint64_t index;
};

constexpr auto kLessByFront = [](const Element& a, const Element& b) { return a.front < b.front; };

// The texts as given, and which of their columns go into the front of an element.
class Texts {
 public:
  Texts(const char* texts, std::size_t length, const std::int64_t* carried, std::size_t count)
      : texts_(texts), length_(length), carried_(carried), count_(count) {
    chooseFront(varyingBits());
  }

  std::vector<Element> elements() const {
    std::vector<Element> elements;
    elements.reserve(count_);
    for (std::size_t i = 0; i < count_; ++i) {
      elements.push_back({frontOf(text(i)), i});
    }
    return elements;
  }

  // The order of texts whose fronts are equal.
  bool lessBehindFront(const Element& a, const Element& b) const {
    const std::size_t rest = length_ - restBegin_;
    const int order =
        rest == 0 ? 0 : std::memcmp(text(a.index) + restBegin_, text(b.index) + restBegin_, rest);
    return order != 0 ? order < 0 : carried_[a.index] < carried_[b.index];
  }

  bool less(const Element& a, const Element& b) const {
    return a.front != b.front ? a.front < b.front : lessBehindFront(a, b);
  }

  const char* text(std::size_t index) const { return texts_ + index * length_; }
  std::int64_t carried(std::size_t index) const { return carried_[index]; }

 private:
  // For each column the bits in which some text differs from the first one, found eight columns at a
  // time.
  std::vector<unsigned char> varyingBits() const {
    constexpr std::size_t kWord = sizeof(std::uint64_t);
    const std::size_t words = length_ / kWord;
    const std::size_t inWords = words * kWord;
    std::vector<std::uint64_t> differing(words);
    std::vector<unsigned char> varying(length_);
    for (std::size_t i = 1; i < count_; ++i) {
      for (std::size_t word = 0; word < words; ++word) {
        differing[word] |= wordAt(texts_ + word * kWord) ^ wordAt(text(i) + word * kWord);
      }
      for (std::size_t column = inWords; column < length_; ++column) {
        varying[column] =
            static_cast<unsigned char>(varying[column] | (texts_[column] ^ text(i)[column]));
      }
    }
    std::copy_n(reinterpret_cast<const unsigned char*>(differing.data()), inWords, varying.begin());
    return varying;
  }

  static std::uint64_t wordAt(const char* at) {
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    return word;
  }

  void chooseFront(const std::vector<unsigned char>& varying) {
    int bitsLeft = 64;
    for (std::size_t column = 0; column < length_; ++column) {
      const int bits = std::bit_width(varying[column]);
      if (bits > bitsLeft) {
        restBegin_ = column;
        return;
      }
      if (bits > 0) {
        front_.push_back({column, bits});
        bitsLeft -= bits;
      }
    }
    restBegin_ = length_;
  }

  std::uint64_t frontOf(const char* text) const {
    std::uint64_t front = 0;
    for (const Column& column : front_) {
      const auto byte = static_cast<unsigned char>(text[column.position]);
      front = front << column.lowBits | (byte & ((1U << column.lowBits) - 1));
    }
    return front;
  }

  struct Column {
    std::size_t position;
    // The others are the same in all texts.
    int lowBits;
  };

  const char* texts_;
  std::size_t length_;
  const std::int64_t* carried_;
  std::size_t count_;
  std::vector<Column> front_;
  // First column that no front reaches; the texts' length when the fronts hold all that varies.
  std::size_t restBegin_ = 0;
};

using Elements = std::vector<Element>;

// Joins two neighbouring stretches that are in order.
void join(Elements::iterator first, Elements::iterator middle, Elements::iterator last,
          const auto& less) {
  if (less(*(last - 1), *first)) {
    std::rotate(first, middle, last);
  } else if (less(*middle, *(middle - 1))) {
    std::inplace_merge(first, middle, last, less);
  }
}

// A walk through a store often meets the texts in few stretches that are in order, or in the opposite
// one. Sorts these; false, with the elements in any order, when there are many.
bool joinStretches(Elements& elements, const auto& less) {
  constexpr int kMost = 6;
  auto sorted = elements.begin();
  for (int stretches = 0; sorted != elements.end(); ++stretches) {
    if (stretches == kMost) {
      return false;
    }
    const auto begin = sorted;
    sorted = std::is_sorted_until(begin, elements.end(), less);
    if (sorted - begin == 1) {
      const auto greater = [&less](const Element& a, const Element& b) { return less(b, a); };
      sorted = std::is_sorted_until(begin, elements.end(), greater);
      std::reverse(begin, sorted);
    }
    if (begin != elements.begin()) {
      join(elements.begin(), begin, sorted, less);
    }
  }
  return true;
}

void sort(Elements& elements, const Texts& texts) {
  Element* const last = elements.data() + elements.size();
  hostcore::boundedQuicksort(elements.data(), last, kLessByFront);
  for (Element* run = elements.data(); run != last;) {
    Element* const runEnd =
        std::find_if(run, last, [run](const Element& e) { return e.front != run->front; });
    if (runEnd - run > 1) {
      hostcore::boundedQuicksort(run, runEnd, [&texts](const Element& a, const Element& b) {
        return texts.lessBehindFront(a, b);
      });
    }
    run = runEnd;
  }
}

}  // namespace

void quicksortiterative(char* texts, const std::int32_t* textLength, std::int64_t* carried,
                        const std::int32_t* count) {
  const std::size_t length = hostcore::sizeOf(textLength);
  const std::size_t size = hostcore::sizeOf(count);
  if (size < 2) {
    return;
  }
  const Texts given(texts, length, carried, size);
  Elements elements = given.elements();
  const auto less = [&given](const Element& a, const Element& b) { return given.less(a, b); };
  if (!joinStretches(elements, less)) {
    sort(elements, given);
  }

  const auto sortedTexts = std::make_unique_for_overwrite<char[]>(size * length);
  for (std::size_t i = 0; i < size; ++i) {
    std::copy_n(given.text(elements[i].index), length, sortedTexts.get() + i * length);
    // The front has done its work and makes room.
    elements[i].front = static_cast<std::uint64_t>(given.carried(elements[i].index));
  }
  std::copy_n(sortedTexts.get(), size * length, texts);
  std::transform(elements.begin(), elements.end(), carried,
                 [](const Element& e) { return static_cast<std::int64_t>(e.front); });
}
