// What every measured program does: read a monotonic clock and print lines that the comparison reads.
#ifndef BENCHMARKS_MEASURING_H
#define BENCHMARKS_MEASURING_H

#include <chrono>
#include <cstdio>

// Seconds that a piece of work took.
template <class Work>
double secondsOf(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline void report(const char* name, double value) { std::printf("%s %.17g\n", name, value); }

// A value that every program doing the same work must print alike.
inline void reportCheck(const char* name, double value) {
  std::printf("check %s %.17g\n", name, value);
}

#endif
