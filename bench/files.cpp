// Benchmark of files: removes and copies as the launcher does.
//
//   bench_files remove DIR
//   bench_files copy FILE FILE
//   bench_files copytree DIR DIR

#include <cstring>

#include "bench/stopwatch.h"
#include "launcher/linux/linux-service.h"
#include "lib/file-op.h"

namespace {

int run(int argc, char** argv) {
  if (argc == 3 && strcmp(argv[1], "remove") == 0) return FSRemove(argv[2], false);
  if (argc == 4 && strcmp(argv[1], "copy") == 0) return FSCopy(argv[2], argv[3], false);
  if (argc == 4 && strcmp(argv[1], "copytree") == 0) {
    return LinuxService::GetInstace().FSCopyPath(argv[2], argv[3]);
  }
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  const bench::Stopwatch watch;
  if (const int status = run(argc, argv)) return status == 2 ? 2 : 1;
  bench::print_result(watch.nanoseconds());
  return 0;
}
