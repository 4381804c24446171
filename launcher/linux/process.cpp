#include "launcher/linux/process.h"

#include <fcntl.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

namespace {

constexpr int64_t kTolerance =
    2000;  // milliseconds; some file systems count in steps of two seconds

ustring proc_path(pid_t pid, const char* name) {
  char path[64];
  (void)snprintf(path, sizeof path, "/proc/%lld/%s", static_cast<long long>(pid), name);
  return path;
}

int64_t milliseconds(clockid_t clock) {
  timespec now = {};
  (void)clock_gettime(clock, &now);  // neither of the two clocks that are asked for can fail
  return int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1000000;
}

}  // namespace

int ParseProcessStat(const ustring& text, ProcessInfo& info) {
  // The second field is the program's name, in parentheses, and may hold any character.
  const char* const name_end = strrchr(text.c_str(), ')');
  if (!name_end) return -1;
  char state = 0;
  long threads = 0;
  unsigned long long start = 0;
  // The 3rd, 20th and 22nd field.
  const char format[] =
      ") %c %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s %ld %*s %llu";
  if (sscanf(name_end, format, &state, &threads, &start) != 3) return -1;
  info.start = start;
  // A process whose first thread has ended looks the same while others still run.
  info.ended = (state == 'Z' || state == 'X') && threads <= 1;
  return 0;
}

int GetProcessInfo(pid_t pid, ProcessInfo& info) {
  const int fd = open(proc_path(pid, "stat").c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return -1;
  char text[1024];  // 52 fields of at most 20 digits
  const ssize_t size = TEMP_FAILURE_RETRY(read(fd, text, sizeof text - 1));
  (void)close(fd);  // only read from: nothing is lost
  if (size < 0) return -1;
  text[size] = '\0';
  return ParseProcessStat(text, info);
}

bool IsStartedAfter(uint64_t start, time_t written) {
  const auto hertz = static_cast<uint64_t>(sysconf(_SC_CLK_TCK));
  const auto started = static_cast<int64_t>(start / hertz * 1000 + start % hertz * 1000 / hertz);
  const int64_t process_age = milliseconds(CLOCK_BOOTTIME) - started;
  const int64_t file_age = milliseconds(CLOCK_REALTIME) - int64_t{written} * 1000;
  return process_age + kTolerance < file_age;
}

bool IsProgramBelow(pid_t pid, const ustring& dir) {
  const std::unique_ptr<char, decltype(&free)> real(realpath(dir.c_str(), nullptr), &free);
  char program[PATH_MAX];
  const ssize_t size = readlink(proc_path(pid, "exe").c_str(), program, sizeof program);
  if (!real || size < 0) return false;
  const std::string_view above(real.get());
  const std::string_view path(program, static_cast<size_t>(size));
  return path.size() > above.size() && path.substr(0, above.size()) == above &&
         path[above.size()] == '/';
}
