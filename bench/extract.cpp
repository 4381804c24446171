// Unpacks an archive as an upgrade does.
//
//   bench_extract ARCHIVE DIR [--no-barrier]
//
// Prints the time from the first read of the archive to the last closed file.

#include <archive.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstring>

#include "bench/stopwatch.h"
#include "launcher/extractor.h"
#include "launcher/texts/strtab.h"
#include "lib/file-op.h"

namespace {
bool g_barrier = true;
}

// Stand before the C library's for the whole program, so that the barriers against loss of
// power can be left out without a switch in the code that ships.
extern "C" {

int syncfs(int fd) noexcept { return g_barrier ? static_cast<int>(syscall(SYS_syncfs, fd)) : 0; }

int sync_file_range(int fd, off_t from, off_t size, unsigned flags) {
  return g_barrier ? static_cast<int>(syscall(SYS_sync_file_range, fd, from, size, flags)) : 0;
}
}

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  g_barrier = argc < 4 || strcmp(argv[3], "--no-barrier") != 0;
  StrTable::InitStrTable();
  Extractor extractor;
  extractor.SetSource(argv[1]);
  extractor.SetTarget(argv[2]);
  (void)archive_read_free(archive_read_new());  // loads the library, which the floor has linked
  const Clock::time_point start = Clock::now();
  // The barrier behind it is the service's, and stands for the last file as well.
  if (extractor.Extract() != 0 || FSSync(argv[2]) != 0) return 1;
  print_nanoseconds(static_cast<double>(nanoseconds_since(start)));
  return 0;
}
