#include <QtTest>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>

#include <cerrno>
#include <optional>

#include "launcher/linux/linux-service.h"
#include "launcher/linux/process.h"
#include "lib/log.h"
#include "tests/support.h"

// What the service asks of the system, so that it can be looked at and answered for.
namespace {

int syncs_left = -1;            // barriers until one fails; negative: for ever
QStringList at_barrier;         // the copy's files at the last barrier
bool complete_removed = false;  // a removal has begun in a directory with a version file
QList<int> signals_sent;
int gone_at = 0;    // the signal from which on nobody is there
pid_t ends_at = 0;  // the process that ends in the fifth second
int slept = 0;

}  // namespace

extern "C" {
int unlinkat(int dir, const char* name, int flags) noexcept {
  complete_removed |= faccessat(dir, "INFO", F_OK, 0) == 0;
  return static_cast<int>(syscall(SYS_unlinkat, dir, name, flags));
}
int syncfs(int) noexcept {
  at_barrier = tree(".Quillmere/app");
  if (syncs_left < 0 || syncs_left-- > 0) return 0;
  errno = EIO;
  return -1;
}
int kill(pid_t, int signal) noexcept {
  signals_sent += signal;
  errno = signals_sent.size() >= gone_at ? ESRCH : 0;
  return errno == 0 ? 0 : -1;
}
unsigned sleep(unsigned seconds) {
  slept += static_cast<int>(seconds);
  if (slept == 5 && ends_at > 0) {
    siginfo_t info;
    (void)syscall(SYS_kill, ends_at, SIGKILL);
    (void)waitid(P_PID, static_cast<id_t>(ends_at), &info, WEXITED | WNOWAIT);
  }
  return 0;
}
}

namespace {

const QStringList kOld{"app/", "app/INFO:old", "app/bin/", "app/bin/cloud-ui:old", "app/f:old"};
const QStringList kNew{"app/", "app/INFO:new", "app/bin/", "app/bin/cloud-ui:new", "app/f:new"};

// Makes "name:content" a file, "name@" a link to nothing and "name/" a directory.
void make(const QStringList& paths) {
  for (const QString& path : paths) {
    const QString name = ".Quillmere/" + path.section(QRegularExpression("[:@]"), 0, 0);
    QDir().mkpath(path.endsWith('/') ? name : QFileInfo(name).path());
    if (path.endsWith('@')) QFile::link("nothing", name);
    if (path.contains(':')) put(name, path.section(':', 1).toUtf8());
  }
}

// The service with its records open, and a package of three files that can be cut short.
class TestService : public LinuxService {
 public:
  using LinuxService::source_version;
  int ExtractPackage() override {
    if (extract_result < 0) return make({"app/f:new"}), -1;
    if (extract_result == 0) make(kNew);
    return 0;
  }
  int extract_result = 0;  // below 0: unpacks one file and fails; above: nothing and succeeds
};

}  // namespace

class TestLauncherService : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_home.emplace();
    syncs_left = -1;
    complete_removed = false;
  }
  void cleanup() { m_home.reset(); }

  // What of a version file is refused, and that the rest has the values that it says.
  void versionFile() {
    const QByteArray plain = "[Version]\nbuild_version=47\n";
    const QByteArray rect = "@Rect(1 2 3 4)";
    const QByteArray taken[] = {"; a@b\n# a@b\n" + plain + "x=a@b\ny=C:\\new\nz=@b (c)\n",
                                plain + "x=x" + rect,
                                "[Version]\nx=@@Rect(1)\nbuild_version=@String(47)\n",
                                plain + ";x=" + rect + "\n ;x=" + rect,
                                plain + "; c\n [Other]\nx=@Variant(\\0\\0\\0\\x7f\\xff)\n",
                                plain + QByteArray(65536 - plain.size(), '\n')};
    const QByteArray refused[] = {"|",  // a pipe
                                  plain + QByteArray(65537 - plain.size(), '\n'),
                                  plain + "x=@Variant(\\0\\0\\0\\x7f\\xff\\xff)\n",
                                  plain + "x=@DateTime(\\0)\n",
                                  plain + "x=\"@Re\"ct\"(1 2 3 4)\"",
                                  plain + "x=\"@Rect\"  (1 2 3 4)",
                                  plain + "x=\\x10040Point(1 2)",
                                  plain + "x=\\100Size(1 2)",
                                  plain + "x=@Rec\\\r\nt(1 2 3 4)",
                                  plain + "x=\"a,\nb\", " + rect,
                                  plain + "[O]\n;\n [Version]\nx=" + rect,
                                  plain + "[%56ersion]\nx=" + rect,
                                  "\xef\xbb\xbf" + plain + "x=\xef\xbb\xbf" + rect};
    int homes = 0;  // the toolkit does not read a file again that looks the same
    const auto build = [&](const QByteArray& text) {
      const QString home = m_home->path() + '/' + QString::number(++homes);
      const QString info = home + "/.Quillmere/app/INFO";
      put(info, text);
      if (text == "|" && (!QFile::remove(info) || mkfifo(qPrintable(info), 0600) != 0)) return "";
      qputenv("HOME", home.toUtf8());
      TestService service;
      service.source_version.build_version = service.source_version.minor_version = "kept";
      service.LoadSourceVerInfo();
      if (service.source_version.minor_version != "kept") return "minor";  // no file has one
      return service.source_version.build_version == "47"                ? "47"
             : content("log").contains(info.toUtf8() + "' is refused: ") ? "refused"
                                                                         : "neither";
    };
    for (const QByteArray& text : taken) QCOMPARE(text + build(text), text + "47");
    for (const QByteArray& text : refused) QCOMPARE(text + build(text), text + "refused");
  }

  // What becomes of partial copies and old backups.
  void prepare_data() {
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<int>("unpacks");  // 0 all, below some and fails, above nothing
    QTest::addColumn<QStringList>("after");
    const auto row = [](const char* tag, QStringList before, int unpacks, QStringList after) {
      QTest::newRow(tag) << before << unpacks << after;
    };
    // The files of kOld under another name.
    const auto old = [](QString name) {
      return QStringList(kOld).replaceInStrings("app/", name + '/');
    };
    const QStringList part{"app/", "app/f:new"};
    row("first, stale backup", {"app_tmp/x:"}, 0, kNew);
    row("first fails", {}, -1, part);
    row("nothing is unpacked", kOld, 1, {});
    row("link to nothing", {"app@"}, 0, kNew);
    row("later backups stay", QStringList{"app/x:", "app_tmp1/x:"}, 0,
        kNew + QStringList{"app_tmp1/", "app_tmp1/x:"});
    row("lower backups go", kOld + QStringList{"app_tmp/x:", "app_tmp1/x:"}, 0, kNew);
    row("rolls back", kOld + QStringList{"app_tmp/x:"}, -1,
        kOld + QStringList{"app_tmp/", "app_tmp/x:"});
    row("restores/over a part", part + old("app_tmp"), -1, kOld);
    row("restores/over one without client", QStringList{"app/INFO:new"} + old("app_tmp"), -1, kOld);
    row("restores/over nothing", old("app_tmp1"), -1, kOld);
    row("restores/newest",
        part + old("app_tmp") + QStringList{"app_tmp/INFO:older", "app_tmp2/INFO:x"} +
            old("app_tmp1"),
        -1,
        kOld + old("app_tmp").replaceInStrings("INFO:old", "INFO:older") +
            QStringList{"app_tmp2/", "app_tmp2/INFO:x"});
    row("restores/then succeeds", part + old("app_tmp"), 0, kNew);
    row("restores/not over a whole one", kNew + old("app_tmp"), -1, kNew + old("app_tmp"));
    row("restores/no whole one", part + QStringList{"app_tmp/", "app_tmp/INFO:x"}, -1,
        part + QStringList{"app_tmp/", "app_tmp/INFO:x"});
  }
  void prepare() {
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);
    make(before);
    TestService service;
    QFETCH(int, unpacks);
    service.extract_result = unpacks;
    QCOMPARE(service.PrepareUserEnv(), unpacks < 0 ? -1 : 0);
    after.sort();
    QCOMPARE(tree(".Quillmere"), after);
    QVERIFY(!complete_removed);
  }

  // A barrier that fails is a failed upgrade. What is taken back loses its mark first.
  void barrier() {
    make(kOld);
    syncs_left = 0;
    QCOMPARE(TestService().PrepareUserEnv(), -1);
    QCOMPARE(tree(".Quillmere"), kOld);
    QVERIFY(at_barrier.contains("f:new") && !at_barrier.contains("INFO:new"));
  }

  void processStat() {
    const std::tuple<const char*, const char*, int, bool> rows[] = {
        // start (-1: none), ended
        {"12 (cloud-ui) S", "3", 4711, false},
        {"12 (a) Z (b ) R", "1", 4711, false},
        {"12 (x) Z", "1", 4711, true},
        {"12 (x) Z", "2", 4711, false},
        {"12 x R", "1", -1, false},
        {"12 (x) R", "", -1, false}};
    for (const auto& [front, threads, start, ended] : rows) {
      const ustring middle = " 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 ";
      ProcessInfo info;
      const ustring text = *threads ? front + middle + threads + " 0 4711 99 98" : ustring(front);
      QVERIFY2(ParseProcessStat(text, info) == (start < 0 ? -1 : 0), front);
      QVERIFY2(info.ended == ended && (start < 0 || int(info.start) == start), front);
    }
  }

  void stop_data() {
    QTest::addColumn<QString>("who");  // the file names: PID or SELF, or what becomes of a PID
    QTest::addColumn<int>("age");      // of the file, in seconds
    QTest::addColumn<int>("gone");     // the signal from which on nobody is there
    QTest::addColumn<QList<int>>("sent");
    QTest::addColumn<int>("seconds");
    const auto row = [](const char* tag, QString who, int age, int gone, QList<int> sent,
                        int seconds) {
      QTest::newRow(tag) << who << age << gone << sent << seconds;
    };
    const QList<int> all{SIGTERM, 0, 0, 0, 0, 0, SIGKILL};
    row("itself", "SELF", 0, 9, {}, 0);
    row("gone", "PID", 0, 1, {SIGTERM}, 0);
    row("ends at once", "PID", 0, 2, {SIGTERM, 0}, 0);
    row("ends later", "PID", 0, 4, {SIGTERM, 0, 0, 0}, 2);
    row("ends in the last second", "LATE", 0, 9, all.mid(0, 6), 5);
    row("nobody asks for its end", "ENDED", 0, 9, {SIGTERM, 0}, 0);
    row("stubborn, within the tolerance", "PID", 1, 9, all, 5);
    row("younger than the file", "PID", 60, 9, {}, 0);
    row("file of the future", "PID", -3600, 9, all, 5);
  }
  void stop() {
    QFETCH(QString, who);
    QFETCH(int, age);
    QFETCH(int, gone);
    const pid_t child = fork();
    if (child == 0) {
      if (who != "ENDED") (void)pause();
      _exit(0);
    }
    siginfo_t info;
    if (who == "ENDED") QVERIFY(waitid(P_PID, id_t(child), &info, WEXITED | WNOWAIT) == 0);
    put(".Quillmere/ui.pid", "pid=" + QByteArray::number(who == "SELF" ? getpid() : child));
    const utimbuf times = {time(nullptr) - age, time(nullptr) - age};
    QVERIFY(utime(".Quillmere/ui.pid", &times) == 0);
    signals_sent.clear();
    slept = 0;
    gone_at = gone;
    ends_at = who == "LATE" ? child : 0;
    LinuxService().StopService();
    (void)syscall(SYS_kill, child, SIGKILL);
    (void)waitpid(child, nullptr, 0);
    QTEST(signals_sent, "sent");
    QTEST(slept, "seconds");
  }

  void copyPath() {
    Logger::Destroy();  // its file would be among what is copied
    for (const char* path : {"a/f", "a/d/g"}) put(path, path + strlen(path) - 1);
    for (const char* path : {"full/old", "full/d/old", "bad/g/x"}) put(path, "");
    const std::tuple<const char*, const char*, int, QStringList> rows[] = {
        {"missing", "new", -1, {}},
        {"a/f/x", "new", -1, {}},
        {"a/f", "no/new", 0, {}},
        {"a", "a/f", -1, {}},
        {"a/d", "bad", -1, {}},
        {"a/f", "new", 0, {"new:f"}},
        {"a", "new2/b", 0, {"new2/", "new2/b/", "new2/b/d/", "new2/b/d/g:g", "new2/b/f:f"}},
        {"a", "full", 0, {"full/d/g:g", "full/f:f"}}};
    for (const auto& [from, to, result, copied] : rows) {
      QStringList after = tree(".") + copied;
      after.sort();
      QVERIFY2(TestService().FSCopyPath(from, to) == result && tree(".") == after, from);
    }
  }

 private:
  std::optional<TestHome> m_home;
};

QTEST_GUILESS_MAIN(TestLauncherService)

#include "tst_launcher_service.moc"
