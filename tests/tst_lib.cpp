#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <thread>

#include "lib/config.h"
#include "lib/file-op.h"
#include "lib/log.h"
#include "lib/open-file.h"
#include "lib/tmp_name_gen.h"
#include "tests/json.h"
#include "tests/support.h"

namespace {

// What the system does in a test; each starts with a sound one.
struct {
  int error;             // of every sync, and at the end of every directory stream
  bool other_device;     // is where every path leads that something is renamed to
  bool poor_streams;     // tell no types, and miss the entry behind the one that was read
  unsigned file_system;  // the type of every one
  int refusals;          // to remove what is called "busy"
  QByteArray log;        // the system log
} g_system;

constexpr int kRotate = 1048576;  // bytes
constexpr int kStamp = 16;        // bytes in front of each line

int number(const ustring& s, int base = 10) { return int(strtol(s.c_str(), nullptr, base)); }
QString text(const ustring& s) { return QString::fromUtf8(s.c_str()); }

int open_log(const ustring& path, const ustring& levels, int rotations) {
  return Logger::Initialize(Logger::FILE_LOGGER, path, levels, rotations);
}

QString stored(const Config& config) {
  QString lines;
  for (const auto& [key, value] : config) lines += text(key + "=" + value + ";");
  return lines;
}

// The type of `path`, or its mode; the status where neither can be said.
int look(const ustring& path, bool mode) {
  FILE_INFO info;
  const int result = FSStat(path, info, false);
  return result != 0 ? result : mode ? int(info.mode & 07777) : info.type;
}

// The files that the file tests start from.
bool populate() {
  put("file", "abc");
  put("dir/inner", "x");
  return QFile::link("/dev/full", "full") && QFile::link("dir", "to-dir") &&
         mkfifo("fifo", 0600) == 0;
}

// Directories in one another, and a file in the last.
bool make_deep(const char* name, int depth) {
  const QString here = QDir::currentPath();
  for (; depth > 0; --depth, name = "d")
    if (mkdir(name, 0700) != 0 || chdir(name) != 0) return false;
  return close(creat("bottom", 0600)) == 0 && QDir::setCurrent(here);
}

// Below the hard limit; -1 is that itself.
int limit(__rlimit_resource resource, int soft) {
  signal(SIGXFSZ, SIG_IGN);  // a write beyond the limit fails then
  rlimit limits;
  if (getrlimit(resource, &limits) != 0) return -9;
  limits.rlim_cur = std::min(rlim_t(soft), limits.rlim_max);
  return setrlimit(resource, &limits);
}

// Goes on as somebody whom missing rights stop.
int leave_root() {
  const bool left = chmod(".", 0777) == 0 && (geteuid() != 0 || seteuid(65534) == 0);
  return left ? prctl(PR_SET_DUMPABLE, 1) : -9;  // what seteuid() takes away: /proc/self
}

int make_temporary(const ustring& dir, const ustring& name) {
  ustring path;
  return FSMktemp(dir, path) == 0 ? renameat(AT_FDCWD, path.c_str(), AT_FDCWD, name.c_str()) : -9;
}

// The walk stops at the last character, or behind the name of a file, which has four.
int make_all(const ustring& path, bool force) {
  char* end = nullptr;
  const int result = FSMKDirP(path, &end, force, mode_t(-1));
  if (end - path.c_str() != (result == 0 ? long(path.length()) - 1 : 4)) return -9;
  return result == 0 ? 0 : errno;
}

// Ends with the last of the paths that are expected, by a failure where it is "dir".
int traverse(const ustring& dir, const ustring& expected) {
  QStringList visited;
  const auto note = [](const ustring& path, void* list) {
    *static_cast<QStringList*>(list) += text(path);
    return int(g_system.error == 0 && path == "dir");
  };
  const int result = TraverseDir(dir, note, &visited);
  return visited.join(',') == text(expected) ? result : -9;
}

int resolve(const ustring& name) {
  ustring path(name);
  const int result = FSGetRealPath(path);
  const QString expected = result == 0 ? QDir().canonicalPath() + "/file" : text(name);
  return text(path) == expected ? result : -9;
}

// Whether children inherit the file, or why it is refused.
int open_flags(const ustring& path) {
  const int fd = open_file(path.c_str(), O_RDONLY);
  if (fd < 0) return errno;
  const int flags = fcntl(fd, F_GETFD);
  return close(fd) == 0 ? flags : -9;
}

// Logs a line for each mark, so many bytes longer than a log grows.
int log_lines(const ustring& beyond, const ustring& marks) {
  errno = EDOM;
  for (const char mark : QByteArray(marks.c_str())) {
    const QByteArray line(kRotate - kStamp + number(beyond), mark);
    Logger::LogMsg(Logger::L_ERR, "x", "%s", line.constData());
  }
  return errno == EDOM ? 0 : -1;
}

// What the rows of lib.json call, with their one or two words.
using Words = const ustring&;
const std::map<QString, std::function<int(Words, Words)>> kCalls = {
    {"put", [](Words a, Words b) { return (put(text(a), b.c_str()), 0); }},
    {"clean", [](Words a, Words) { return int(remove(a.c_str()) != 0 && errno != ENOENT); }},
    {"link", [](Words a, Words b) { return symlink(a.c_str(), b.c_str()); }},
    {"hard-link", [](Words a, Words b) { return link(a.c_str(), b.c_str()); }},
    {"deep", [](Words a, Words b) { return make_deep(a.c_str(), number(b)) ? 0 : -9; }},
    {"disk", [](Words a, Words) { return g_system.error = number(a), 0; }},
    {"other-device", [](Words, Words) { return g_system.other_device = true, 0; }},
    {"poor-streams", [](Words, Words) { return g_system.poor_streams = true, 0; }},
    {"file-system",
     [](Words a, Words) {
       return g_system.file_system = unsigned(strtoul(a.c_str(), nullptr, 16)), 0;
     }},
    {"umask", [](Words a, Words) { return (umask(mode_t(number(a, 8))), 0); }},
    {"chmod", [](Words a, Words b) { return chmod(a.c_str(), mode_t(number(b, 8))); }},
    {"leave-root", [](Words, Words) { return leave_root(); }},
    {"refusals", [](Words, Words) { return g_system.refusals; }},
    {"descriptors", [](Words a, Words) { return limit(RLIMIT_NOFILE, number(a)); }},
    {"file-size", [](Words a, Words) { return limit(RLIMIT_FSIZE, number(a)); }},
    {"stat", [](Words a, Words) { return look(a, false); }},
    {"mode", [](Words a, Words) { return look(a, true); }},
    {"copy", [](Words a, Words b) { return FSCopy(a, b, false); }},
    {"copy-away", [](Words a, Words b) { return FSCopy(a, b, true); }},
    {"mkdir", [](Words a, Words) { return FSMKDir(a, false); }},
    {"mkdir-parents", [](Words a, Words) { return FSMKDir(a, true); }},
    {"make-all", [](Words a, Words) { return make_all(a, false); }},
    {"make-all-by-force", [](Words a, Words) { return make_all(a, true); }},
    {"rename", [](Words a, Words b) { return FSRename(a, b, false); }},
    {"rename-whole", [](Words a, Words b) { return FSRenameWhole(a, b); }},
    {"remove", [](Words a, Words) { return FSRemove(a, false); }},
    {"make-removable", [](Words a, Words) { return (FSMakeRemovable(a), 0); }},
    {"make-temporary", make_temporary},
    {"make-exactly",
     [](Words a, Words b) { return FSMKDirP(a, nullptr, false, mode_t(number(b, 8))); }},
    {"traverse", traverse},
    {"sync", [](Words a, Words) { return FSSync(a); }},
    {"start-sync", [](Words a, Words) { return (FSStartSync(a), 0); }},
    {"exists", [](Words a, Words) { return int(IsFileExist(a, false)); }},
    {"locked", [](Words a, Words) { return int(isFileLocked(a, X_OK)); }},
    {"network", [](Words, Words) { return int(isMountPoint(".")); }},
    {"fat", [](Words, Words) { return int(IsMSDOS(".")); }},
    {"resolve", [](Words a, Words) { return resolve(a); }},
    {"open", [](Words a, Words) { return open_flags(a); }},
    {"log-to", [](Words a, Words b) { return open_log(a, "", number(b)); }},
    {"log", log_lines},
};

void log_c(int level, const char* format, ...) LOG_PRINTF_FORMAT(2, 3);
void log_c(int level, const char* format, ...) {
  char component[] = "c_debug";
  va_list args;
  va_start(args, format);
  LogMSG_c(level, component, format, args);
  va_end(args);
}

// Nothing is to survive the machine.
int pretend_to_sync() {
  errno = g_system.error;
  return g_system.error == 0 ? 0 : -1;
}

}  // namespace

extern "C" {

// The clock that seeds the names, fixed so that they can be foretold.
int gettimeofday(timeval* tv, void*) noexcept {
  *tv = {1234567890, 42};
  return 0;
}

int fsync(int) { return pretend_to_sync(); }

int syncfs(int) noexcept { return pretend_to_sync(); }

int statfs(const char*, struct statfs* fs) noexcept {
  fs->f_type = decltype(fs->f_type)(g_system.file_system);
  return g_system.file_system == 0 ? -1 : 0;
}

int rename(const char* from, const char* to) noexcept {
  if (!g_system.other_device) return renameat(AT_FDCWD, from, AT_FDCWD, to);
  errno = EXDEV;
  return -1;
}

dirent* readdir(DIR* dp) {
  static const auto next = reinterpret_cast<dirent* (*)(DIR*)>(dlsym(RTLD_NEXT, "readdir64"));
  static DIR* last;
  static bool miss;
  dirent* const entry = next(dp);
  if (!entry || std::exchange(last, dp) != dp) miss = false;
  // What others may do meanwhile: move a branch away, put a link in the place of a directory.
  if (entry && strcmp(entry->d_name, "bottom") == 0) (void)rename("moved/d", "dir/d");
  if (entry && strcmp(entry->d_name, "swap") == 0 && rmdir("tree/swap") == 0)
    (void)!symlink("../dir", "tree/swap");
  if (!entry && g_system.error != 0) errno = g_system.error;
  if (!entry || !g_system.poor_streams || entry->d_name[0] == '.') return entry;
  entry->d_type = DT_UNKNOWN;
  miss = !miss;
  return miss ? entry : readdir(dp);
}

// What others do with a name meanwhile: remove it, use it, or make it anew.
int unlinkat(int at, const char* name, int flags) noexcept {
  const QByteArray what(name);
  if (what == "busy") ++g_system.refusals;
  const long result = what == "busy" ? -1 : syscall(SYS_unlinkat, at, name, flags);
  if (what == "back") (void)close(openat(at, name, O_CREAT, 0600));
  if (what != "busy" && what != "gone") return int(result);
  errno = what == "busy" ? EBUSY : ENOENT;
  return -1;
}

void vsyslog(int priority, const char* format, va_list args) {
  pthread_testcancel();
  g_system.log += QString::vasprintf(format, args).toUtf8() + QByteArray::number(priority);
}

// Some systems end a thread that was cancelled meanwhile when this lets them.
int pthread_setcancelstate(int state, int* before) {
  static const auto set =
      reinterpret_cast<int (*)(int, int*)>(dlsym(RTLD_NEXT, "pthread_setcancelstate"));
  const int result = set(state, before);
  pthread_testcancel();
  return result;
}

}  // extern "C"

// Each test starts in an empty directory.
class TestCommon : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    // In memory where that is to be had: a disk takes seconds for the deep tree.
    const QString where = QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath();
    m_dir = std::make_unique<QTemporaryDir>(where + "/XXXXXX");
    QVERIFY(m_dir->isValid() && QDir::setCurrent(m_dir->path()));
    QCOMPARE(open_log("/dev/null", "", 0), 0);  // for the errors that the tests provoke
  }
  void cleanup() {
    Logger::Destroy();
    reset();
  }

  void names() {
    TmpNameGen& generator = TmpNameGen::getInstance();
    // Computed from the published cipher, its counters started anew for each name.
    QCOMPARE(text(generator.getTmpName()), QString("3LpZWRVi"));
    QCOMPARE(text(generator.getTmpName()), QString("5qFNOO8w"));
    ustring path;
    QCOMPARE(FSCreateTempPath("/a/", path), 0);
    QCOMPARE(text(path), QString("/a//MED8kDsC"));
    // However two threads share them: the next one tells whether each was drawn once.
    const auto draw = [&] {
      for (int i = 0; i < 500000; ++i) (void)generator.getTmpName();
    };
    std::thread other(draw);
    draw();
    other.join();
    QCOMPARE(text(generator.getTmpName()), QString("Xv60PCXs"));
  }

  void readFile() {
    QJsonArray rows = json("lib.json")["config"].toArray();
    const QString piece = QString("k=").leftJustified(8191, 'x');
    rows += QJsonArray{piece + "o=2\n", "k=" + piece.mid(2) + ";o=2;old=1;"};
    QVERIFY(populate() && truncate("file", kRotate + 1) == 0);
    for (const QJsonValue& row : rows) {
      Config config;
      config["old"] = "1";
      for (const char* path : {"", "missing", ".", "fifo", "/dev/null", "/dev/zero", "file"})
        QCOMPARE(config.read(path), -1);
      const QString file = row[0].toString();
      put("f", file.toUtf8());
      const bool sound = config.read("f") == 0;
      QCOMPARE(file + "->" + stored(config), file + "->" + row[1].toString());
      QVERIFY(sound != row[1].toString().isEmpty());  // nothing is stored of a malformed file
      // What was written is read again, unless the line would then be too long.
      QVERIFY(config.write("f") == (file.size() < 8000 ? 0 : -1));
      if (file.size() < 8000) QCOMPARE(stored(Config("f")), row[1].toString());
    }
  }

  void writeFile() {
    Config config;
    config["a"] = "4321 or so";
    config["b"] = "yes";
    QVERIFY(config.write("f") == 0 && config.write("/dev/full") == -1);
    QVERIFY(config.get_int("a") == 4321 && !config.get_bool("a") && config.get_bool("b"));
    config.unset("b");
    QCOMPARE(stored(config), QString("a=4321 or so;"));
    config["c"].assign('x', 8000);  // past what the stream holds back
    QVERIFY(config.write("/dev/full") == -1);
    const QByteArray written = content("f");
    for (const char* value : {"a'b\"c", "a\nb"}) {  // what the grammar has no way to say
      config["c"] = value;
      QVERIFY(config.write("f") == -1 && content("f") == written);
    }
    for (auto& [key, value] : config) value = key;
    for (int i = 0; i < 140; ++i) config[ustring().assign('n', i)].assign('x', 8000);
    QVERIFY(config.write("f") == -1 && content("f") == written);  // what would not be read
  }

  void threshold() {
    const std::pair<const char*, int> rows[] = {
        {"x_debug=\" 6 or so\"", 6}, {"x_debug=all", 0}, {"default_component=7", 4}};
    for (const auto& [levels, threshold] : rows) {
      Logger::Destroy();
      put("levels", levels);
      put("log", "");
      QCOMPARE(open_log("log", "levels", 2), 0);
      for (int level = Logger::L_EMERG; level <= Logger::L_DEBUG; ++level)
        Logger::LogMsg(Logger::Level(level), "x_debug", "[NOTE] test(%d): level\n", level);
      const QString line =
          "[A-Z][a-z]{2} [0-3]\\d [0-2]\\d:[0-5]\\d:[0-6]\\d \\[NOTE\\] test\\([0-7]\\): level\n";
      const QRegularExpression lines(QString("^(%1){%2}$").arg(line).arg(threshold + 1));
      QVERIFY2(lines.match(content("log")).hasMatch(), content("log"));
    }
  }

  void systemLog() {
    QCOMPARE(Logger::Initialize(Logger::SYSLOG_LOGGER, "", "", 0), 0);
    log_c(Logger::L_WARNING, "%s(%d) ", "test", 7);
    log_c(Logger::L_INFO, "below the threshold");
    QCOMPARE(g_system.log, QByteArray("test(7) 3"));
    // A cancelled thread ends behind its message, and the log is there for the others.
    std::thread([] {
      pthread_cancel(pthread_self());
      log_c(Logger::L_ERR, "last words ");
      g_system.log += "too many ";
    }).join();
    log_c(Logger::L_EMERG, "free");
    QCOMPARE(g_system.log, QByteArray("test(7) 3last words 3free3"));
  }

  void files_data() {
    QTest::addColumn<QJsonArray>("row");
    const QJsonObject rows = json("lib.json")["files"].toObject();
    for (auto row = rows.begin(); row != rows.end(); ++row)
      QTest::newRow(qPrintable(row.key())) << row->toArray();
  }
  // A row has what is different in the end, then the calls; each returns 0 or what it says.
  void files() {
    QFETCH(QJsonArray, row);
    QVERIFY(populate());
    const int reader = open("fifo", O_RDONLY | O_NONBLOCK);
    const QStringList before = tree(".");
    for (int i = 1; i < row.size(); ++i) {
      const QString call = row[i].toString();
      const QStringList words = call.split(" = ")[0].split(' ');
      const int status = kCalls.at(words[0])(u(words.value(1)), u(words.value(2)));
      QVERIFY2(status == call.section(" = ", 1).toInt(),
               qPrintable(QString::number(status) + ' ' + call));
    }
    close(reader);
    reset();
    const QStringList after = tree(".");
    QStringList changes;
    for (const QString& entry : after + before) {
      const bool is = after.contains(entry);
      if (is == before.contains(entry)) continue;
      const QString name = entry.section(':', 0, 0) + ':';
      const QString brief = name + QString::number(entry.size() - name.size()) + entry.right(1);
      changes += QLatin1Char(is ? '+' : '-') + (entry.size() < 99 ? entry : brief);
    }
    QCOMPARE(changes.join(' '), row[0].toString());
  }

  void readsDirectory() {
    QVERIFY(populate());
    QCOMPARE(FSUTime("file", 5, 7), 0);
    DIR_HANDLE dh;
    for (const int flag : {0, 1}) {
      QCOMPARE(FSOpenDir(".", flag, dh), 0);
      QStringList found;
      for (DIR_ENTRY entry; FSReadDir(dh, entry) == 1;) {
        found += text(entry.name) + '=' + QString::number(entry.type);
        if (entry.type != FT_FILE) continue;
        QVERIFY(entry.size == (flag ? 3 : 0) && FSTimeEqual(entry.mtime, flag ? 7 : 0));
      }
      found.sort();
      QCOMPARE(found.join(' '), QString("..=2 .=2 dir=2 fifo=6 file=1 full=3 to-dir=3"));
      FSCloseDir(dh);
      QVERIFY(!dh.dp && FSOpenDir("missing", 0, dh) == -1);
    }
  }

  // Also of a missing file, which compares by what is known of it.
  void owner() {
    FILE_INFO info;
    const time_t now = time(nullptr);
    QCOMPARE(FSStat("own", info, false), 0);
    QVERIFY(!info.isExist && info.type == FT_FILE && info.size == 0 && info.mtime >= now);
    FSInitialize(1, gid_t(-1));
    QVERIFY(FSInit("own") == 0 && FSMKDirP("own", nullptr, false, mode_t(-1)) == 0);
    FSInitialize(uid_t(-1), 3);
    FSChown("own");
    FSInitialize(uid_t(-1), gid_t(-1));
    QCOMPARE(GetFileInfo("own", info), 0);
    QVERIFY(geteuid() != 0 || (info.uid == 1 && info.gid == 3));  // only root gives files away
    FILE_INFO other = info;
    other.mode = other.uid = other.gid = 1;
    QVERIFY(other == info && (other.size += 1) && other != info);
  }

 private:
  static void reset() {
    g_system = {};
    umask(022);
    QVERIFY(seteuid(getuid()) == 0);
    QVERIFY(limit(RLIMIT_NOFILE, -1) == 0 && limit(RLIMIT_FSIZE, -1) == 0);
  }

  std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_APPLESS_MAIN(TestCommon)
#include "tst_lib.moc"
