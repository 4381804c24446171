#pragma once

#include <sys/syscall.h>
#include <unistd.h>

// Lets a benchmark leave out the barriers against loss of power without a switch in the code
// that ships: these functions stand before the C library's for the whole program. To be
// included by one file of it.

namespace bench {
inline bool g_barriers = true;
}

extern "C" {

int syncfs(int fd) noexcept {
  return bench::g_barriers ? static_cast<int>(syscall(SYS_syncfs, fd)) : 0;
}

int sync_file_range(int fd, off_t from, off_t size, unsigned flags) {
  return bench::g_barriers ? static_cast<int>(syscall(SYS_sync_file_range, fd, from, size, flags))
                           : 0;
}
}
