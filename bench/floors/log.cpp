// Floor of the log: a line through a widely used logger, set up as the launcher's log: the same
// text, the same time stamp, a flush after every line, a component found by its name.
//
//   floor_log written DIR    the component's logger is at hand
//   floor_log filtered DIR   the component's logger is looked up, and wants no such line

#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include <memory>
#include <string>

#include "bench/log_line.h"
#include "bench/stopwatch.h"

namespace {

std::shared_ptr<spdlog::logger> start_log(const std::string& path, bool written) {
  spdlog::drop_all();
  auto logger = spdlog::basic_logger_mt("bench_debug", path, true);
  logger->set_pattern("%b %d %H:%M:%S %v");
  logger->flush_on(spdlog::level::trace);
  logger->set_level(written ? spdlog::level::debug : spdlog::level::warn);
  return logger;
}

void write_line(spdlog::logger& logger, int done) {
  logger.debug("[DEBUG] bench({}): copy from '{}' to '{}'", done, bench::kCopyFrom, bench::kCopyTo);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const bool written = bench::wants_lines_written(argv);
  const std::string path = std::string(argv[2]) + "/floor.log";
  std::shared_ptr<spdlog::logger> logger;
  const auto prepare = [&] { logger = start_log(path, written); };
  if (written) {
    bench::print_median(bench::kLogLines, prepare, [&](int total) {
      for (int done = 0; done < total; ++done) write_line(*logger, done);
    });
  } else {
    bench::print_median(bench::kLogLines, prepare, [&](int total) {
      for (int done = 0; done < total; ++done) write_line(*spdlog::get("bench_debug"), done);
    });
  }
  return 0;
}
