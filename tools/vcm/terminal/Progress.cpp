#include "terminal/Progress.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

#include "terminal/Screen.h"

namespace vcmtool {

namespace {

using std::chrono::duration;
using std::chrono::milliseconds;
using std::chrono::seconds;

std::string withThousands(std::int64_t count) {
  std::string digits = fmt::format("{}", count);
  for (std::size_t end = digits.size(); end > 3; end -= 3) {
    digits.insert(end - 3, 1, ',');
  }
  return digits;
}

// The end of a name says more than its beginning.
std::string shortened(std::string_view name, std::size_t width) {
  constexpr std::string_view kCut = "...";
  if (name.size() <= width) {
    return std::string(name);
  }
  return width <= kCut.size() ? std::string()
                              : fmt::format("{}{}", kCut, name.substr(name.size() - width + 3));
}

}  // namespace

Progress::Progress(std::function<std::int64_t()> count) : count_(std::move(count)) {
  if (isTerminal(STDERR_FILENO)) {
    watcher_ = std::jthread([this](const std::stop_token& stop) { watch(stop); });
  }
}

Progress::~Progress() {
  if (watcher_.joinable()) {
    watcher_.request_stop();
    watcher_.join();
    eraseProgress();
  }
}

void Progress::file(std::string_view name) {
  const std::lock_guard<std::mutex> guard(lock_);
  file_ = name;
}

void Progress::watch(const std::stop_token& stop) {
  // Counting may keep the loading waiting, so it gets a twentieth of the time at most.
  constexpr int kRestPerCount = 20;
  Clock::duration rest = seconds(1);
  for (;;) {
    {
      std::unique_lock<std::mutex> guard(lock_);
      stopped_.wait_for(guard, stop, rest, [] { return false; });
    }
    if (stop.stop_requested()) {
      return;
    }
    const Clock::time_point before = Clock::now();
    const std::int64_t count = count_();
    rest = std::max<Clock::duration>(milliseconds(200), kRestPerCount * (Clock::now() - before));
    showProgress(line(count));
  }
}

std::string Progress::line(std::int64_t count) {
  const std::string tail =
      fmt::format(": {} messages, {:.1f} s", withThousands(count),
                  duration_cast<duration<double>>(Clock::now() - start_).count());
  constexpr std::string_view kHead = "Loading ";
  // A terminal may wrap the line as soon as its last column is filled.
  const auto width = static_cast<std::size_t>(terminalColumns(STDERR_FILENO)) - 1;
  const std::size_t taken = kHead.size() + tail.size();
  const std::lock_guard<std::mutex> guard(lock_);
  return fmt::format("{}{}{}", kHead, shortened(file_, width > taken ? width - taken : 0), tail);
}

}  // namespace vcmtool
