#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <memory>
#include <thread>

#include "lib/config.h"
#include "lib/file-op.h"
#include "lib/log.h"
#include "lib/tmp_name_gen.h"
#include "tests/support.h"

using Act = std::function<int(const ustring& dir)>;
using Pairs = QMap<QString, QString>;
Q_DECLARE_METATYPE(Act)

namespace {

QString text(const ustring& s) { return QString::fromUtf8(s.c_str()); }

int refuse(const ustring&, void*) { return 1; }

int record(const ustring& path, void* list) {
  static_cast<QStringList*>(list)->append(text(path));
  return 0;
}

void log_all_levels(const char* component) {
  for (int level = Logger::L_EMERG; level <= Logger::L_DEBUG; ++level) {
    Logger::LogMsg(Logger::Level(level), component, "[NOTE] test(%d): level\n", level);
  }
}

void log_bytes(char mark, int size) {
  Logger::LogMsg(Logger::L_ERR, "x", "%s", QByteArray(size, mark).constData());
}

int open_log(const QString& path, int rotations) {
  return Logger::Initialize(Logger::FILE_LOGGER, u(path), "", rotations);
}

// The files that each status row starts from.
void populate(const QString& dir) {
  put(dir + "/file", "abc");
  put(dir + "/dir/inner", "x");
  QVERIFY(QFile::link("file", dir + "/link") && QFile::link("dir", dir + "/to-dir"));
  QCOMPARE(mkfifo(u(dir + "/fifo").c_str(), 0600), 0);
}

}  // namespace

// The clock that seeds the names, fixed so that they can be foretold.
extern "C" int gettimeofday(timeval* tv, void*) noexcept {
  *tv = {1234567890, 42};
  return 0;
}

class TestCommon : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid() && chmod(u(m_dir->path()).c_str(), 0755) == 0);
    QCOMPARE(open_log("/dev/null", 0), 0);  // for the errors that the tests provoke
  }
  void cleanup() { Logger::Destroy(); }

  void names() {
    TmpNameGen& generator = TmpNameGen::getInstance();
    // Computed from the published cipher, its counters started anew for each name.
    QCOMPARE(text(generator.getTmpName()), QString("3LpZWRVi"));
    QCOMPARE(text(generator.getTmpName()), QString("5qFNOO8w"));
    QCOMPARE(text(generator.getTmpPath("/a/")), QString("/a//MED8kDsC"));
    QSet<QString> made[2];
    const auto fill = [&](int n) { while (made[n].size() < 2000) made[n] += text(generator.getTmpName()); };
    std::thread other(fill, 1);
    fill(0);
    other.join();
    QVERIFY(!made[0].intersects(made[1]));
    const QRegularExpression valid("^[0-9a-zA-Z_-]{8}$");
    for (const QString& name : made[0]) QVERIFY2(valid.match(name).hasMatch(), qPrintable(name));
  }

  void parseLine_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const auto good = [](const char* line, const char* key, const char* value) {
      QTest::addRow("good/%s", line) << QByteArray(line) << int(Config::OK) << key << value;
    };
    good("pid=4321\n", "pid", "4321");
    good(" \t a.B-c_9 = x \r\n", "a.B-c_9", "x");
    good("=x", "", "x");
    good("k=\"\"", "k", "");
    good("k=\"two 'words' #1\"  # comment", "k", "two 'words' #1");
    good("k='a \"b\"'#comment", "k", "a \"b\"");
    good("k=a#b\t# comment", "k", "a#b");
    good("k=Grüße", "k", "Grüße");
    for (const char* line : {"", " \t\n", "  # comment", "key# comment", "key"}) {
      QTest::addRow("empty/%s", line) << QByteArray(line) << int(Config::EMPTY) << "-" << "-";
    }
    for (const char* line : {"key\n", "key # comment", "k=", "k= \n", "k=two words", "k=a\tb",
                             "k:y=1", "k=\"open", "k=\"a\tb\"", "k=\"a\"b", "k=a\x7f", "ü=1"}) {
      QTest::addRow("bad/%s", line) << QByteArray(line) << int(Config::INVALID) << "-" << "-";
    }
  }
  void parseLine() {
    QFETCH(QByteArray, line);
    ustring key("-");
    ustring value("-");
    QTEST(Config().parse(line.data(), line.size(), key, value), "result");
    QTEST(text(key), "key");
    QTEST(text(value), "value");
  }

  void readFile_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("result");
    QTest::addColumn<Pairs>("store");
    const Pairs old{{"old", "1"}};
    QTest::newRow("adds") << "f" << QByteArray("# c\n\nb=2\na=1\nb=3") << 0
                          << Pairs{{"a", "1"}, {"b", "3"}, {"old", "1"}};
    QTest::newRow("one bad line empties") << "f" << QByteArray("a=1\nbad line\n") << -1 << Pairs();
    QTest::newRow("long line is read in pieces")
        << "f" << QByteArray(QByteArray("a=").leftJustified(8191, 'x') + "b=2\n") << 0
        << Pairs{{"a", QString(8189, 'x')}, {"b", "2"}, {"old", "1"}};
    QTest::newRow("missing") << "missing" << QByteArray() << -1 << old;
    QTest::newRow("directory") << "." << QByteArray() << -1 << Pairs();
    QTest::newRow("no path") << "" << QByteArray() << -1 << old;
  }
  void readFile() {
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    put(path("f"), content);
    Config config;
    config["old"] = "1";
    QTEST(config.read(name.isEmpty() ? ustring() : u(path(name))), "result");
    Pairs store;
    for (const auto& [key, value] : config) store[text(key)] = text(value);
    QTEST(store, "store");
  }

  void writeFile_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("result");
    for (const char* value : {"4321", "", "two words # x", "a'b", "a\"b", "Grüße"}) {
      QTest::addRow("good/%s", value) << "k" << value << 0;
    }
    QTest::newRow("bad/both quotes") << "k" << "a'b\"c" << -1;
    QTest::newRow("bad/line feed") << "k" << "a\nb" << -1;
    QTest::newRow("bad/key") << "a b" << "1" << -1;
    QTest::newRow("bad/longer than a line") << "k" << QString(8187, 'x') << -1;
  }
  void writeFile() {
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(int, result);
    put(path("f"), "before=1\n");
    Config config;
    config[u(key)] = u(value);
    QCOMPARE(config.write("/dev/full"), -1);
    QCOMPARE(config.write(u(path("f"))), result);
    Config read(u(path("f")));
    QCOMPARE(text(read[u(key)]), result == 0 ? value : QString());
    QCOMPARE(read.get_int("before"), result == 0 ? 0 : 1);
    QCOMPARE(read.get_bool("before"), result != 0);
  }

  void threshold_data() {
    QTest::addColumn<QByteArray>("levels");
    QTest::addColumn<int>("threshold");
    const auto row = [](const char* levels, int t) { QTest::newRow(levels) << QByteArray(levels) << t; };
    row("other=7", 4);
    row("x_debug=7", 7);
    row("x_debug = 3", 3);
    row("x_debug=\" 6 or so\"", 6);
    row("x_debug=all", 0);
    row("x_debug=-1", -1);
    row("default_component=7", 4);
    row("x_debug=7\nbad line", 4);
  }
  void threshold() {
    QFETCH(QByteArray, levels);
    QFETCH(int, threshold);
    put(path("levels"), levels);
    QCOMPARE(Logger::Initialize(Logger::FILE_LOGGER, u(path("log")), u(path("levels")), 2), 0);
    // A failed change of the sink leaves the old one in use.
    QCOMPARE(open_log("", 2), -1);
    QCOMPARE(open_log(path("missing/log"), 2), -1);
    errno = EDOM;
    log_all_levels("x_debug");
    QCOMPARE(errno, EDOM);
    const QString written = content(path("log"));
    QCOMPARE(written.count('\n'), threshold + 1);
    const QRegularExpression lines("^([A-Z][a-z]{2} [0-3]\\d [0-2]\\d:[0-5]\\d:[0-6]\\d "
                                   "\\[NOTE\\] test\\([0-7]\\): level\n)*$");
    QVERIFY2(lines.match(written).hasMatch(), qPrintable(written));
  }

  void rotation_data() {
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("left");
    for (const int count : {0, 1, 2}) QTest::addRow("%d", count) << count << "log log_0=d";
    QTest::newRow("3") << 3 << "log log_0=d log_1=c";
    QTest::newRow("4") << 4 << "log log_0=d log_1=c log_2=b";
  }
  void rotation() {
    QFETCH(int, count);
    put(path("log"), "counts for nothing");
    QCOMPARE(open_log(path("log"), count), 0);
    log_bytes('x', kRotate - kStamp);  // the limit itself is not past the limit
    QCOMPARE(tree(m_dir->path()).size(), 1);
    log_bytes('a', 1);
    for (const char mark : {'b', 'c', 'd'}) log_bytes(mark, kRotate - kStamp + 1);
    QStringList left;
    for (const QString& name : QDir(m_dir->path()).entryList(QDir::Files, QDir::Name)) {
      const QByteArray mark = content(path(name)).right(1);
      left += mark.isEmpty() ? name : name + '=' + mark;
    }
    QTEST(left.join(' '), "left");
  }

  void failedRotation() {
    put(path("log_0/in the way"), "");
    QCOMPARE(open_log(path("log"), 1), 0);
    log_bytes('x', kRotate);
    log_all_levels("x");
    QCOMPARE(QFileInfo(path("log")).size(), kRotate + kStamp);  // closed, later lines dropped
  }

  void status_data() {
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("changes");
    const auto row = [](const char* name, int result, const char* changes, Act act) {
      QTest::newRow(name) << act << result << changes;
    };
    static const ustring longName(QByteArray(300, 'n').constData());
    using D = const ustring&;
    row("stat/empty", -1, "", [](D) { FILE_INFO i; return FSStat("", i, false); });
    row("stat/below a file", -2, "", [](D d) { FILE_INFO i; return FSStat(d + "/file/x", i, false); });

    const auto copy = [&row](const char* name, int result, const char* changes, const char* from,
                             const char* to, bool remove) {
      row(name, result, changes, [=](D d) { return FSCopy(d + from, *to == '.' ? "/dev/full" : d + to, remove); });
    };
    copy("copy/new", 0, "+new:abc", "/file", "/new", false);
    copy("copy/over", 0, "+file:x -file:abc", "/dir/inner", "/file", false);
    copy("copy/and delete", 0, "+new:abc -file:abc", "/file", "/new", true);
    copy("copy/missing", -1, "", "/missing", "/new", false);
    copy("copy/directory", -1, "+new:", "/dir", "/new", true);
    copy("copy/into nothing", -1, "", "/file", "/no/new", true);
    copy("copy/full disk", -2, "", "/file", ".", true);

    const auto mkdir = [&row](const char* name, int result, const char* changes, const char* path,
                              bool parents) {
      row(name, result, changes, [=](D d) { return FSMKDir(d + path, parents); });
    };
    mkdir("mkdir/new", 0, "+new/", "/new", false);
    mkdir("mkdir/exists", 0, "", "/dir", true);
    mkdir("mkdir/no parent", -2, "", "/a/b", false);
    mkdir("mkdir/parents", 0, "+a/ +a/b/", "/a/b", true);
    mkdir("mkdir/file", -1, "", "/file", true);
    mkdir("mkdir/link to directory", -1, "", "/to-dir", true);
    mkdir("mkdir/below a file", -1, "", "/file/x", true);

    const auto mkdirp = [&row](const char* name, int result, const char* changes, const char* path,
                               bool force) {
      row(name, result, changes, [=](D d) {
        return FSMKDirP(d + path, nullptr, force, mode_t(-1)) == 0 ? 0 : errno;
      });
    };
    mkdirp("mkdirp/file", EEXIST, "", "/file", false);
    mkdirp("mkdirp/below a file", ENOTDIR, "", "/file/x", false);
    mkdirp("mkdirp/slashes", 0, "+a/ +a/b/", "//a//b/", false);
    mkdirp("mkdirp/through a link", 0, "+dir/a/", "/to-dir/a", false);
    mkdirp("mkdirp/by force", 0, "+file/ +file/x/ -file:abc", "/file/x", true);

    const auto rename = [&row](const char* name, int result, const char* changes, const char* from,
                               const ustring& to) {
      row(name, result, changes, [=](D d) { return FSRename(d + from, to.empty() ? to : d + to, false); });
    };
    rename("rename/empty", -1, "", "/file", "");
    rename("rename/missing", -2, "", "/missing", "/new");
    rename("rename/tree", 0, "+new/ +new/inner:x -dir/ -dir/inner:x", "/dir", "/new");
    rename("rename/over a directory", -3, "", "/file", "/dir");
    rename("rename/long", -100, "", "/file", "/" + longName);

    const auto remove = [&row](const char* name, int result, const char* changes, const char* path) {
      row(name, result, changes, [=](D d) { return FSRemove(d + path, false); });
    };
    remove("remove/missing", 0, "", "/missing");
    remove("remove/below a file", -1, "", "/file/x");
    remove("remove/file", 0, "-file:abc", "/file");
    remove("remove/tree", 0, "-dir/ -dir/inner:x", "/dir");
    remove("remove/link only", 0, "-to-dir@", "/to-dir");

    row("traverse/no function", -1, "", [](D d) { return TraverseDir(d, nullptr, nullptr); });
    row("traverse/file", -1, "", [](D d) { return TraverseDir(d + "/file", refuse, nullptr); });
    row("traverse/missing", -1, "", [](D d) { return TraverseDir(d + "/no", refuse, nullptr); });
    row("traverse/refused", -2, "", [](D d) { return TraverseDir(d, refuse, nullptr); });
    row("opendir/file", -1, "", [](D d) { DIR_HANDLE h; return FSOpenDir(d + "/file", 0, h); });
    row("mktemp/no directory", -1, "", [](D d) { ustring p; return FSMktemp(d + "/no", p); });
    row("sync", 0, "", [](D d) { return FSSync(d); });
    row("sync/missing", -1, "", [](D d) { return FSSync(d + "/missing"); });
    row("real path", 0, "", [](D d) {
      ustring p = d + "/to-dir/../link";
      return FSGetRealPath(p) == 0 && p == d + "/file" ? 0 : 1;
    });
  }
  void status() {
    QFETCH(Act, act);
    const QString dir = QFileInfo(m_dir->path()).canonicalFilePath();
    populate(dir);
    const QStringList before = tree(dir);
    QTEST(act(u(dir)), "result");
    const QStringList after = tree(dir);
    QStringList changes;
    for (const QString& entry : after) if (!before.contains(entry)) changes += '+' + entry;
    for (const QString& entry : before) if (!after.contains(entry)) changes += '-' + entry;
    QTEST(changes.join(' '), "changes");
  }

  void describe() {
    populate(m_dir->path());
    const QMap<QString, FILE_TYPE> types{{path("file"), FT_FILE}, {path("dir"), FT_DIR},
        {path("to-dir"), FT_SLINK}, {path("fifo"), FT_FIFO}, {"/dev/null", FT_DEV}};
    FILE_INFO info;
    for (const QString& name : types.keys()) {
      QCOMPARE(FSStat(u(name), info, false), 0);
      QVERIFY(info.type == types[name] && info.isExist && text(info.path) == name);
    }
    QCOMPARE(FSUTime(u(path("file")), 1, 1000000000), 0);
    QCOMPARE(FSStat(u(path("file")), info, false), 0);
    QVERIFY(info.mtime == 1000000000 && info.size == 3);
    FILE_INFO other = info;
    other.mode = other.uid = other.gid = 1;
    QVERIFY(info == other);
    other.size = 4;
    QVERIFY(info != other);
    const time_t now = time(nullptr);
    QCOMPARE(FSStat(u(path("missing")), info, false), 0);
    QVERIFY(!info.isExist && info.type == FT_FILE && info.size == 0 && info.mode == 0);
    QVERIFY(info.mtime >= now && !IsFileExist(u(path("missing")), false));
    QVERIFY(IsFileExist(u(path("to-dir")), false) && !IsFileExist("", false));
    QVERIFY(!isMountPoint(u(path("file"))) && !IsMSDOS(u(path("file"))));
  }

  void exactMode() {
    const mode_t umaskBefore = umask(027);
    const ustring made = u(path("a/b"));
    char* end = nullptr;
    const int result = FSMKDirP(made, &end, false, 0707);
    QCOMPARE(umask(umaskBefore), mode_t(027));
    QCOMPARE(result, 0);
    QCOMPARE(end, made.c_str() + made.length() - 1);
    ustring file;
    QCOMPARE(FSMktemp(made, file), 0);
    FILE_INFO info;
    QVERIFY(FSStat(made, info, false) == 0 && (info.mode & 07777) == 0707);
    QVERIFY(FSStat(file, info, false) == 0 && (info.mode & 07777) == 0644);
  }

  void walk() {
    populate(m_dir->path());
    put(path("dir/deep/leaf"), "");
    QStringList seen;
    QCOMPARE(TraverseDir(u(m_dir->path()), record, &seen), 0);
    QCOMPARE(seen.first(), m_dir->path());
    QVERIFY(seen.indexOf(path("dir/deep")) < seen.indexOf(path("dir/deep/leaf")));
    QCOMPARE(seen.size(), tree(m_dir->path()).size() + 1);  // links are named, not followed
  }

  void readDirectory() {
    populate(m_dir->path());
    QCOMPARE(FSUTime(u(path("file")), 1, 1000000000), 0);
    for (const uint flag : {0, 1}) {
      DIR_HANDLE handle;
      QCOMPARE(FSOpenDir(u(m_dir->path()), int(flag), handle), 0);
      QMap<QString, DIR_ENTRY> entries;
      DIR_ENTRY entry;
      while (FSReadDir(handle, entry) == 1) entries[text(entry.name)] = entry;
      QCOMPARE(QStringList(entries.keys()).join(' '), QString(". .. dir fifo file link to-dir"));
      QVERIFY(entries["dir"].type == FT_DIR && entries["link"].type == FT_SLINK);
      QCOMPARE(entries["file"].mtime, flag * 1000000000);
      QCOMPARE(entries["file"].size, uint64_t(flag * 3));
    }
  }

  void withoutRights() {
    put(path("closed/file"), "abc");
    QCOMPARE(chmod(u(path("closed")).c_str(), 0), 0);
    const bool root = geteuid() == 0;  // root may do anything, so it steps down meanwhile
    if (root) QCOMPARE(setresuid(65534, 65534, 0), 0);
    const QList<int> results{FSRemove(u(path("closed")), false),
                             FSMKDir(u(path("closed/new")), false),
                             FSCopy(u(path("closed/file")), u(path("new")), false),
                             isFileLocked(u(path("closed")), R_OK),
                             isFileLocked(u(path("missing")), R_OK)};
    if (root) QCOMPARE(setresuid(0, 0, 0), 0);
    QCOMPARE(chmod(u(path("closed")).c_str(), 0700), 0);
    QCOMPARE(results, QList<int>({0, -1, -1, true, false}));  // what cannot be opened just stays
    QCOMPARE(tree(m_dir->path()), QStringList({"closed/", "closed/file:abc"}));
  }

  void acrossFileSystems() {
    const QTemporaryDir other("/dev/shm/XXXXXX");
    struct stat here, there;
    if (!other.isValid() || stat(u(m_dir->path()).c_str(), &here) != 0 ||
        stat(u(other.path()).c_str(), &there) != 0 || here.st_dev == there.st_dev) {
      QSKIP("needs /dev/shm and the temporary directory on different file systems");
    }
    put(path("tree/a/b"), "b");
    put(path("tree/c"), "c");
    const ustring from = u(path("tree"));
    const ustring to = u(other.filePath("tree"));
    QCOMPARE(FSRename(from, to, false), 0);
    QVERIFY(tree(m_dir->path()).isEmpty());
    QCOMPARE(tree(other.path()), QStringList({"tree/", "tree/a/", "tree/a/b:b", "tree/c:c"}));
    // A link alone stays, quietly; in a tree it keeps the emptied tree from being removed.
    QVERIFY(QFile::link("c", other.filePath("tree/link")));
    QCOMPARE(FSRename(u(other.filePath("tree/link")), u(path("link")), false), 0);
    QVERIFY(tree(m_dir->path()).isEmpty());
    QCOMPARE(FSRename(to, from, false), -3);
    QCOMPARE(tree(other.path()), QStringList({"tree/", "tree/link@"}));
  }

 private:
  static constexpr int kRotate = 1048576;  // bytes
  static constexpr int kStamp = 16;        // bytes in front of each line

  QString path(const QString& name) const { return m_dir->filePath(name); }

  std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_APPLESS_MAIN(TestCommon)
#include "tst_common.moc"
