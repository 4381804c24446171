#include <QProcess>
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
#include "launcher/linux/package_info.h"
#include "launcher/linux/process.h"
#include "lib/log.h"
#include "tests/support.h"

// What the service asks of the system, so that it can be counted, cut short and answered for.
namespace {

int calls_left = -1;     // changes of the disk until the process is killed; negative: for ever
int syncs_left = -1;     // barriers until one fails
QStringList at_barrier;  // the copy's files at the last barrier
QList<int> signals_sent;
int (*answer)(int sent) = nullptr;  // to the `sent`th signal: an error number or 0
int slept = 0;
pid_t dies_late = 0;  // ends in the fifth second

void count_call() {
  if (calls_left >= 0 && calls_left-- == 0) _exit(9);
}

}  // namespace

extern "C" {
int rename(const char* from, const char* to) noexcept {
  count_call();
  return renameat(AT_FDCWD, from, AT_FDCWD, to);
}
int mkdir(const char* path, mode_t mode) noexcept {
  count_call();
  return mkdirat(AT_FDCWD, path, mode);
}
int remove(const char* path) noexcept {
  count_call();
  return unlink(path) == 0 ? 0 : errno == EISDIR ? rmdir(path) : -1;
}
int unlinkat(int dir, const char* name, int flags) noexcept {
  count_call();
  return static_cast<int>(syscall(SYS_unlinkat, dir, name, flags));
}
int syncfs(int) noexcept {
  count_call();
  at_barrier = tree(".Quillmere/app");
  if (syncs_left < 0 || syncs_left-- > 0) return 0;
  errno = EIO;
  return -1;
}
int kill(pid_t pid, int signal) noexcept {
  if (!answer) return static_cast<int>(syscall(SYS_kill, pid, signal));
  signals_sent += signal;
  errno = answer(signals_sent.size());
  return errno == 0 ? 0 : -1;
}
unsigned sleep(unsigned seconds) {
  slept += static_cast<int>(seconds);
  if (slept == 5 && dies_late > 0) {
    (void)syscall(SYS_kill, dies_late, SIGKILL);
    siginfo_t info;
    (void)waitid(P_PID, static_cast<id_t>(dies_late), &info, WEXITED | WNOWAIT);
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

// The service with its records open, and a package of four files that can be cut short.
class TestService : public LinuxService {
 public:
  using LinuxService::per_user_install_path;
  using LinuxService::source_version;
  using LinuxService::target_version;
  using LinuxService::timeout;
  void StopService() override { stopped = true; }
  int ExtractPackage() override {
    if (extract_result > 0) return 0;
    for (const char* path : {"app/f:new", "app/bin/cloud-ui:new", "app/INFO:new"}) {
      count_call();
      make({path});
      if (extract_result < 0) break;
    }
    return extract_result;
  }
  int extract_result = 0;  // above 0: unpacks nothing and succeeds
  bool stopped = false;
};

// A child that runs `program`, ended and waited for with its object.
class Child {
 public:
  explicit Child(const char* program) : m_pid(fork()) {
    if (m_pid != 0) return;
    (void)execl(program, program, "60", nullptr);
    _exit(1);
  }
  ~Child() {
    (void)syscall(SYS_kill, m_pid, SIGKILL);
    (void)waitpid(m_pid, nullptr, 0);
  }
  pid_t pid() const { return m_pid; }

 private:
  const pid_t m_pid;
};

}  // namespace

class TestLauncherService : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    QVERIFY(qputenv("HOME", m_dir->path().toUtf8()) && QDir::setCurrent(m_dir->path()));
    put("levels", "service_debug=7\n");
    QCOMPARE(Logger::Initialize(Logger::FILE_LOGGER, "log", "levels", 0), 0);
    calls_left = syncs_left = -1;
  }
  void cleanup() {
    Logger::Destroy();
    answer = nullptr;
  }

  void places() {
    const QString home = m_dir->path();
    const ustring root = u(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/.."));
    QCOMPARE(Service::GetUserInstallPath(), u(home));
    QCOMPARE(Service::GetUserQuillmereInstallPath(), u(home + "/.Quillmere"));
    QCOMPARE(Service::GetUserQuillmereDataInstallPath(), u(home + "/.Quillmere/data"));
    QCOMPARE(Service::GetRootQuillmereInstallPath(), root);
    QCOMPARE(Service::GetRootQuillmereResourceInstallPath(), root);
    TestService service;
    QCOMPARE(service.timeout, 10000);
    service.SetTimeout(7);
    QCOMPARE(service.timeout, 7);
    QCOMPARE(service.per_user_install_path, u(home + "/.Quillmere/app"));
    QCOMPARE(&LinuxService::GetInstace(), &LinuxService::GetInstace());

    const PackageInfo& info = PackageInfo::GetInstance();
    QCOMPARE(&info, &PackageInfo::GetInstance());
    QCOMPARE(info.GetImageFolder(), ustring("/opt/Parvenor/Quillmere/images"));
    QCOMPARE(PackageInfo().GetLogFolder(), u(home + "/.Quillmere"));
    QCOMPARE(info.GetLogLevelPath(), ustring("/opt/Parvenor/Quillmere/log/launcher.debug"));
    QCOMPARE(info.GetPackagePath(), ustring("/opt/Parvenor/Quillmere/package/quillmere.qpk"));
    QCOMPARE(info.GetConfigFolder(), ustring("/opt/Parvenor/Quillmere/conf"));
  }

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
    service.LoadSourceVerInfo();
    QCOMPARE(service.source_version.build_version, ustring(refused ? "" : "47"));
    QCOMPARE(content("log").contains("/.Quillmere/app/INFO' is refused: "), refused);
  }

  // Absent keys leave their fields alone, a package without a version file says nothing of its own.
  void records() {
    const QString root = Service::GetRootQuillmereResourceInstallPath().c_str();
    TestService service;
    QFile::remove(root + "/INFO");
    service.PreUpgrade();
    QVERIFY(content("log").contains("target_version = (, , , )"));
    QVERIFY(content("log").contains("source does not exist"));
    put(root + "/INFO", "major_version=9\n[Version]\nmajor_version=1\nicon_overlay_version=4\n");
    put(".Quillmere/app/INFO", "[Version]\nminor_version=2\nbuild_version=3\n");
    service.target_version.minor_version = "kept";
    service.PreUpgrade();
    QVERIFY(content("log").contains("target_version = (1, kept, , 4)"));
    QVERIFY(content("log").contains("source_version = (, 2, 3, )"));
    QVERIFY(content("log").contains("linux-service(62): Source version: ('3', '')\n"));
    QVERIFY(content("log").contains("linux-service(63): Target version: ('', '4')\n"));
    QFile::remove(root + "/INFO");
  }

  void decision() {
    const std::tuple<const char*, const char*, bool> rows[] = {
        {"1234", "1235", true},  {"999", "1000", true}, {"1234", "1234", false},
        {"1234", "1200", false}, {"", "1", true},       {"1", "", false},
        {"x", "y", false}};
    TestService service;
    for (const auto& [source, target, needed] : rows) {
      service.source_version.build_version = source;
      service.target_version.build_version = target;
      QVERIFY(service.IsNeedUpgrade());
      put(".Quillmere/app/bin/cloud-ui", "");
      QCOMPARE(service.IsNeedUpgrade(), needed);
      QVERIFY(QDir(".Quillmere").removeRecursively());
    }
  }

  void driver() {
    TestService service;
    QVERIFY(service.HandlePackageUpgrade() == 0 && !service.stopped);
    QVERIFY(service.HandlePackageUpgrade() == 0 && service.stopped);
    service.extract_result = -3;
    QCOMPARE(service.HandlePackageUpgrade(), -1);
  }

  // The script is run with its one argument, and a home with a blank and a quote is no obstacle.
  void startScript() {
    QVERIFY(QDir().mkpath("a \"b") && qputenv("HOME", (m_dir->path() + "/a \"b").toUtf8()));
    TestService service;
    QCOMPARE(service.LaunchPerUserBin(), 0);
    const QString script = "a \"b/.Quillmere/app/package/start-stop";
    put(script, "#!/bin/sh\necho \"$@\" >started\nexit 3\n");
    QVERIFY(QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner));
    service.PostUpgrade();
    QCOMPARE(content("started"), QByteArray("start\n"));
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
    row("nothing is unpacked, nowhere", {}, 1, {});
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
  }

  // All hundred names are taken; and a place that cannot be looked at, let alone be unpacked to.
  void prepareFails() {
    make(kOld);
    for (int i = 0; i < 100; ++i)
      make({QString("app_tmp%1/x:").arg(i ? QString::number(i) : QString())});
    QCOMPARE(TestService().PrepareUserEnv(), -1);
    QVERIFY(content("log").contains("app_tmp99' at max retries, exiting\n"));
    QVERIFY(tree(".Quillmere/app").contains("INFO:old"));

    QVERIFY(QDir(".Quillmere").removeRecursively());
    put(".Quillmere", "");
    QCOMPARE(LinuxService().PrepareUserEnv(), -1);
    const QStringList log = QString(content("log")).split('\n');
    const char* const said[] = {"FSMKDir: Failed to to file info", "failed to create folder: '",
                                "and no old installation to rollback"};
    for (int i = 0; i < 3; ++i) QVERIFY2(log[log.size() - 4 + i].contains(said[i]), said[i]);
  }

  // A barrier that fails is a failed upgrade. What is taken back loses its mark first.
  void barrier() {
    make(kOld);
    syncs_left = 0;
    QCOMPARE(TestService().PrepareUserEnv(), -1);
    QCOMPARE(tree(".Quillmere"), kOld);
    QVERIFY(at_barrier.contains("f:new") && !at_barrier.contains("INFO:new"));
  }

  // Killed at any change of the disk, and again at every fifth of the next attempt, which would
  // have failed: a whole copy is there after one more, and nothing else after one that succeeds.
  void kills_data() {
    QTest::addColumn<QStringList>("before");
    QTest::newRow("first upgrade") << kOld;
    QTest::newRow("a backup has stayed") << kOld + QStringList{"app_tmp/x:"};
  }
  void kills() {
    QFETCH(QStringList, before);
    int places = 0;
    for (int first = 0, second = 0;; ++places) {
      QVERIFY(QDir(".Quillmere").removeRecursively());
      make(before);
      if (!attempt(first, 0)) break;
      const bool again = attempt(second, -1);
      (void)attempt(-1, -1);
      const QStringList left = tree(".Quillmere").filter(QRegularExpression("^app/"));
      QVERIFY2(left == kOld || left == kNew,
               qPrintable(QString("%1 %2: ").arg(first).arg(second) + left.join(' ')));
      (void)attempt(-1, 0);
      // A backup with a higher number than the last one stays for a later upgrade.
      const bool whole = before == kOld;
      QCOMPARE(whole ? tree(".Quillmere") : tree(".Quillmere").mid(0, kNew.size()), kNew);
      first += !again;
      second = again ? second + 5 : first % 5;
    }
    QVERIFY2(places > 40, qPrintable(QString::number(places)));
  }

  // A client may take the right to write from its own directories; a backup that still cannot be
  // removed is told.
  void backupsThatResist() {
    const bool root = geteuid() == 0;  // to whom rights mean nothing
    make(kOld);
    for (const char* path : {".", "log", ".Quillmere", ".Quillmere/app", ".Quillmere/app/bin"}) {
      QVERIFY(!root || chown(path, 65534, 65534) == 0);
    }
    QVERIFY(chmod(".Quillmere/app/bin", 0500) == 0 && (!root || seteuid(65534) == 0));
    const int result = TestService().PrepareUserEnv();
    QVERIFY(!root || seteuid(0) == 0);
    QCOMPARE(result, 0);
    QCOMPARE(tree(".Quillmere"), kNew);
    if (!root) return;

    make({"app_tmp/of others/x:"});
    QVERIFY(chmod(".Quillmere/app_tmp/of others", 0555) == 0 && seteuid(65534) == 0);
    const int again = TestService().PrepareUserEnv();
    QVERIFY(seteuid(0) == 0);
    QCOMPARE(again, 0);
    QVERIFY(content("log").contains("app_tmp', which takes up disk space"));
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
    QTest::addColumn<QString>("who");  // the file's words, with PID for a process of ours
    QTest::addColumn<int>("age");      // of the file, in seconds
    QTest::addColumn<int>("scene");    // which answers the signals get
    QTest::addColumn<QList<int>>("sent");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* tag, QString who, int age, int scene, QList<int> sent,
                        int seconds, QString said) {
      QTest::newRow(tag) << who << age << scene << sent << seconds << said;
    };
    const QList<int> all{SIGTERM, 0, 0, 0, 0, 0, SIGKILL};
    const QString missing =
        "(76): pid file '%1/.Quillmere/ui.pid' does not exist, no need to terminate\n";
    row("no file", "", 0, 0, {}, 0, missing);
    row("not one", "pid=x\n", 0, 0, {}, 0, missing);
    row("group", "pid=-PID\n", 0, 0, {}, 0, missing);
    row("itself", "pid=SELF\n", 0, 0, {}, 0, missing);
    row("no key", "name=x\n", 0, 0, {}, 0, missing);
    row("malformed", "pid\n", 0, 0, {}, 0,
        "(81): Failed to read pid file '%1/.Quillmere/ui.pid', not exist ?\n");
    row("gone", "pid=PID\n", 0, 1, {SIGTERM}, 0, "");
    row("ends at once", "pid=PID\n", 0, 2, {SIGTERM, 0}, 0, "");
    row("ends later", "pid=PID\n", 0, 4, {SIGTERM, 0, 0, 0}, 2, "");
    row("stubborn", "pid=PID\n", 0, 0, all, 5, "");
    row("refused", "pid=PID\n", 0, -1, all, 5, "(96): kill: Operation not permitted (1)\n");
    row("nobody asks for its end", "pid=ENDED\n", 0, 0, {SIGTERM, 0}, 0, "");
    row("ends in the last second", "pid=PID\n", 0, -2, all.mid(0, 6), 5, "");
    row("younger than the file", "pid=PID\n", 60, 0, {}, 0, missing);
    row("within the tolerance", "pid=PID\n", 1, 0, all, 5, "");
    row("file of the future", "pid=PID\n", -3600, 0, all, 5, "");
    row("runs from the user's tree", "pid=CLIENT\n", 60, 0, all, 5, "");
  }
  void stop() {
    QFETCH(QString, who);
    QFETCH(int, age);
    QFETCH(int, scene);
    QVERIFY(QDir().mkpath(".Quillmere/app/bin") &&
            QFile::copy("/bin/sleep", ".Quillmere/app/bin/cloud-ui"));
    const Child child(who.contains("CLIENT")  ? ".Quillmere/app/bin/cloud-ui"
                      : who.contains("ENDED") ? "/bin/false"
                                              : "/bin/sleep");
    if (who.contains("ENDED")) {
      siginfo_t info;
      QVERIFY(waitid(P_PID, id_t(child.pid()), &info, WEXITED | WNOWAIT) == 0);
    } else {
      const QString exe = QString("/proc/%1/exe").arg(child.pid());
      QTRY_VERIFY(QFileInfo(exe).symLinkTarget() != QCoreApplication::applicationFilePath());
    }
    who.replace("SELF", QString::number(getpid()));
    who.replace(QRegularExpression("PID|CLIENT|ENDED"), QString::number(child.pid()));
    if (!who.isEmpty()) {
      put(".Quillmere/ui.pid", who.toUtf8());
      const utimbuf times = {time(nullptr) - age, time(nullptr) - age};
      QVERIFY(utime(".Quillmere/ui.pid", &times) == 0);
    }
    static int gone_at;  // the signal from which on nobody is there
    gone_at = scene > 0 ? scene : 100;
    signals_sent.clear();
    slept = 0;
    dies_late = scene == -2 ? child.pid() : 0;
    answer = [](int sent) { return sent >= gone_at ? ESRCH : 0; };
    if (scene == -1) answer = [](int) { return EPERM; };
    LinuxService().StopService();
    answer = nullptr;
    QTEST(signals_sent, "sent");
    QTEST(slept, "seconds");
    QFETCH(QString, said);
    const QByteArray log = content("log");
    QVERIFY2(
        said.isEmpty() ? log.isEmpty() : log.endsWith(said.replace("%1", m_dir->path()).toUtf8()),
        log);
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
  // Prepares the copy in a process of its own, which is killed at the change of the disk with the
  // number `at`, and unpacks as told by `unpacks`. Whether it was killed.
  static bool attempt(int at, int unpacks) {
    const pid_t pid = fork();
    if (pid == 0) {
      calls_left = at;
      TestService service;
      service.extract_result = unpacks;
      (void)service.PrepareUserEnv();
      _exit(0);
    }
    int status = 0;
    (void)waitpid(pid, &status, 0);
    return WEXITSTATUS(status) == 9;
  }

  std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestLauncherService)

#include "tst_launcher_service.moc"
