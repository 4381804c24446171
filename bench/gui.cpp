// Benchmark of the worker and the dialog: the GUI thread's part in an upgrade.
//
//   bench_gui slot TOTAL             prints the processor time of the GUI thread for one report
//                                    of progress out of TOTAL
//   bench_gui alone ARCHIVE DIR      unpacks on the worker thread, nobody listens
//   bench_gui queued ARCHIVE DIR     the same with the reports sent to the GUI thread, which
//                                    drops them
//   bench_gui dialog ARCHIVE DIR     the same with the dialog shown and following
//
// The three last print the time of the worker thread, after a line with the kilobytes by which
// the process grew from the first entry on.

#include <QApplication>
#include <QFile>
#include <QThread>

#include <memory>
#include <string>

#include "bench/barriers.h"
#include "bench/stopwatch.h"
#include "launcher/adapter.h"
#include "launcher/extractor.h"
#include "launcher/launcher.h"
#include "launcher/texts/strtab.h"

namespace {

// Resident kilobytes now ("VmRSS:") or at most until now ("VmHWM:").
long kilobytes(const char* key) {
  QFile file("/proc/self/status");
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : file.readAll().split('\n')) {
    if (line.startsWith(key)) return line.simplified().split(' ').at(1).toLong();
  }
  return 0;
}

int bench_slot(QApplication& app, int total) {
  Launcher launcher;
  launcher.ShowMsgBox();
  app.processEvents();
  // Reports come no faster than files are written; a burst would measure the queue's memory.
  const std::unique_ptr<QThread> worker(QThread::create([total] {
    for (int done = 1; done <= total; ++done) {
      Notify_Adapter::GetInstance().UpdateProgress(total, done);
    }
  }));
  QObject::connect(worker.get(), &QThread::finished, &app, &QCoreApplication::quit);
  const double before = bench::thread_nanoseconds();
  worker->start();
  (void)app.exec();
  app.processEvents();
  (void)worker->wait();
  bench::print_result((bench::thread_nanoseconds() - before) / total);
  return 0;
}

int bench_upgrade(QApplication& app, const std::string& job, const char* archive,
                  const char* folder) {
  std::unique_ptr<Launcher> launcher;
  QObject receiver;
  if (job == "dialog") {
    launcher = std::make_unique<Launcher>();
    launcher->ShowMsgBox();
  } else if (job == "queued") {
    QObject::connect(&Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                     [](int, int) {});
  }
  app.processEvents();

  double time = 0;
  int status = -1;
  const std::unique_ptr<QThread> worker(QThread::create([&] {
    Extractor extractor;
    extractor.SetSource(archive);
    extractor.SetTarget(folder);
    const bench::Stopwatch watch;
    status = extractor.Extract();
    time = watch.nanoseconds();
  }));
  QObject::connect(worker.get(), &QThread::finished, &app, &QCoreApplication::quit);
  const long before = kilobytes("VmRSS:");
  worker->start();
  (void)app.exec();
  (void)worker->wait();
  printf("%ld\n", kilobytes("VmHWM:") - before);
  bench::print_result(time);
  return status == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  bench::g_barriers = false;  // they would measure the disk
  QApplication app(argc, argv);
  StrTable::InitStrTable();
  const std::string job = argc > 1 ? argv[1] : "";
  if (job == "slot" && argc == 3) return bench_slot(app, atoi(argv[2]));
  if ((job == "alone" || job == "queued" || job == "dialog") && argc == 4) {
    return bench_upgrade(app, job, argv[2], argv[3]);
  }
  return 2;
}
