#include <QProcess>
#include <QtTest>

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <atomic>
#include <functional>
#include <optional>
#include <tuple>

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

void pack(const QString& path, const Entries& entries, int format = ARCHIVE_FORMAT_TAR_GNUTAR) {
  archive* const a = archive_write_new();
  archive_write_set_format(a, format);
  archive_write_set_bytes_in_last_block(a, 1);
  if (archive_write_open_filename(a, u(path).c_str()) != ARCHIVE_OK) qFatal("pack");
  for (const Entry& from : entries) {
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
    m_home.emplace();
    m_extractor.SetSource("package");
    m_extractor.SetTarget("target");
  }
  void cleanup() {
    m_home.reset();
    g_barrier = nullptr;
  }

  void extract() {
    const Entries three{{"a/b", "b"}, {"c", QByteArray(600, 'c')}, {"INFO", "i"}};
    const QString c(600, 'c');
    // The archive, the bytes it is cut to (0 for none), and what becomes of it.
    const std::tuple<Entries, int, int, int, QString> rows[] = {
        {three, 0, 3, 0, "INFO:i a/ a/b:b c:" + c + " old:o"},
        {{{"old", "new"}}, 0, 1, 0, "old:new"},
        {three, 1800, 2, -1, "a/ a/b:b c:" + c.left(264) + " old:o"},
        {three, 1100, 1, -1, "a/ a/b:b old:o"},
        {{{"d/../../x", "x"}}, 0, 1, -1, "old:o"},
        {{{"/x", "x"}}, 0, 1, 0, "old:o x:x"},
        {{{".", "", AE_IFDIR}}, 0, 1, 0, "old:o"}};
    Extractor incomplete;
    incomplete.SetSource("package");
    QVERIFY(incomplete.Extract() == -1 && incomplete.Count() == -1);
    for (const auto& [entries, size, count, result, written] : rows) {
      put("target/old", "o");
      pack("package", entries);
      if (size > 0) QVERIFY(QFile::resize("package", size));
      QCOMPARE(m_extractor.Count(), count);
      QSignalSpy reports(&m_notify, &Notify_Adapter::sigUpdateProgress);
      QSignalSpy texts(&m_notify, &Notify_Adapter::sigUpdateDialogText);
      QCOMPARE(m_extractor.Extract(), result);
      QCOMPARE(texts, QList({QVariantList({"Quillmere is initializing..."})}));
      for (int i = 0; i < reports.size(); ++i) QCOMPARE(reports[i], QVariantList({count, i + 1}));
      QVERIFY(result != 0 || reports.size() == entries.size());
      QCOMPARE(tree("target").join(' '), written);
      QVERIFY(!QFileInfo::exists("x") && QDir("target").removeRecursively());
    }
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
  void hardLinks() {
    const std::pair<const char*, bool> rows[] = {
        {"secret", false},          {"./secret", false},
        {"%1/secret", false},       {"target/../secret", false},
        {"targets/secret", false},  {"target/way/secret", false},
        {"target/", false},         {"target/missing/first", false},
        {"target/.", false},        {"target", false},
        {"target/first", true},     {"%1/target//d/first", true},
        {"way/target/first", false}};  // the library would remove the link on the way
    put("secret", "s");
    put("targets/secret", "s");
    QVERIFY(QFile::link(".", "way"));
    for (const auto& [name, taken] : rows) {
      const QByteArray link = QByteArray(name).replace("%1", m_home->path().toUtf8());
      pack("package", {{"first", "f"},
                       {"d/first", "f"},
                       {"way", "", AE_IFLNK, ".."},
                       {"second", "", AE_IFREG, link}});
      QVERIFY2((m_extractor.Extract() == 0) == taken, name);
      QVERIFY2((content("target/second") == "f") == taken, name);
      struct stat info;
      QVERIFY2(stat("secret", &info) == 0 && info.st_nlink == 1, name);
      QVERIFY2(QFileInfo("way").isSymLink() && QDir("target").removeRecursively(), name);
    }
    QCOMPARE(log_text().count("entry 'second' is a hard link to"), 11);
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

  // A package that has more entries than were counted, since it is replaced in its place.
  void replacedPackage() {
    const Entry first{"a", QByteArray(1048576 - 512, 'a')};
    pack("longer", {first, {"b", "b"}, {"c", "c"}, {"INFO", "i"}});
    pack("package", {first, {"INFO", "i"}});
    QStringList found;
    g_barrier = [&] { return found = QDir("target").entryList(QDir::Files), 0; };
    QObject here;
    connect(&m_notify, &Notify_Adapter::sigUpdateProgress, &here, [](int, int done) {
      if (done == 1) put("package", content("longer"));
    });
    QSignalSpy reports(&m_notify, &Notify_Adapter::sigUpdateProgress);
    QCOMPARE(m_extractor.Extract(), 0);
    QCOMPARE(reports.last(), QVariantList({2, 4}));
    QCOMPARE(found, QStringList({"a", "b", "c"}));
  }

  // Large files go to the disk while the next are unpacked; a slow package waits for that.
  void earlySync() {
    const QByteArray large(1048576, 'x');
    pack("package", {{"a", large}, {"small", "s"}, {"b", large}, {"c", large}, {"INFO", "i"}});
    g_sent = 0;
    bool in_time = false;
    QObject here;
    connect(&m_notify, &Notify_Adapter::sigUpdateProgress, &here, [&](int, int done) {
      in_time |= done == 4 && QTest::qWaitFor([] { return g_sent == 2; });
    });
    QVERIFY(m_extractor.Extract() == 0 && in_time);
  }

  void reasonIsLogged() {
    put("target/a/in the way", "");
    pack("package", {{"a", "a"}});
    QCOMPARE(m_extractor.Extract(), -1);
    QVERIFY2(log_text().contains(QString("(%1)'").arg(strerror(ENOTEMPTY))),
             qPrintable(log_text()));
  }

  void list() {
    pack("package", {{"a/b", "b"}, {"INFO", "i"}});
    m_extractor.SetTarget("");  // is logged and does not matter
    FILE* const screen = stdout;
    stdout = fopen("listed", "w");
    const int result = m_extractor.List();
    (void)fclose(stdout);
    stdout = screen;
    QCOMPARE(result, 0);
    QCOMPARE(content("listed"), QByteArray("a/b\nINFO\n"));
    m_extractor.SetSource("missing");
    QCOMPARE(m_extractor.List(), -1);
    QCOMPARE(log_text().count("Invalid argument"), 2);
  }

  void copyData() {
    const std::tuple<int, int, const char*> rows[] = {
        // bytes cut off, room, logged
        {0, 60000, nullptr},
        {20000, 60000, "archive_read_data_block failed: 'Tr"},
        {0, 100, "archive_write_data_block failed: 'To"}};
    for (const auto& [cut, room, logged] : rows) {
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
      archive_entry_set_size(entry, room);
      QCOMPARE(archive_write_header(writer, entry), ARCHIVE_OK);
      QCOMPARE(m_extractor.copy_data(reader, writer), logged ? -1 : 0);
      archive_read_free(reader);
      archive_write_free(writer);
      QCOMPARE(content("a") == from.data, !logged);
      QVERIFY(!logged || log_text().contains(logged));
    }
  }

  // Damage anywhere in a package of the default kind makes unpacking fail, or does not change a
  // byte of the copy: bits without a meaning, and what is behind INFO. The reader takes 128 KiB
  // at once; the client's size puts the end of such a piece where that could hide damage.
  void damage_data() {
    QTest::addColumn<int>("before");  // bytes of the archive from INFO's header to such an end
    for (const int before : {1024, 1536, 2048})  // behind INFO, in the end marks, behind those
      QTest::newRow(qPrintable(QString::number(before))) << before;
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
    const QByteArray whole = content("package/quillmere.qpk");
    QVector<int> frames;  // where the compressed pieces begin, and the end of the last
    for (int at = 0; (at = whole.indexOf("\x28\xb5\x2f\xfd", at)) >= 0; ++at) frames += at;
    frames += whole.size();
    const auto is_whole = [&] {
      return content("target/lib/data") == data &&
             content("target/INFO").contains("build_version=7\n");
    };
    int accepted = 0;  // packages with damage in front of the end marks
    const auto is_safe = [&](int at, const QByteArray& damaged) {
      put("damaged", damaged);
      if (m_extractor.Extract() != 0) return true;
      accepted += at < frames.end()[-2];
      return is_whole();
    };
    m_extractor.SetSource("damaged");
    QVERIFY(is_safe(whole.size(), whole) && is_whole());
    for (int i = 0; i + 1 < frames.size(); ++i) {
      for (int at = frames[i]; at < frames[i + 1]; ++at) {
        const bool edge = at < frames[i] + 9 || at >= frames[i + 1] - 4;
        if (!edge && at % (i == 0 ? 4001 : 23) != 0) continue;
        for (int bit = edge ? 0 : at % 8; bit <= (edge ? 7 : at % 8); ++bit) {
          QByteArray damaged = whole;
          damaged[at] = char(whole[at] ^ (1 << bit));
          QVERIFY2(is_safe(at, damaged), qPrintable(QString("byte %1, bit %2").arg(at).arg(bit)));
        }
      }
    }
    QVERIFY2(accepted <= 2 * 9, qPrintable(QString::number(accepted)));  // bits without a meaning
    accepted = 0;
    for (const int frame : frames) {
      for (int at = qMax(0, frame - 1); at < qMin(frame + 2, whole.size()); ++at)
        QVERIFY2(is_safe(at, whole.left(at)) && accepted == 0, qPrintable(QString::number(at)));
    }
  }

 private:
  std::optional<TestHome> m_home;
  Extractor m_extractor;
  Notify_Adapter& m_notify = Notify_Adapter::GetInstance();
};

QTEST_GUILESS_MAIN(TestExtractor)

#include "tst_launcher_extractor.moc"
