#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <functional>
#include <memory>
#include <thread>

#include "launcher/adapter.h"
#include "launcher/extractor.h"
#include "launcher/texts/strtab.h"
#include "lib/log.h"
#include "tests/support.h"

// Stand before the C library's for the whole program: what is unpacked here is not worth a
// disk's time, and a test looks at what is there when the barrier comes.
static std::function<int()> g_barrier;
static std::atomic<int> g_sent;  // files sent to the disk early
extern "C" {
int syncfs(int /*fd*/) noexcept { return g_barrier ? g_barrier() : 0; }
int sync_file_range(int /*fd*/, off_t /*from*/, off_t /*size*/, unsigned /*flags*/) {
  ++g_sent;
  return 0;
}
}

namespace {

struct Entry {
  QByteArray name;
  QByteArray data;
  unsigned type = AE_IFREG;
  QByteArray link = {};  // of a hard or symbolic link
};
using Entries = QVector<Entry>;
}  // namespace
Q_DECLARE_METATYPE(Entry)
namespace {

archive_entry* make_entry(const Entry& from) {
  archive_entry* const entry = archive_entry_new();
  archive_entry_set_pathname(entry, from.name.constData());
  archive_entry_set_mode(entry, from.type | (from.type == AE_IFDIR ? 0755 : 0644));
  archive_entry_set_size(entry, from.data.size());
  archive_entry_set_nlink(entry, 2);  // with the same number: cpio tells links by them
  archive_entry_set_ino64(entry, 7);
  if (from.type == AE_IFLNK) {
    archive_entry_set_symlink(entry, from.link.constData());
  } else if (!from.link.isEmpty()) {
    archive_entry_set_hardlink(entry, from.link.constData());
  }
  return entry;
}

void pack(const QString& path, const Entries& entries, int format = ARCHIVE_FORMAT_TAR_GNUTAR) {
  archive* const a = archive_write_new();
  archive_write_set_format(a, format);
  archive_write_set_bytes_in_last_block(a, 1);
  if (archive_write_open_filename(a, u(path).c_str()) != ARCHIVE_OK) qFatal("pack");
  for (const Entry& from : entries) {
    archive_entry* const entry = make_entry(from);
    if (archive_write_header(a, entry) != ARCHIVE_OK ||
        archive_write_data(a, from.data.constData(), size_t(from.data.size())) < 0) {
      qFatal("pack: %s", archive_error_string(a));
    }
    archive_entry_free(entry);
  }
  archive_write_free(a);
}

QString log_text() { return QString::fromUtf8(content("log")); }

}  // namespace

class TestExtractor : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    StrTable::InitStrTable();
    (void)archive_read_free(archive_read_new());  // loads the library, whose names these are
  }
  void init() {
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid() && QDir::setCurrent(m_dir->path()));
    QCOMPARE(Logger::Initialize(Logger::FILE_LOGGER, "log", "", 0), 0);
    m_extractor = {};
    m_extractor.SetSource("package");
    m_extractor.SetTarget("target");
  }
  void cleanup() {
    Logger::Destroy();
    g_barrier = nullptr;
  }

  void extract_data() {
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<int>("size");  // bytes the archive is cut to, 0 for none
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("written");
    const Entries three{{"a/b", "b"}, {"c", QByteArray(600, 'c')}, {"INFO", "i"}};
    const QString c(600, 'c');
    QTest::newRow("all") << three << 0 << 3 << 0 << "INFO:i a/ a/b:b c:" + c + " old:o";
    QTest::newRow("replaces") << Entries{{"old", "new"}} << 0 << 1 << 0 << "old:new";
    QTest::newRow("cut in data") << three << 1800 << 2 << -1
                                 << "a/ a/b:b c:" + c.left(264) + " old:o";
    QTest::newRow("cut in a header") << three << 1100 << 1 << -1 << "a/ a/b:b old:o";
    QTest::newRow("parent inside") << Entries{{"d/../../x", "x"}} << 0 << 1 << -1 << "old:o";
    QTest::newRow("absolute") << Entries{{"/x", "x"}} << 0 << 1 << 0 << "old:o x:x";
    QTest::newRow("target") << Entries{{".", "", AE_IFDIR}} << 0 << 1 << 0 << "old:o";
  }
  void extract() {
    QFETCH(Entries, entries);
    QFETCH(int, size);
    QFETCH(int, result);
    put("target/old", "o");
    pack("package", entries);
    if (size > 0) QVERIFY(QFile::resize("package", size));
    Extractor extractor;
    extractor.SetSource("package");
    QVERIFY(extractor.Extract() == -1 && extractor.Count() == -1);
    extractor.SetTarget("target");
    QTEST(extractor.Count(), "count");
    QSignalSpy reports(&Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    QSignalSpy texts(&Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText);
    QCOMPARE(extractor.Extract(), result);
    QCOMPARE(texts.size(), 1);
    QCOMPARE(texts[0][0].toString(), QString("Quillmere is initializing..."));
    for (int i = 0; i < reports.size(); ++i) {
      QCOMPARE(reports[i], QVariantList({extractor.Count(), i + 1}));
    }
    if (result == 0) QCOMPARE(reports.size(), entries.size());
    QTEST(tree("target").join(' '), "written");
    QVERIFY(!QFileInfo::exists("x"));
  }

  // An entry that would take the place of the target, which is empty when an upgrade begins.
  void replacedTarget() {
    for (const char* name : {".", "./", "/", "//."}) {
      QVERIFY(QDir().mkpath("target"));
      pack("package", {{name, "", AE_IFLNK, "/"}, {"a", "a"}});
      QVERIFY2(m_extractor.Extract() == -1 && tree(".").contains("target/"), name);
    }
  }

  // What the reader only warns of, an attribute that it cannot read, ends the unpacking.
  void warning() {
    pack("package", {{"a", "a"}, {QByteArray(150, 'n'), "n"}}, ARCHIVE_FORMAT_TAR_PAX_INTERCHANGE);
    put("package", content("package").replace("160 path", "x60 path"));
    QCOMPARE(m_extractor.Count(), 1);
    QCOMPARE(m_extractor.Extract(), -1);
    QCOMPARE(tree("target"), QStringList("a:a"));
    QVERIFY(log_text().contains("archive_read_next_header failed: 'Ignoring malformed"));
  }

  // "secret" is a file of the user's in the working directory, where links are counted from.
  void hardLinks_data() {
    QTest::addColumn<QString>("link");
    QTest::addColumn<int>("result");
    const auto row = [](const char* link, int result) { QTest::newRow(link) << link << result; };
    row("secret", -1);
    row("./secret", -1);
    row("%1/secret", -1);
    row("target/../secret", -1);
    row("targets/secret", -1);
    row("target/way/secret", -1);
    row("target/missing/first", -1);
    row("target/", -1);
    row("target/.", -1);
    row("target", -1);
    row("target/first", 0);
    row("%1/target//d/first", 0);
    row("way/target/first", -1);  // the library would remove the link on the way
  }
  void hardLinks() {
    QFETCH(QString, link);
    put("secret", "s");
    put("targets/secret", "s");
    QVERIFY(QFile::link(".", "way"));
    if (link.contains('%')) link = link.arg(m_dir->path());
    pack("package", {{"first", "f"},
                     {"d/first", "f"},
                     {"way", "", AE_IFLNK, ".."},
                     {"second", "", AE_IFREG, link.toUtf8()}});
    QTEST(m_extractor.Extract(), "result");
    QTEST(content("target/second") == "f" ? 0 : -1, "result");
    QTEST(log_text().contains("entry 'second' is a hard link to") ? -1 : 0, "result");
    struct stat info;
    QVERIFY(stat("secret", &info) == 0 && info.st_nlink == 1 && QFileInfo("way").isSymLink());
  }
  // Here a link brings its data along, which would go through it into the user's file.
  void hardLinkWithData() {
    put("secret", "s");
    pack("package", {{"secret", ""}, {"second", "data"}}, ARCHIVE_FORMAT_CPIO_SVR4_NOCRC);
    QCOMPARE(m_extractor.Extract(), -1);
    QCOMPARE(content("secret"), QByteArray("s"));
    QCOMPARE(tree("target"), QStringList("secret:"));
  }

  // The last entry is not begun before everything else has been brought to the disk.
  void barrier() {
    pack("package", {{"a", "a"}, {"b", "b"}, {"INFO", "i"}});
    for (const int result : {0, -1}) {
      QStringList found;
      g_barrier = [&] { return found = tree("target"), result; };
      QCOMPARE(m_extractor.Extract(), result);
      QCOMPARE(found, QStringList({"a:a", "b:b"}));
      QCOMPARE(QFileInfo::exists("target/INFO"), result == 0);
      QVERIFY(QDir("target").removeRecursively());
    }
  }

  // A package that is replaced between counting and unpacking, for which a FIFO stands here.
  void replacedPackage() {
    pack("counted", {{"a", "a"}, {"INFO", "i"}});
    pack("unpacked", {{"a", "a"}, {"b", "b"}, {"c", "c"}, {"INFO", "i"}});
    QCOMPARE(mkfifo("package", 0600), 0);
    const int watch = inotify_init();
    QVERIFY(inotify_add_watch(watch, "package", IN_CLOSE_NOWRITE) >= 0);
    std::thread writer([watch] {
      put("package", content("counted"));
      inotify_event counted;
      if (read(watch, &counted, sizeof counted) > 0) put("package", content("unpacked"));
    });
    QStringList found;
    g_barrier = [&] { return found = tree("target"), 0; };
    QSignalSpy reports(&Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    const int result = m_extractor.Extract();
    writer.join();
    close(watch);
    QCOMPARE(result, 0);
    QCOMPARE(reports.last(), QVariantList({2, 4}));
    QCOMPARE(found, QStringList({"a:a", "b:b", "c:c"}));
  }

  // Large files go to the disk while the next are unpacked; a slow package waits for that.
  void earlySync() {
    const QByteArray large(1048576, 'x');
    pack("package", {{"a", large}, {"small", "s"}, {"b", large}, {"c", large}, {"INFO", "i"}});
    g_sent = 0;
    bool in_time = false;
    connect(&Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, this,
            [&](int, int done) {
              in_time |= done == 4 && QTest::qWaitFor([] { return g_sent == 2; });
            });
    const int result = m_extractor.Extract();
    Notify_Adapter::GetInstance().disconnect(this);
    QVERIFY(result == 0 && in_time);
  }

  void writeFails() {
    pack("package", {{"a", QByteArray(100000, 'a')}});
    rlimit limit;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit low{50000, limit.rlim_max};
    signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &low), 0);
    const int result = m_extractor.Extract();
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    QCOMPARE(result, -1);
    QVERIFY2(log_text().contains(QString("(%1)'").arg(strerror(EFBIG))), qPrintable(log_text()));
  }

  void list() {
    pack("package", {{"a/b", "b"}, {"INFO", "i"}});
    const int before = dup(STDOUT_FILENO);
    fflush(stdout);
    const int file = open("listed", O_WRONLY | O_CREAT, 0600);
    dup2(file, STDOUT_FILENO);
    m_extractor.SetTarget("");  // is logged and does not matter
    const int result = m_extractor.List();
    m_extractor.SetSource("missing");
    const int missing = m_extractor.List();
    fflush(stdout);
    dup2(before, STDOUT_FILENO);
    close(before);
    close(file);
    QVERIFY(result == 0 && missing == -1);
    QCOMPARE(content("listed"), QByteArray("a/b\nINFO\n"));
    QCOMPARE(log_text().count("Invalid argument"), 2);
  }

  void copyData_data() {
    QTest::addColumn<int>("cut");   // bytes off the archive
    QTest::addColumn<int>("room");  // bytes that the entry may take at the other end
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("logged");
    QTest::newRow("whole") << 0 << 60000 << 0 << "";
    QTest::newRow("reader fails") << 20000 << 60000 << -1 << "archive_read_data_block failed: 'Tr";
    QTest::newRow("writer fails") << 0 << 100 << -1 << "archive_write_data_block failed: 'To";
  }
  void copyData() {
    QFETCH(int, cut);
    QFETCH(int, room);
    QFETCH(QString, logged);
    const Entry from{"a", QByteArray(60000, 'a')};
    pack("package", {from});
    QVERIFY(QFile::resize("package", QFileInfo("package").size() - cut));
    archive* const reader = archive_read_new();
    archive* const writer = archive_write_disk_new();
    QVERIFY(m_extractor.copy_data(nullptr, writer) == -1 &&
            m_extractor.copy_data(reader, nullptr) == -1);
    (void)archive_read_support_format_all(reader);
    QCOMPARE(archive_read_open_filename(reader, "package", 10240), ARCHIVE_OK);
    archive_entry* entry = nullptr;
    QCOMPARE(archive_read_next_header(reader, &entry), ARCHIVE_OK);
    archive_entry* const to = make_entry(from);
    archive_entry_set_size(to, room);
    QCOMPARE(archive_write_header(writer, to), ARCHIVE_OK);
    QTEST(m_extractor.copy_data(reader, writer), "result");
    archive_entry_free(to);
    archive_read_free(reader);
    archive_write_free(writer);
    QCOMPARE(content("a") == from.data, logged.isEmpty());
    QVERIFY(log_text().contains(logged));
  }

  // Damage anywhere in a package of the default kind makes unpacking fail, or does not change a
  // byte of the copy: bits without a meaning, and what is behind INFO. The reader takes 128 KiB
  // at once; the client's size puts the end of such a piece where that could hide damage.
  void damage_data() {
    QTest::addColumn<int>("before");  // bytes of the archive from INFO's header to such an end
    QTest::newRow("piece ends behind INFO") << 1024;
    QTest::newRow("piece ends in the end marks") << 1536;
    QTest::newRow("piece ends behind everything") << 2048;
  }
  void damage() {
    QFETCH(int, before);
    constexpr int kHeaders = 8 * 512;  // what is in front of INFO but lib/data's contents
    QByteArray data(262144 - kHeaders - before, '\0');
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32*>(data.data()), data.size() / 4);
    put("client/lib/data", data);
    for (const char* program : {"client/bin/cloud-ui", "client/package/start-stop"}) {
      put(program, "#!/bin/sh\n");
      QCOMPARE(chmod(program, 0755), 0);
    }
    QCOMPARE(QProcess::execute(MAKE_PACKAGE, {"--client", "client", "--build", "7", "--root", "."}),
             0);
    m_extractor.SetSource("package/quillmere.qpk");
    QCOMPARE(m_extractor.Extract(), 0);
    const QByteArray info = content("target/INFO");
    QVERIFY(content("target/lib/data") == data && info.contains("build_version=7"));

    const QByteArray whole = content("package/quillmere.qpk");
    QFile file("package/quillmere.qpk");
    QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    const int end = Frames(whole).end()[-2];  // where the last frame begins, that of the end marks
    int tries = 0;
    int accepted = 0;  // in front of it
    // Extracts what `file` holds now, changed from `at` on; false when damage has been unpacked as
    // if nothing were.
    const auto is_safe = [&](int at) {
      ++tries;
      if (m_extractor.Extract() != 0) return true;
      accepted += at < end;
      return content("target/lib/data") == data && content("target/INFO") == info;
    };
    for (const auto& [at, bit] : DamagedBits(whole)) {
      QVERIFY(file.seek(at) && file.putChar(char(whole[at] ^ (1 << bit))));
      QVERIFY2(is_safe(at),
               qPrintable(QString("byte %1 of %2, bit %3").arg(at).arg(whole.size()).arg(bit)));
      QVERIFY(file.seek(at) && file.putChar(whole[at]));
    }
    QVERIFY2(accepted <= 2 * 9, qPrintable(QString::number(accepted)));
    accepted = 0;
    QVector<int> cuts = Frames(whole);
    for (int size = cuts.last() - 1; size > 0; size -= size > 260000 ? 97 : 3999) cuts += size;
    for (const int at : Frames(whole)) cuts += {at - 1, at + 1};
    for (const int at : cuts) {
      if (at < 0 || at >= whole.size()) continue;
      put(file.fileName(), whole.left(at));
      QVERIFY2(is_safe(at) && accepted == 0, qPrintable(QString("cut to %1").arg(at)));
    }
    QVERIFY2(tries > 500, qPrintable(QString::number(tries)));
  }

 private:
  // Where the compressed frames begin, and the end of the last.
  static QVector<int> Frames(const QByteArray& whole) {
    QVector<int> frames;
    for (int at = 0; (at = whole.indexOf("\x28\xb5\x2f\xfd", at)) >= 0; ++at) frames += at;
    return frames << whole.size();
  }

  // Every bit of the frames' headers and ends, and one of each so many other bytes.
  static QVector<std::pair<int, int>> DamagedBits(const QByteArray& whole) {
    const QVector<int> frames = Frames(whole);
    QVector<std::pair<int, int>> bits;
    for (int i = 0; i + 1 < frames.size(); ++i) {
      const int step = i == 0 ? 4001 : 23;
      for (int at = frames[i]; at < frames[i + 1]; ++at) {
        const bool every = at < frames[i] + 9 || at >= frames[i + 1] - 4;
        if (every || at % step == 0) {
          for (int bit = every ? 0 : at % 8; bit <= (every ? 7 : at % 8); ++bit)
            bits.append({at, bit});
        }
      }
    }
    return bits;
  }

  std::unique_ptr<QTemporaryDir> m_dir;
  Extractor m_extractor;
};

QTEST_GUILESS_MAIN(TestExtractor)

#include "tst_launcher_extractor.moc"
