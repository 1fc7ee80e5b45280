#include "terminal/Progress.h"

#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>

#include "terminal/Screen.h"

namespace vcmtool {

namespace {

using std::chrono::duration;
using std::chrono::milliseconds;

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

milliseconds delayOfFirst() {
  constexpr double kUsual = 2.0;
  // NOLINTNEXTLINE(concurrency-mt-unsafe): nothing sets any
  const char* const given = std::getenv("VCM_PROGRESS_DELAY");
  char* end = nullptr;
  const double read = given == nullptr ? kUsual : std::strtod(given, &end);
  const bool isGood = end != nullptr && end != given && *end == '\0' && read >= 0 && read < 1e6;
  return milliseconds(static_cast<std::int64_t>(1000 * (isGood ? read : kUsual)));
}

std::string durationText(double inSeconds) {
  constexpr double kMinute = 60;
  return inSeconds < 2 * kMinute ? fmt::format("{:.0f} s", inSeconds)
                                 : fmt::format("{:.0f} min", inSeconds / kMinute);
}

}  // namespace

Progress::Progress(std::string_view verb, int growing) : verb_(verb), growing_(growing) {
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

void Progress::file(std::string_view name, std::int64_t total) {
  const std::lock_guard<std::mutex> guard(lock_);
  file_ = name;
  total_ = total;
  count_ = 0;
  start_ = Clock::now();
}

void Progress::setReading(int descriptor) {
  const std::lock_guard<std::mutex> guard(lock_);
  reading_ = descriptor;
}

void Progress::watch(const std::stop_token& stop) {
  constexpr milliseconds kBetween(200);
  std::unique_lock<std::mutex> guard(lock_);
  for (milliseconds rest = delayOfFirst();; rest = kBetween) {
    stopped_.wait_for(guard, stop, rest, [] { return false; });
    if (stop.stop_requested()) {
      return;
    }
    if (!file_.empty()) {
      const std::string shown = line();
      guard.unlock();
      showProgress(shown);
      guard.lock();
    }
  }
}

// 0 when it is not known.
double Progress::partDone(std::int64_t count) const {
  if (total_ > 0) {
    return static_cast<double>(count) / static_cast<double>(total_);
  }
  // A file is looked through once before its messages are read.
  struct stat status {};
  if (reading_ == kNone || count == 0 || fstat(reading_, &status) != 0 || status.st_size <= 0) {
    return 0;
  }
  return static_cast<double>(lseek(reading_, 0, SEEK_CUR)) / static_cast<double>(status.st_size);
}

// The caller holds the lock.
std::string Progress::line() {
  struct stat grown {};
  const bool grows = growing_ != kNone && fstat(growing_, &grown) == 0;
  constexpr std::int64_t kMegabyte = 1'000'000;
  const std::int64_t count = grows ? grown.st_size / kMegabyte : count_.load();
  const double part = partDone(count);
  const double elapsed = duration_cast<duration<double>>(Clock::now() - start_).count();
  std::string tail = fmt::format(": {} {}, ", withThousands(count), grows ? "MB" : "messages");
  if (count > 0 && elapsed > 0) {
    tail += withThousands(std::llround(static_cast<double>(count) / elapsed)) + "/s, ";
  }
  tail += part > 0 ? fmt::format("{:.0f} %, {} left", 100 * part,
                                 durationText(elapsed * (1 - part) / part))
                   : durationText(elapsed);
  const std::string head = fmt::format("{} ", verb_);
  // A terminal may wrap the line as soon as its last column is filled.
  const auto width = static_cast<std::size_t>(terminalColumns(STDERR_FILENO)) - 1;
  const std::size_t taken = head.size() + tail.size();
  return head + shortened(file_, width > taken ? width - taken : 0) + tail;
}

}  // namespace vcmtool
