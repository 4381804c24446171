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

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <memory>
#include <thread>

#include "lib/config.h"
#include "lib/file-op.h"
#include "lib/log.h"
#include "lib/tmp_name_gen.h"
#include "tests/support.h"

using Act = int (*)();
Q_DECLARE_METATYPE(Act)

namespace {

// What the system does in a test; each starts with a sound one.
struct {
  int error;             // of every sync
  bool other_device;     // is where every path leads that something is renamed to
  bool poor_streams;     // tell no types, and miss the entry behind the one that was read
  unsigned file_system;  // the type of every one
  QByteArray log;        // the system log
} g_system;

QString text(const ustring& s) { return QString::fromUtf8(s.c_str()); }

int refuse(const ustring&, void*) { return 1; }

void log_bytes(char mark, int size) {
  Logger::LogMsg(Logger::L_ERR, "x", "%s", QByteArray(size, mark).constData());
}

int open_log(const ustring& path, const ustring& levels, int rotations) {
  return Logger::Initialize(Logger::FILE_LOGGER, path, levels, rotations);
}

int make_all(const ustring& path, bool force) {
  return FSMKDirP(path, nullptr, force, mode_t(-1)) == 0 ? 0 : errno;
}

// What `path` is; the status where that cannot be said.
int type_of(const ustring& path) {
  FILE_INFO info;
  const int result = FSStat(path, info, false);
  return result == 0 ? info.type : result;
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

int with_limit(__rlimit_resource resource, rlim_t limit, Act act) {
  rlimit before;
  if (getrlimit(resource, &before) != 0) return -9;
  const rlimit low = {limit, before.rlim_max};
  if (setrlimit(resource, &low) != 0) return -9;
  const int result = act();
  return setrlimit(resource, &before) == 0 ? result : -9;
}

// Removes what its owner has no rights to, as somebody whom that stops.
int remove_closed() {
  put("closed/a/b/file", "");
  put("shut/x", "");
  const uid_t user = geteuid();
  bool ready = QFile::link("../shut", "closed/link");
  for (const char* path : {"closed/a/b", "closed/a", "closed", "shut"}) {
    const mode_t mode = strcmp(path, "closed/a") == 0 ? 0500 : 0;
    ready = ready && chmod(path, mode) == 0 && (user != 0 || lchown(path, 65534, 0) == 0);
  }
  ready = ready && chmod(".", 0777) == 0 && (user != 0 || seteuid(65534) == 0);
  prctl(PR_SET_DUMPABLE, 1);  // what seteuid() takes away: /proc/self
  ready = ready && FSRemove("closed", false) == 0 && IsFileExist("closed", false);
  FSMakeRemovable("closed");
  const bool followed = euidaccess("shut/x", F_OK) == 0;
  const int result = FSRemove("closed", false);
  // Whoever looks at what is left need not be root.
  ready = seteuid(user) == 0 && chmod("shut", 0700) == 0 && ready;
  return ready && !followed ? result : -9;
}

// The mode of what `make` makes at the path that it sets, under the umask given.
template <typename Make>
int mode_of(mode_t mask, Make make) {
  FILE_INFO info;
  ustring path("new");
  const mode_t before = umask(mask);
  const bool made = make(path) == 0 && GetFileInfo(path, info) == 0 && remove(path.c_str()) == 0;
  return umask(before) == mask && made ? int(info.mode & 07777) : -9;
}

// Moves to another file system.
int move(const char* from, const char* to) {
  g_system.other_device = true;
  return FSRename(from, to, false);
}

int on(unsigned file_system, bool (*test)(const ustring&)) {
  g_system.file_system = file_system;
  return int(test("."));
}

int resolve(const char* name) {
  ustring path(name);
  const int result = FSGetRealPath(path);
  const QString expected = result == 0 ? QDir().canonicalPath() + "/file" : name;
  return text(path) == expected ? result : -9;
}

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
  if (!entry || !g_system.poor_streams || entry->d_name[0] == '.') return entry;
  entry->d_type = DT_UNKNOWN;
  miss = !miss;
  return miss ? entry : readdir(dp);
}

void vsyslog(int priority, const char* format, va_list args) {
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
    g_system = {};
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

  void readFile_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("store");  // empty where the content is malformed
    const auto row = [](const QByteArray& content, const QString& store) {
      QTest::addRow("%.40s", content.constData()) << content << store;
    };
    row("pid=4321\n", "old=1;pid=4321;");
    row(" \t a.B-c_9 = x \r\n", "a.B-c_9=x;old=1;");
    row("k=\"two 'words' #1\"  # comment", "k=two 'words' #1;old=1;");
    row("k='a \"b\"'#comment", "k=a \"b\";old=1;");
    row("k=a#b\t# comment", "k=a#b;old=1;");
    row("# c\n\nb=2\na=1\nb=3", "a=1;b=3;old=1;");
    const QByteArray piece = QByteArray("k=").leftJustified(8191, 'x');
    row(piece + "o=2\n", "k=" + piece.mid(2) + ";o=2;old=1;");
    for (const char* line : {"", " \t\n", "  # comment", "key# comment", "key"})
      row(line, "old=1;");
    for (const char* line :
         {"key\n", "key # comment", "k=", "k= \n", "k=two words", "k=a\tb", "k:y=1", "k=\"open",
          "k=\"a\tb\"", "k=\"a\"b", "k=a\x7f", "ü=1", "a=1\nbad line\nb=2"})
      row(line, "");
  }
  void readFile() {
    QFETCH(QByteArray, content);
    QFETCH(QString, store);
    put("f", content);
    Config config;
    config["old"] = "1";
    QVERIFY(populate() && truncate("file", 1048577) == 0);
    for (const char* path : {"", "missing", ".", "fifo", "/dev/zero", "file"})
      QCOMPARE(config.read(path), -1);
    QCOMPARE(config.read("f"), store.isEmpty() ? -1 : 0);
    QString read;
    for (const auto& [key, value] : config) read += text(key) + '=' + text(value) + ';';
    QCOMPARE(read, store);
  }

  void writeFile() {
    Config config;
    char key[] = "a";
    for (const char* value : {"4321", "", "two words # x", "a'b", "a\"b", "Grüße", "yes"}) {
      config[key] = value;
      ++*key;
    }
    QCOMPARE(config.write("f"), 0);
    QCOMPARE(config.write("/dev/full"), -1);
    const QByteArray written = content("f");
    Config read("f");
    QVERIFY(std::equal(read.begin(), read.end(), config.begin(), config.end()));
    QVERIFY(read.get_int("a") == 4321 && !read.get_bool("a") && read.get_bool("g"));
    read.unset("g");
    QVERIFY(!read.get_bool("g") && std::distance(read.begin(), read.end()) == 6);
    // What the grammar has no way to say, and what would be longer than a line.
    for (const QString& value : {QString("a'b\"c"), QString("a\nb"), QString(8187, 'x')}) {
      config["k"] = u(value);
      QCOMPARE(config.write("f"), -1);
      QCOMPARE(content("f"), written);
    }
  }

  void threshold_data() {
    QTest::addColumn<int>("threshold");
    QTest::newRow("x_debug=\" 6 or so\"") << 6;
    QTest::newRow("x_debug=all") << 0;
    QTest::newRow("default_component=7") << 4;
  }
  void threshold() {
    QFETCH(int, threshold);
    put("levels", QTest::currentDataTag());
    QCOMPARE(open_log("log", "levels", 2), 0);
    // A failed change of the sink leaves the old one in use.
    QVERIFY(populate());
    const int reader = open("fifo", O_RDONLY | O_NONBLOCK);
    for (const char* path : {"", "missing/log", "dir", "fifo"}) QCOMPARE(open_log(path, "", 2), -1);
    QCOMPARE(close(reader), 0);
    errno = EDOM;
    for (int level = Logger::L_EMERG; level <= Logger::L_DEBUG; ++level) {
      Logger::LogMsg(Logger::Level(level), "x_debug", "[NOTE] test(%d): level\n", level);
    }
    QCOMPARE(errno, EDOM);
    const QString written = content("log");
    const QString line =
        "[A-Z][a-z]{2} [0-3]\\d [0-2]\\d:[0-5]\\d:[0-6]\\d \\[NOTE\\] test\\([0-7]\\): level\n";
    const QRegularExpression lines(QString("^(%1){%2}$").arg(line).arg(threshold + 1));
    QVERIFY2(lines.match(written).hasMatch(), qPrintable(written));
  }

  void rotation_data() {
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("left");
    QTest::newRow("none") << 0 << "log= log_0=d";
    QTest::newRow("four") << 4 << "log= log_0=d log_1=c log_2=b";
  }
  void rotation() {
    QFETCH(int, count);
    put("log", "counts for nothing");
    QCOMPARE(open_log("log", "", count), 0);
    log_bytes('x', kRotate - kStamp);  // the limit itself is not past the limit
    QCOMPARE(tree(".").size(), 1);
    log_bytes('a', 1);
    for (const char mark : {'b', 'c', 'd'}) log_bytes(mark, kRotate - kStamp + 1);
    QStringList left;
    for (const QString& name : QDir().entryList(QDir::Files))
      left += name + '=' + content(name).right(1);
    QTEST(left.join(' '), "left");
  }

  void failedRotation() {
    put("log_0/in the way", "");
    QCOMPARE(open_log("log", "", 1), 0);
    log_bytes('x', kRotate);
    log_bytes('y', 1);
    QCOMPARE(QFileInfo("log").size(), kRotate + kStamp);  // closed, later lines dropped
  }

  void lostLines() {
    QCOMPARE(open_log("log", "", 2), 0);
    signal(SIGXFSZ, SIG_IGN);
    const auto log_in_vain = [] {
      log_bytes('a', 100);
      log_bytes('b', 2 * kRotate);
      return 0;
    };
    QCOMPARE(with_limit(RLIMIT_FSIZE, 0, log_in_vain), 0);
    log_bytes('c', kRotate - kStamp);
    QCOMPARE(QFileInfo("log").size(), kRotate);
    QCOMPARE(tree(".").size(), 1);
  }

  void deviceIsNotRotated() {
    QVERIFY(QFile::link("/dev/null", "log"));
    QCOMPARE(open_log("log", "", 2), 0);
    log_bytes('x', 2 * kRotate);
    QCOMPARE(tree("."), QStringList("log@"));
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

  void status_data() {
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("changes");
    QTest::addColumn<Act>("act");
    const auto row = [](const char* name, int result, const char* changes, Act act) {
      QTest::newRow(name) << result << changes << act;
    };
    row("stat/directory", FT_DIR, "", [] { return type_of("dir"); });
    row("stat/link", FT_SLINK, "", [] { return type_of("to-dir"); });
    row("stat/fifo", FT_FIFO, "", [] { return type_of("fifo"); });
    row("stat/empty", -1, "", [] { return type_of(""); });
    row("stat/below a file", -2, "", [] { return type_of("file/x"); });
    row("copy/over", 0, "+file:x -file:abc", [] { return FSCopy("dir/inner", "file", false); });
    row("copy/and delete", 0, "+new:abc -file:abc", [] { return FSCopy("file", "new", true); });
    row("copy/directory", -1, "+new:", [] { return FSCopy("dir", "new", true); });
    row("copy/full disk", -2, "", [] { return FSCopy("file", "full", true); });
    row("copy/failing disk", -1, "+new:abc",
        [] { return (g_system.error = EIO, FSCopy("file", "new", true)); });
    row("copy/onto itself", 0, "+same:abc",
        [] { return link("file", "same") == 0 ? FSCopy("file", "same", false) : -9; });
    row("copy/onto itself and delete", -1, "+same:abc",
        [] { return link("file", "same") == 0 ? FSCopy("file", "same", true) : -9; });
    row("mkdir/no parent", -2, "", [] { return FSMKDir("a/b", false); });
    row("mkdir/link to directory", -1, "", [] { return FSMKDir("to-dir", true); });
    row("mkdir/below a file", -1, "", [] { return FSMKDir("file/x", true); });
    row("mkdirp/file", EEXIST, "", [] { return make_all("file", false); });
    row("mkdirp/below a file", ENOTDIR, "", [] { return make_all("file/x", false); });
    row("mkdirp/slashes", 0, "+a/ +a/b/", [] { return make_all(".//a//b/", false); });
    row("mkdirp/through a link", 0, "+dir/a/", [] { return make_all("to-dir/a", false); });
    row("mkdirp/by force", 0, "+file/ +file/x/ -file:abc", [] { return make_all("file/x", true); });
    row("rename/empty", -1, "", [] { return FSRename("file", "", false); });
    row("rename/missing", -2, "", [] { return FSRename("missing", "new", false); });
    row("rename/over a directory", -3, "", [] { return FSRename("file", "dir", false); });
    row("rename/long", -100, "",
        [] { return FSRename("file", ustring().assign('n', 300), false); });
    row("move/tree", 0, "+new/ +new/a/ +new/a/inner:x -dir/ -dir/inner:x",
        [] { return move("dir", "new/a"); });
    row("move/link", 0, "", [] { return move("to-dir", "new"); });
    row("move/tree with a link", -3, "+dir/link@ +new/ +new/inner:x -dir/inner:x",
        [] { return QFile::link("x", "dir/link") ? move("dir", "new") : -9; });
    row("move/file onto itself", -3, "", [] { return move("file", "./file"); });
    row("move/empty directory onto itself", -3, "+new/",
        [] { return FSMKDir("new", false) == 0 ? move("new", "./new") : -9; });
    row("remove/missing", 0, "", [] { return FSRemove("missing", false); });
    row("remove/link only", 0, "-to-dir@", [] { return FSRemove("to-dir", false); });
    row("remove/deep", 0, "", [] {
      const Act act = [] { return FSRemove("deep", false); };
      return make_deep("deep", 20000) ? with_limit(RLIMIT_NOFILE, 16, act) : -9;
    });
    row("remove/moved away", -3, "+dir/d/ +moved/",
        [] { return make_deep("moved", 40) ? FSRemove("moved", false) : -9; });
    row("remove/swapped for a link", -3, "+tree/ +tree/swap@",
        [] { return FSMKDir("tree/swap", true) == 0 ? FSRemove("tree", false) : -9; });
    row("remove/poor streams", 0, "", [] {
      for (const char* name : {"a", "b", "c/d", "c/e", "c/f", "g"})
        put(QString("tree/") + name, "");
      g_system.poor_streams = true;
      return QFile::link("../dir", "tree/link") ? FSRemove("tree", false) : -9;
    });
    row("remove/closed", 0, "+shut/ +shut/x:", remove_closed);
    row("mode/temporary", 0644, "",
        [] { return mode_of(077, [](ustring& path) { return FSMktemp("dir", path); }); });
    row("mode/exact", 0707, "", [] {
      return mode_of(027, [](ustring& path) { return FSMKDirP(path, nullptr, false, 0707); });
    });
    row("traverse/order", 0, "+t/ +t/a/ +t/a/b:", [] {
      QStringList visited;
      const auto note = [](const ustring& path, void* list) {
        *static_cast<QStringList*>(list) += text(path);
        return 0;
      };
      put("t/a/b", "");
      const int result = TraverseDir("t", note, &visited);
      return visited == QStringList({"t", "t/a", "t/a/b"}) ? result : -9;
    });
    row("traverse/refused", -2, "", [] { return TraverseDir(".", refuse, nullptr); });
    row("sync/missing", -1, "", [] { return FSSync("missing"); });
    row("sync/fifo", 0, "", [] { return (FSStartSync("fifo"), FSStartSync("file"), FSSync(".")); });
    row("sync/failed", -1, "", [] { return (g_system.error = EIO, FSSync(".")); });
    row("sync/not there", 0, "", [] { return (g_system.error = ENOSYS, FSSync(".")); });
    row("locked/no", 0, "", [] { return int(isFileLocked("missing", R_OK)); });
    row("locked/yes", 1, "", [] { return int(isFileLocked("file", X_OK)); });
    row("exists/dangling link", 0, "+new@",
        [] { return int(QFile::link("x", "new") && IsFileExist("new", false)); });
    row("file system/nfs", 1, "", [] { return on(0x6969, isMountPoint); });
    row("file system/cifs", 1, "", [] { return on(0xFF534D42, isMountPoint); });
    row("file system/fat", 1, "", [] { return on(0x4D44, IsMSDOS); });
    row("file system/other", 0, "", [] { return on(1, isMountPoint) + on(0, IsMSDOS); });
    row("real path/missing", -1, "", [] { return resolve("missing"); });
    row("real path/link", 0, "", [] { return resolve("to-dir/../file"); });
  }
  void status() {
    QFETCH(Act, act);
    QVERIFY(populate());
    const QStringList before = tree(".");
    QTEST(act(), "result");
    g_system = {};
    const QStringList after = tree(".");
    QStringList changes;
    for (const QString& entry : after + before) {
      const bool is = after.contains(entry);
      if (is != before.contains(entry)) changes += QLatin1Char(is ? '+' : '-') + entry;
    }
    QTEST(changes.join(' '), "changes");
  }

  void missingFile() {
    FILE_INFO info;
    const time_t now = time(nullptr);
    QCOMPARE(FSStat("missing", info, false), 0);
    QVERIFY(!info.isExist && info.type == FT_FILE && info.size == 0 && info.mtime >= now);
    FILE_INFO other = info;
    other.mode = other.uid = other.gid = 1;
    QVERIFY(other == info);
    other.size = 1;
    QVERIFY(other != info);
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

  void owner() {
    const bool root = geteuid() == 0;  // nobody else may give files away
    FSInitialize(1, gid_t(-1));
    QVERIFY(FSInit("own") == 0 && FSMKDirP("own", nullptr, false, mode_t(-1)) == 0);
    FSInitialize(uid_t(-1), 3);
    FSChown("own");
    FSInitialize(uid_t(-1), gid_t(-1));
    FILE_INFO info;
    QVERIFY(GetFileInfo("own", info) == 0 && (!root || (info.uid == 1 && info.gid == 3)));
  }

 private:
  static constexpr int kRotate = 1048576;  // bytes
  static constexpr int kStamp = 16;        // bytes in front of each line

  std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_APPLESS_MAIN(TestCommon)
#include "tst_lib.moc"
