// A line on standard error that tells how far a long load has come.
#ifndef VCM_TOOLS_PROGRESS_H
#define VCM_TOOLS_PROGRESS_H

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace vcmtool {

// Lives as long as the loading, from whose thread it is used. Shows nothing for the first second
// and never where standard error is no terminal.
class Progress {
 public:
  // `count` tells how many messages there are by now; it is called by another thread.
  explicit Progress(std::function<std::int64_t()> count);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Loading goes on in this file.
  void file(std::string_view name);

 private:
  using Clock = std::chrono::steady_clock;

  void watch(const std::stop_token& stop);
  std::string line(std::int64_t count);

  std::function<std::int64_t()> count_;
  Clock::time_point start_ = Clock::now();
  std::mutex lock_;
  std::condition_variable_any stopped_;
  std::string file_;  // guarded by lock_
  std::jthread watcher_;
};

}  // namespace vcmtool

#endif
