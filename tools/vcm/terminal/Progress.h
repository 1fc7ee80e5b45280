// A line on standard error that tells how far long work has come.
#ifndef VCM_TOOLS_PROGRESS_H
#define VCM_TOOLS_PROGRESS_H

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace vcmtool {

// Lives as long as the work, from whose thread it is used. Shows nothing for the first two seconds, or
// as many as VCM_PROGRESS_DELAY says, and never where standard error is no terminal.
class Progress {
 public:
  // What is being done. Messages are counted or, where an open file is given, the megabytes that it
  // grows to.
  explicit Progress(std::string_view verb, int growing = kNone);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // The work goes on with this file: count and time begin anew. `total` is how many there are to count,
  // where that is known.
  void file(std::string_view name, std::int64_t total = 0);
  // One more is done.
  void count() { count_.fetch_add(1, std::memory_order_relaxed); }

  // While it lives, the work reads an open file to its end.
  class Reading;

 private:
  using Clock = std::chrono::steady_clock;

  void watch(const std::stop_token& stop);
  std::string line();
  double partDone(std::int64_t count) const;
  void setReading(int descriptor);

  static constexpr int kNone = -1;

  const std::string_view verb_;
  const int growing_;
  std::atomic<std::int64_t> count_ = 0;
  std::mutex lock_;
  std::condition_variable_any stopped_;
  // Guarded by lock_.
  std::string file_;
  Clock::time_point start_ = Clock::now();
  std::int64_t total_ = 0;
  int reading_ = kNone;
  std::jthread watcher_;
};

class Progress::Reading {
 public:
  Reading(Progress& progress, int descriptor) : progress_(progress) {
    progress_.setReading(descriptor);
  }
  ~Reading() { progress_.setReading(kNone); }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

 private:
  Progress& progress_;
};

}  // namespace vcmtool

#endif
