#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <vector>

// What the benchmark programs share: measuring, and printing what was measured.

using Clock = std::chrono::steady_clock;

inline int64_t nanoseconds_since(Clock::time_point start) {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - start).count();
}

// The result of a program: the last line of its output.
inline void print_nanoseconds(double value) { printf("%.1f\n", value); }

// Keeps the compiler from dropping work whose result nobody looks at.
template <class T>
void keep(const T& value) {
  asm volatile("" : : "g"(&value) : "memory");
}

// The processor time of this thread.
inline double thread_nanoseconds() {
  timespec now = {};
  (void)clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);  // fails for an unknown clock only
  return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

// Runs `batch` of `count` operations often enough for a median that a short interruption does
// not move, and prints the nanoseconds of one operation. `prepare` is not timed. Processor
// time, because none of these operations waits for anything but the processor.
template <class Prepare, class Batch>
void print_median(int count, Prepare prepare, Batch batch) {
  constexpr int kBatches = 15;
  std::vector<double> times;
  for (int i = 0; i < kBatches; ++i) {
    prepare();
    const double start = thread_nanoseconds();
    batch(count);
    times.push_back((thread_nanoseconds() - start) / count);
  }
  std::nth_element(times.begin(), times.begin() + kBatches / 2, times.end());
  print_nanoseconds(times[kBatches / 2]);
}
