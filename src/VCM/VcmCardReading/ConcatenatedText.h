// A multi-line message that came as one string.
#ifndef VCM_VCMCARDREADING_CONCATENATEDTEXT_H
#define VCM_VCMCARDREADING_CONCATENATEDTEXT_H

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace vcm {

inline constexpr std::size_t kMaxConcatenatedLines = 40;
inline constexpr std::size_t kConcatenatedLineWidth = 512;

// The lines that a text was cut into: views into it, of up to 512 characters.
class ConcatenatedLines {
 public:
  std::size_t count() const { return count_; }
  std::span<const std::string_view> lines() const { return std::span(lines_).first(count_); }
  void add(std::string_view line) { lines_[count_++] = line.substr(0, kConcatenatedLineWidth); }
  bool isFull() const { return count_ == lines_.size(); }

 private:
  std::array<std::string_view, kMaxConcatenatedLines> lines_;
  std::size_t count_ = 0;
};

// Cuts a text in front of every "<" or ">" that is not among the first two characters of what is
// left of it. Characters before the first of them make a blank first line. No line when there is
// none; a 41st and later lines are dropped.
ConcatenatedLines Concatenated2MultiLine(std::string_view text);

}  // namespace vcm

#endif
