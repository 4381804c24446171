// Benchmark of unpacking: an archive as an upgrade does it.
//
//   bench_extract ARCHIVE DIR [--no-barrier]
//
// Prints the time from the first read of the archive to the last closed file.

#include <archive.h>

#include <cstring>

#include "bench/barriers.h"
#include "bench/stopwatch.h"
#include "launcher/extractor.h"
#include "launcher/texts/strtab.h"
#include "lib/file-op.h"

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  bench::g_barriers = argc < 4 || strcmp(argv[3], "--no-barrier") != 0;
  StrTable::InitStrTable();
  Extractor extractor;
  extractor.SetSource(argv[1]);
  extractor.SetTarget(argv[2]);
  (void)archive_read_free(archive_read_new());  // loads the library, which the floor has linked
  const bench::Stopwatch watch;
  // The barrier behind it is the service's, and stands for the last file as well.
  if (extractor.Extract() != 0 || FSSync(argv[2]) != 0) return 1;
  bench::print_result(watch.nanoseconds());
  return 0;
}
