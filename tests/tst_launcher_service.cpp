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

// The paths of a row, in which "old=NAME" stands for the old copy under that name, "new" for the
// new one and "part" for a part of that.
QStringList paths(const char* row) {
  QStringList found;
  for (const QString& word : QString(row).split(' ', Qt::SkipEmptyParts)) {
    if (word.startsWith("old="))
      found += QStringList(kOld).replaceInStrings("app/", word.mid(4) + '/');
    else
      found += word == "new"    ? kNew
               : word == "part" ? QStringList{"app/", "app/f:new"}
                                : QStringList(word);
  }
  return found;
}

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
    const QByteArray taken[] = {
        "; a@b\n# a@b\n" + plain + "x=a@b\ny=C:\\new\nz=@b (c)\nw=@Rect(1\n",
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
                                  plain + "x=" + rect + " \t",
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

  // What becomes of partial copies and old backups: what is there, what can be unpacked (0 all,
  // below nothing but a part, above nothing at all), and what is there then.
  void prepare() {
    const std::tuple<const char*, int, const char*> rows[] = {
        {"app_tmp/x:", 0, "new"},
        {"", -1, "part"},
        {"old=app", 1, ""},
        {"app@", 0, "new"},
        {"app/x: app_tmp1/x:", 0, "new app_tmp1/ app_tmp1/x:"},
        {"old=app app_tmp/x: app_tmp1/x:", 0, "new"},
        {"old=app app_tmp/x:", -1, "old=app app_tmp/ app_tmp/x:"},
        // A whole backup takes the place of a copy that is not.
        {"part old=app_tmp", -1, "old=app"},
        {"app/INFO:new old=app_tmp", -1, "old=app"},
        {"old=app_tmp1", -1, "old=app"},
        {"part old=app_tmp app_tmp/g: old=app_tmp1 app_tmp2/INFO:x", -1,
         "old=app old=app_tmp app_tmp/g: app_tmp2/ app_tmp2/INFO:x"},
        {"part old=app_tmp", 0, "new"},
        {"new old=app_tmp", -1, "new old=app_tmp"},
        {"part app_tmp/INFO:x", -1, "part app_tmp/ app_tmp/INFO:x"}};
    for (const auto& [before, unpacks, after] : rows) {
      init();
      make(paths(before));
      TestService service;
      service.extract_result = unpacks;
      QVERIFY2(service.PrepareUserEnv() == (unpacks < 0 ? -1 : 0), before);
      QStringList expected = paths(after);
      expected.sort();
      QCOMPARE(tree(".Quillmere").join(' '), expected.join(' '));
      QVERIFY2(!complete_removed, before);
    }
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

  // The process that the file names and what becomes of it, the file's age in seconds, the signal
  // from which on nobody is there; what is sent, and how long is waited.
  void stop() {
    enum Who { kRuns, kSelf, kEnded, kEndsLate };
    const QList<int> all{SIGTERM, 0, 0, 0, 0, 0, SIGKILL};
    const std::tuple<const char*, Who, int, int, QList<int>, int> rows[] = {
        {"itself", kSelf, 0, 9, {}, 0},
        {"gone", kRuns, 0, 1, all.mid(0, 1), 0},
        {"ends at once", kRuns, 0, 2, all.mid(0, 2), 0},
        {"ends later", kRuns, 0, 4, all.mid(0, 4), 2},
        {"ends in the last second", kEndsLate, 0, 9, all.mid(0, 6), 5},
        {"nobody asks for its end", kEnded, 0, 9, all.mid(0, 2), 0},
        {"stubborn, within the tolerance", kRuns, 1, 9, all, 5},
        {"younger than the file", kRuns, 60, 9, {}, 0},
        {"file of the future", kRuns, -3600, 9, all, 5}};
    for (const auto& [tag, who, age, gone, sent, seconds] : rows) {
      const pid_t child = fork();
      if (child == 0) {
        if (who != kEnded) (void)pause();
        _exit(0);
      }
      siginfo_t info;
      if (who == kEnded) QVERIFY(waitid(P_PID, id_t(child), &info, WEXITED | WNOWAIT) == 0);
      put(".Quillmere/ui.pid", "pid=" + QByteArray::number(who == kSelf ? getpid() : child));
      const utimbuf times = {time(nullptr) - age, time(nullptr) - age};
      QVERIFY(utime(".Quillmere/ui.pid", &times) == 0);
      signals_sent.clear();
      slept = 0;
      gone_at = gone;
      ends_at = who == kEndsLate ? child : 0;
      LinuxService().StopService();
      (void)syscall(SYS_kill, child, SIGKILL);
      (void)waitpid(child, nullptr, 0);
      QVERIFY2(signals_sent == sent && slept == seconds, tag);
    }
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
