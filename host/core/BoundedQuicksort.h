// A quicksort without recursion whose stack and running time are bounded for every input.
#ifndef HOST_CORE_BOUNDEDQUICKSORT_H
#define HOST_CORE_BOUNDEDQUICKSORT_H

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <limits>
#include <utility>

namespace hostcore {

template <class Element, class Less>
class BoundedQuicksort {
 public:
  explicit BoundedQuicksort(Less less) : less_(less) {}

  void operator()(Element* first, Element* last) const {
    // The larger part waits, so each part taken up next is at most half as long as the one it came
    // from, and no more than one part for each halving waits.
    std::array<Part, std::numeric_limits<std::size_t>::digits> waiting;
    std::size_t waitingCount = 0;
    Part part{first, last,
              2 * static_cast<int>(std::bit_width(static_cast<std::size_t>(last - first)))};
    for (;;) {
      while (part.size() > kShortPart && part.splitsLeft > 0) {
        auto [left, right] = split(part);
        if (left.size() > right.size()) {
          std::swap(left, right);
        }
        waiting[waitingCount++] = right;
        part = left;
      }
      finish(part);
      if (waitingCount == 0) {
        return;
      }
      part = waiting[--waitingCount];
    }
  }

 private:
  struct Part {
    std::ptrdiff_t size() const { return last - first; }

    Element* first = nullptr;
    Element* last = nullptr;
    // Well-split input never uses these up; what does is sorted by a heap instead.
    int splitsLeft = 0;
  };

  static constexpr std::ptrdiff_t kShortPart = 24;
  static constexpr std::ptrdiff_t kLongPart = 256;

  // The parts below the pivot and above it; elements that equal it may go with the latter. At least
  // one element stays out of both or neither is empty, so that every split makes progress.
  std::pair<Part, Part> split(const Part& part) const {
    const Element pivot = pivotOf(part);
    Element* middle = gather(part.first, part.last,
                             [&](const Element& element) { return less_(element, pivot); });
    Element* above = middle;
    if (middle == part.first) {
      // The pivot is the least element. All that equal it are in place once they stand together,
      // which is what keeps an input of equals short.
      above = gather(part.first, part.last,
                     [&](const Element& element) { return !less_(pivot, element); });
    }
    return {Part{part.first, middle, part.splitsLeft - 1},
            Part{above, part.last, part.splitsLeft - 1}};
  }

  // Moves the elements that pass the test to the front and returns their end. There is no branch on
  // the outcome: for elements in no order it could not be foretold, and would cost more than the
  // moves.
  template <class Test>
  static Element* gather(Element* first, Element* last, Test test) {
    Element* end = first;
    for (Element* next = first; next != last; ++next) {
      const Element moving = *next;
      *next = *end;
      *end = moving;
      end += test(moving) ? 1 : 0;
    }
    return end;
  }

  // A median of three, in a long part of three medians, of elements spread over the part: patterns
  // such as rising and then falling have their extremes at the ends and in the middle.
  Element pivotOf(const Part& part) const {
    const auto medianAround = [&](std::ptrdiff_t eighth, std::ptrdiff_t reach) {
      const Element* middle = part.first + part.size() / 8 * eighth;
      return median(*(middle - reach), *middle, *(middle + reach));
    };
    if (part.size() < kLongPart) {
      return medianAround(4, part.size() / 4);
    }
    const std::ptrdiff_t reach = part.size() / 16;
    return median(medianAround(1, reach), medianAround(4, reach), medianAround(7, reach));
  }

  const Element& median(const Element& a, const Element& b, const Element& c) const {
    const auto& [low, high] = std::minmax(a, b, less_);
    return less_(c, low) ? low : less_(high, c) ? high : c;
  }

  void finish(const Part& part) const {
    if (part.size() > kShortPart) {
      std::make_heap(part.first, part.last, less_);
      std::sort_heap(part.first, part.last, less_);
      return;
    }
    for (Element* next = part.first; next != part.last; ++next) {
      const Element moving = *next;
      Element* hole = next;
      for (; hole != part.first && less_(moving, *(hole - 1)); --hole) {
        *hole = *(hole - 1);
      }
      *hole = moving;
    }
  }

  Less less_;
};

template <class Element, class Less>
void boundedQuicksort(Element* first, Element* last, Less less) {
  BoundedQuicksort<Element, Less>{less}(first, last);
}

}  // namespace hostcore

#endif
