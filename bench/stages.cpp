// A start with nothing to do, step by step: main() with a clock between its steps.
//
//   bench_stages SPAWNED     SPAWNED: the monotonic clock, in nanoseconds, when the process
//                            was started
//
// Must stand in a package root, like the launcher. Prints a line "<step> <nanoseconds>" for
// each step; the last, "end", is the clock when main() returns.

#define main launcher_main
#include "launcher/main.cpp"
#undef main

#include <cstdlib>

#include "bench/stopwatch.h"
#include "launcher/linux/linux-service.h"

namespace {

int64_t now() { return nanoseconds_since(Clock::time_point()); }

int64_t g_last = 0;

void step(const char* name) {
  const int64_t time = now();
  fprintf(stderr, "%s %lld\n", name, static_cast<long long>(time - g_last));
  g_last = now();
}

// The worker's steps, on this thread.
void run_service() {
  LinuxService service;
  service.PreUpgrade();
  step("version files");
  if (service.IsNeedUpgrade()) exit(1);
  step("decision");
  service.PostUpgrade();
  step("start script");
}

int run(int argc, char** argv) {
  initialize_resources(argv[0]);
  step("locale and resources");
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  name_application();
  QtSingleApplication app(argc, argv, true);
  if (app.isRunning()) return 1;
  step("application and lock");
  ensure_utf8_names();
  initialize_logger();
  step("log");
  QTranslator translator;
  const QString none("");
  (void)translator.load(getCurrentLanguageFileName(), none, none, none);
  if (!translator.isEmpty()) QCoreApplication::installTranslator(&translator);
  StrTable::InitStrTable();
  step("translator");
  Launcher* const launcher = new Launcher;
  step("dialog");
  HandlerThread thread;
  thread.start();
  thread.quit();
  (void)thread.wait();
  step("thread");
  run_service();
  delete launcher;
  step("dialog's end");
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  g_last = now();
  if (argc < 2) return 2;
  fprintf(stderr, "libraries %lld\n", static_cast<long long>(g_last - atoll(argv[1])));
  g_last = now();
  const int status = run(argc, argv);
  step("application's end");
  fprintf(stderr, "end %lld\n", static_cast<long long>(now()));
  return status;
}
