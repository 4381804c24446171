#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <vector>

// What the benchmark programs and their floors share: measuring, and printing what was measured.

namespace bench {

using Clock = std::chrono::steady_clock;

inline int64_t nanoseconds_since(Clock::time_point start) {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - start).count();
}

// Runs from its construction on.
class Stopwatch {
 public:
  [[nodiscard]] double nanoseconds() const {
    return static_cast<double>(nanoseconds_since(m_start));
  }

 private:
  const Clock::time_point m_start = Clock::now();
};

// The result of a benchmark: the last line that its program prints, in nanoseconds.
inline void print_result(double nanoseconds) { printf("%.1f\n", nanoseconds); }

// Keeps the compiler from dropping benchmarked work whose result nobody looks at.
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

// Runs `batch` of `total` operations often enough for a median that a short interruption does
// not move, and prints the nanoseconds of one operation. `prepare` is not timed. Processor
// time, because none of these operations waits for anything but the processor.
template <class Prepare, class Batch>
void print_median(int total, Prepare prepare, Batch batch) {
  constexpr int kBatches = 15;
  std::vector<double> times;
  for (int done = 0; done < kBatches; ++done) {
    prepare();
    const double start = thread_nanoseconds();
    batch(total);
    times.push_back((thread_nanoseconds() - start) / total);
  }
  std::nth_element(times.begin(), times.begin() + kBatches / 2, times.end());
  print_result(times[kBatches / 2]);
}

}  // namespace bench
