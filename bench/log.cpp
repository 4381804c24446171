// Benchmark of the log: one line.
//
//   bench_log written DIR    a line that is written to a file in DIR
//   bench_log filtered DIR   a line below its component's threshold

#include <string>

#include "bench/log_line.h"
#include "bench/stopwatch.h"
#include "lib/log.h"

namespace {

const ustring kComponent("bench_debug");
constexpr int kRotationCount = 50;

void start_log(const std::string& path, const std::string& levels) {
  Logger::Destroy();
  (void)remove(path.c_str());  // not there the first time
  (void)Logger::Initialize(Logger::FILE_LOGGER, path, levels, kRotationCount);
}

void write_lines(int total) {
  for (int done = 0; done < total; ++done) {
    Logger::LogMsg(Logger::L_DEBUG, kComponent, "[DEBUG] bench(%d): copy from '%s' to '%s'\n", done,
                   bench::kCopyFrom, bench::kCopyTo);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const std::string folder = argv[2];
  const std::string levels = folder + "/levels";
  FILE* const file = fopen(levels.c_str(), "w");
  if (!file) return 1;
  // As many components as the launcher has.
  const char* const threshold = bench::wants_lines_written(argv) ? "7" : "4";
  fprintf(file, "extractor_debug=4\nfile_op_debug=4\nlauncher_debug=4\nservice_debug=4\n");
  fprintf(file, "bench_debug=%s\n", threshold);
  if (fclose(file) != 0) return 1;
  bench::print_median(
      bench::kLogLines, [&] { start_log(folder + "/ours.log", levels); }, write_lines);
  return 0;
}
