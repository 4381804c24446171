// A start with nothing to do, step by step: what main() does, with a clock between its steps.
//
//   bench_stages SPAWNED     SPAWNED: the monotonic clock, in nanoseconds, when the process
//                            was started
//
// Must stand in a package root, like the launcher. Prints a line "<step> <nanoseconds>" for
// each step; the last, "end", is the clock when main() returns.

#include <QApplication>
#include <QFontMetrics>
#include <QLocale>
#include <QTextCodec>
#include <QTranslator>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "bench/stopwatch.h"
#include "launcher/launcher.h"
#include "launcher/linux/linux-service.h"
#include "launcher/startup.h"
#include "launcher/texts/strtab.h"
#include "qtsingleapplication/qtsingleapplication.h"

namespace {

int64_t now() { return bench::nanoseconds_since(bench::Clock::time_point()); }

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

// What the libraries do once, at the first call of its kind, whoever makes it. With these
// calls made first, the steps below them are the launcher's own.

void warm_up_libraries() {
  (void)setlocale(LC_ALL, "");
  step("C library's locale");
  (void)QTextCodec::codecForName("UTF-8");
  step("toolkit's text codecs");
  (void)QCoreApplication::libraryPaths();
  step("toolkit's paths");
}

void warm_up_toolkit() {
  qDebug("toolkit's trace:");
  step("toolkit's traces");
  (void)QLocale::system().name();
  step("toolkit's locale");
  QTranslator translator;
  (void)translator.load(":/enu.qm");
  step("toolkit's first resource");
  QFont font = QApplication::font();
  font.setFamily("Arial");
  (void)QFontMetrics(font).height();
  step("toolkit's fonts");
  { const ProcessingProgressDialog dialog; }
  step("toolkit's first dialog");
}

int run(int argc, char** argv) {
  warm_up_libraries();
  open_standard_streams();
  outlive_signals();
  initialize_resources(argv[0]);
  step("locale and resources");
  initialize_application();
  std::optional<PlatformFallback> fallback(std::in_place);
  QtSingleApplication app(argc, argv, true);
  fallback.reset();
  if (app.isRunning()) return 1;
  step("lock");
  ensure_utf8_names();
  initialize_logger();
  step("log");
  warm_up_toolkit();
  QTranslator translator;
  install_translator(&translator);
  StrTable::InitStrTable();
  step("translation");
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

// The linker has every caller of QApplication's constructor, and so the lock's constructor,
// call the first of these two; the second is the constructor itself.
extern "C" {
void __real__ZN12QApplicationC2ERiPPci(QApplication* self, int& argc, char** argv, int flags);

void __wrap__ZN12QApplicationC2ERiPPci(QApplication* self, int& argc, char** argv, int flags) {
  __real__ZN12QApplicationC2ERiPPci(self, argc, argv, flags);
  step("toolkit's application");
}
}

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
