#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "lib/config.h"
#include "lib/file-op.h"
#include "lib/log.h"
#include "lib/tmp_name_gen.h"
#include "tests/support.h"

using Act = int (*)();
Q_DECLARE_METATYPE(Act)

namespace {

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
void populate() {
  put("file", "abc");
  put("dir/inner", "x");
  QVERIFY(QFile::link("/dev/full", "full") && QFile::link("dir", "to-dir"));
  QCOMPARE(mkfifo("fifo", 0600), 0);
}

}  // namespace

// The clock that seeds the names, fixed so that they can be foretold.
extern "C" int gettimeofday(timeval* tv, void*) noexcept {
  *tv = {1234567890, 42};
  return 0;
}

// Each test starts in an empty directory.
class TestCommon : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid() && QDir::setCurrent(m_dir->path()));
    QCOMPARE(open_log("/dev/null", "", 0), 0);  // for the errors that the tests provoke
  }
  void cleanup() { Logger::Destroy(); }

  void names() {
    TmpNameGen& generator = TmpNameGen::getInstance();
    // Computed from the published cipher, its counters started anew for each name.
    QCOMPARE(text(generator.getTmpName()), QString("3LpZWRVi"));
    QCOMPARE(text(generator.getTmpName()), QString("5qFNOO8w"));
    QCOMPARE(text(generator.getTmpPath("/a/")), QString("/a//MED8kDsC"));
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
    QVERIFY(config.read("") == -1 && config.read("missing") == -1);
    QCOMPARE(config.read("f"), store.isEmpty() ? -1 : 0);
    QString read;
    for (const auto& [key, value] : config) read += text(key) + '=' + text(value) + ';';
    QCOMPARE(read, store);
    QVERIFY(config.read(".") == -1 && config.begin() == config.end());
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
    QVERIFY(open_log("", "", 2) == -1 && open_log("missing/log", "", 2) == -1);
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
    row("remove/missing", 0, "", [] { return FSRemove("missing", false); });
    row("remove/link only", 0, "-to-dir@", [] { return FSRemove("to-dir", false); });
    row("traverse/refused", -2, "", [] { return TraverseDir(".", refuse, nullptr); });
    row("sync/missing", -1, "", [] { return FSSync("missing"); });
  }
  void status() {
    QFETCH(Act, act);
    populate();
    const QStringList before = tree(".");
    QTEST(act(), "result");
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
  }

  void exactMode() {
    const mode_t umaskBefore = umask(027);
    const int result = FSMKDirP("a", nullptr, false, 0707);
    QCOMPARE(umask(umaskBefore), mode_t(027));
    FILE_INFO info;
    QVERIFY(result == 0 && FSStat("a", info, false) == 0 && (info.mode & 07777) == 0707);
  }

  void acrossFileSystems() {
    const QTemporaryDir other("/dev/shm/XXXXXX");
    const ustring there = u(other.filePath("tree"));
    put("tree/a/b", "b");
    put("tree/c", "c");
    if (!other.isValid() || rename("tree", there.c_str()) == 0 || errno != EXDEV) {
      QSKIP("needs /dev/shm and the temporary directory on different file systems");
    }
    QCOMPARE(FSRename("tree", there, false), 0);
    QVERIFY(tree(".").isEmpty());
    QCOMPARE(tree(other.path()), QStringList({"tree/", "tree/a/", "tree/a/b:b", "tree/c:c"}));
    // A link stays behind and keeps the emptied tree from being removed.
    QVERIFY(QFile::link("c", other.filePath("tree/link")));
    QCOMPARE(FSRename(there, "tree", false), -3);
    QCOMPARE(tree(other.path()), QStringList({"tree/", "tree/link@"}));
  }

 private:
  static constexpr int kRotate = 1048576;  // bytes
  static constexpr int kStamp = 16;        // bytes in front of each line

  std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_APPLESS_MAIN(TestCommon)
#include "tst_lib.moc"
