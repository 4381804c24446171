// One line through a widely used logger, set up to do what the launcher's log does: the same
// text, the same time stamp, a flush after every line, a component found by its name.
//
//   floor_log written DIR    the component's logger is at hand
//   floor_log filtered DIR   the component's logger is looked up, and wants no such line

#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include <cstring>
#include <memory>
#include <string>

#include "bench/stopwatch.h"

namespace {

constexpr int kLines = 5000;

std::shared_ptr<spdlog::logger> start_log(const std::string& path, bool written) {
  spdlog::drop_all();
  auto logger = spdlog::basic_logger_mt("bench_debug", path, true);
  logger->set_pattern("%b %d %H:%M:%S %v");
  logger->flush_on(spdlog::level::trace);
  logger->set_level(written ? spdlog::level::debug : spdlog::level::warn);
  return logger;
}

void write_line(spdlog::logger& logger, int i) {
  logger.debug("[DEBUG] bench({}): copy from '{}' to '{}'", i, "/usr/share/doc/readme",
               "/home/user/readme");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const bool written = strcmp(argv[1], "written") == 0;
  const std::string path = std::string(argv[2]) + "/floor.log";
  std::shared_ptr<spdlog::logger> logger;
  const auto prepare = [&] { logger = start_log(path, written); };
  if (written) {
    print_median(kLines, prepare, [&](int count) {
      for (int i = 0; i < count; ++i) write_line(*logger, i);
    });
  } else {
    print_median(kLines, prepare, [&](int count) {
      for (int i = 0; i < count; ++i) write_line(*spdlog::get("bench_debug"), i);
    });
  }
  return 0;
}
