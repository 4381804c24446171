#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>

#include <cerrno>
#include <memory>

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
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    QVERIFY(qputenv("HOME", m_dir->path().toUtf8()) && QDir::setCurrent(m_dir->path()));
    QCOMPARE(Logger::Initialize(Logger::FILE_LOGGER, "log", "", 0), 0);
    syncs_left = -1;
    complete_removed = false;
  }
  void cleanup() { Logger::Destroy(); }

  // What of a version file is refused, and that the rest has the values that it says.
  void versionFile_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("refused");
    const auto row = [](const char* tag, QByteArray text, bool refused) {
      QTest::newRow(tag) << text << refused;
    };
    const QByteArray plain = "[Version]\nbuild_version=47\n";
    const QByteArray rect = "@Rect(1 2 3 4)";
    row("text/address and path", "; a@b\n# a@b\n" + plain + "x=a@b\ny=C:\\new\nz=@b (c)\n", false);
    row("text/not at the front", plain + "x=x" + rect, false);
    row("text/forms of it", "[Version]\nx=@@Rect(1)\nbuild_version=@String(47)\n", false);
    row("text/comment", plain + ";x=" + rect + "\n ;x=" + rect, false);
    row("text/other group", plain + "; c\n [Other]\nx=@Variant(\\0\\0\\0\\x7f\\xff)\n", false);
    row("object/damaged", plain + "x=@Variant(\\0\\0\\0\\x7f\\xff\\xff)\n", true);
    row("object/date", plain + "x=@DateTime(\\0)\n", true);
    row("object/quoted", plain + "x=\"@Re\"ct\"(1 2 3 4)\"", true);
    row("object/quotes and blanks", plain + "x=\"@Rect\"  (1 2 3 4)", true);
    row("object/hex", plain + "x=\\x10040Point(1 2)", true);
    row("object/octal", plain + "x=\\100Size(1 2)", true);
    row("object/over lines", plain + "x=@Rec\\\r\nt(1 2 3 4)", true);
    row("object/in a list", plain + "x=\"a,\", " + rect, true);
    row("object/second group", plain + "[O]\n;\n [Version]\nx=" + rect, true);
    row("object/escaped group", plain + "[%56ersion]\nx=" + rect, true);
    row("object/mark", "\xef\xbb\xbf" + plain + "x=\xef\xbb\xbf" + rect, true);
    row("size/64 KiB", plain + QByteArray(65536 - plain.size(), '\n'), false);
    row("size/more", plain + QByteArray(65537 - plain.size(), '\n'), true);
    row("pipe", "|", true);
  }
  void versionFile() {
    QFETCH(QByteArray, text);
    QFETCH(bool, refused);
    if (text == "|") {
      QVERIFY(QDir().mkpath(".Quillmere/app") && mkfifo(".Quillmere/app/INFO", 0600) == 0);
    } else {
      put(".Quillmere/app/INFO", text);
    }
    TestService service;
    service.source_version.minor_version = "kept";
    service.LoadSourceVerInfo();
    QCOMPARE(service.source_version.minor_version, ustring("kept"));  // no file has one
    QCOMPARE(service.source_version.build_version, ustring(refused ? "" : "47"));
    QCOMPARE(content("log").contains("/.Quillmere/app/INFO' is refused: "), refused);
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

  void processStat_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");  // -1: not of the form
    QTest::addColumn<bool>("ended");
    const auto row = [](const char* tag, QString front, QString threads, int start, bool ended) {
      const QString middle = " 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 ";
      QTest::newRow(tag) << front + middle + threads + " 0 4711 99 98" << start << ended;
    };
    row("runs", "12 (cloud-ui) S", "3", 4711, false);
    row("odd name", "12 (a) Z (b ) R", "1", 4711, false);
    row("has ended", "12 (x) Z", "1", 4711, true);
    row("first thread has ended", "12 (x) Z", "2", 4711, false);
    row("no name", "12 x R", "1", -1, false);
    QTest::newRow("cut off") << "12 (x) R 1 2" << -1 << false;
  }
  void processStat() {
    QFETCH(int, start);
    QFETCH(QString, text);
    ProcessInfo info;
    QCOMPARE(ParseProcessStat(u(text), info), start < 0 ? -1 : 0);
    QTEST(info.ended, "ended");
    if (start >= 0) QCOMPARE(info.start, uint64_t(start));
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

  void copyPath_data() {
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("copied");
    const auto row = [](const char* tag, QString from, QString to, int result, QString copied) {
      QTest::newRow(tag) << from << to << result << copied;
    };
    row("file", "a/f", "new", 0, "new:f");
    row("file fails", "a/f", "no/new", 0, "");
    row("missing", "missing", "new", -1, "");
    row("below a file", "a/f/x", "new", -1, "");
    row("tree", "a", "new/b", 0, "new/ new/b/ new/b/d/ new/b/d/g:g new/b/f:f");
    row("merge", "a", "full", 0, "full/d/g:g full/f:f");
    row("over a file", "a", "a/f", -1, "");
    row("child fails", "a/d", "bad", -1, "");
  }
  void copyPath() {
    Logger::Destroy();  // its file would be among what is copied
    QFETCH(QString, from);
    QFETCH(QString, to);
    for (const char* path : {"a/f", "a/d/g"}) put(path, path + strlen(path) - 1);
    for (const char* path : {"full/old", "full/d/old", "bad/g/x"}) put(path, "");
    const QStringList before = tree(".");
    QTEST(TestService().FSCopyPath(u(from), u(to)), "result");
    QStringList copied;
    for (const QString& path : tree(".")) {
      if (!before.contains(path)) copied += path;
    }
    QTEST(copied.join(' '), "copied");
  }

 private:
  std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestLauncherService)

#include "tst_launcher_service.moc"
