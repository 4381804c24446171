#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <archive.h>
#include <archive_entry.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <thread>

#include "launcher/adapter.h"
#include "launcher/extractor.h"
#include "launcher/launcher.h"
#include "launcher/linux/package_info.h"
#include "launcher/texts/strtab.h"
#include "lib/log.h"
#include "tests/support.h"

namespace {

// Counts how deep calls queued for a Launcher are delivered inside one another.
class Application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override {
    const bool counts = event->type() == QEvent::MetaCall && qobject_cast<Launcher*>(receiver);
    depth += counts;
    deepest = std::max(depth, deepest);
    const bool result = QApplication::notify(receiver, event);
    depth -= counts;
    return result;
  }
  int depth = 0;
  int deepest = 0;
};

// The service with its records open, and with a package that holds one file or none.
class TestService : public LinuxService {
 public:
  using LinuxService::source_version;
  using LinuxService::target_version;
  int ExtractPackage() override {
    ++extractions;
    put(QString::fromUtf8(per_user_install_path.c_str()) + "/new", "n");
    return extract_result;
  }
  int extract_result = 0;
  int extractions = 0;
};

struct Entry {
  const char* name;
  QByteArray data;
  const char* hardlink = nullptr;
};
using Entries = QVector<Entry>;

void pack(const QString& path, const Entries& entries) {
  archive* const a = archive_write_new();
  archive_write_set_format_ustar(a);
  archive_write_set_bytes_in_last_block(a, 1);
  if (archive_write_open_filename(a, u(path).c_str()) != ARCHIVE_OK) qFatal("pack");
  for (const Entry& e : entries) {
    archive_entry* const entry = archive_entry_new();
    archive_entry_set_pathname(entry, e.name);
    archive_entry_set_filetype(entry, AE_IFREG);
    archive_entry_set_perm(entry, 0644);
    archive_entry_set_size(entry, e.data.size());
    if (e.hardlink) archive_entry_set_hardlink(entry, e.hardlink);
    if (archive_write_header(a, entry) != ARCHIVE_OK) qFatal("pack");
    if (archive_write_data(a, e.data.constData(), size_t(e.data.size())) < 0) qFatal("pack");
    archive_entry_free(entry);
  }
  archive_write_free(a);
}

}  // namespace

Q_DECLARE_METATYPE(Entry)

class TestLauncher : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    QVERIFY(qputenv("HOME", m_dir->path().toUtf8()) && QDir::setCurrent(m_dir->path()));
    // Errors are logged; what a test provokes is not worth printing.
    QCOMPARE(Logger::Initialize(Logger::FILE_LOGGER, "/dev/null", "", 0), 0);
  }
  void cleanup() { Logger::Destroy(); }

  void dialog() {
    Launcher launcher;
    ProcessingProgressDialog* const dialog = findDialog();
    QVERIFY(dialog && !dialog->isVisible());
    QCOMPARE(dialog->windowTitle(), QString("Parvenor Quillmere"));
    QCOMPARE(dialog->labelText(), QString("Quillmere is initializing..."));
    QCOMPARE(int(dialog->windowFlags() & ~Qt::Window),
             int(Qt::WindowTitleHint | Qt::WindowSystemMenuHint));
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QCOMPARE(dialog->font().family(), QString("Arial"));
    QCOMPARE(dialog->styleSheet(), QString(" QProgressDialog { background-color: WhiteSmoke; \n"
                                           "  vertical-align: middle } "));
    QVERIFY(dialog->minimum() == 0 && dialog->maximum() == 100 && dialog->value() == 0);
    QVERIFY(!dialog->autoReset() && dialog->findChildren<QPushButton*>().isEmpty());

    launcher.ShowMsgBox();
    QTRY_VERIFY(dialog->isVisible());
    QCOMPARE(dialog->width(), 400);
    launcher.SetLabelText(QString(300, 'w'));
    dialog->adjustSize();
    QCOMPARE(dialog->width(), 400);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QCloseEvent close;
    QApplication::sendEvent(dialog, &close);
    QVERIFY(!close.isAccepted() && !dialog->close() && dialog->isVisible());

    QSignalSpy quit(qApp, &QCoreApplication::aboutToQuit);
    QTimer::singleShot(0, &launcher, &Launcher::LaunchDone);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(dialog->value() == 100 && !dialog->isVisible() && quit.size() == 1);
  }

  void progress() {
    Launcher launcher;
    for (const QVector<int>& row : QVector<QVector<int>>{{3, 1, 33}, {200, 50, 25}, {1000, 999, 99}}) {
      std::thread([&row] {
        Notify_Adapter::GetInstance().UpdateProgress(row[0], row[1]);
        Notify_Adapter::GetInstance().UpdateDialogText(QString::number(row[2]));
      }).join();
      QVERIFY(findDialog()->value() != row[2]);  // queued, not delivered on the other thread
      QTRY_COMPARE(findDialog()->labelText(), QString::number(row[2]));
      QCOMPARE(findDialog()->value(), row[2]);
    }
  }

  // A visible dialog delivers waiting calls while it repaints: were it to repaint for each call,
  // the calls of a large package would pile up on the stack.
  void flood() {
    constexpr int kCalls = 100000;
    auto* const application = static_cast<Application*>(qApp);
    Launcher launcher;
    launcher.ShowMsgBox();
    // What the dialog does by itself after four seconds; only then does it deliver calls.
    QVERIFY(QMetaObject::invokeMethod(findDialog(), "forceShow"));
    QTRY_VERIFY(findDialog()->isVisible());
    application->deepest = 0;
    std::thread([] {
      for (int i = 1; i <= kCalls; ++i) Notify_Adapter::GetInstance().UpdateProgress(kCalls, i);
    }).join();
    QTRY_COMPARE(findDialog()->value(), 100);
    QVERIFY2(application->deepest <= 101, qPrintable(QString::number(application->deepest)));
  }

  void paths() {
    const QString home = m_dir->filePath("a b ü");
    QVERIFY(qputenv("HOME", home.toUtf8()));
    QCOMPARE(Service::GetUserInstallPath(), u(home));
    QCOMPARE(Service::GetUserQuillmereInstallPath(), u(home + "/.Quillmere"));
    QCOMPARE(Service::GetUserQuillmereAppInstallPath(), u(home + "/.Quillmere/app"));
    QCOMPARE(Service::GetUserQuillmereDataInstallPath(), u(home + "/.Quillmere/data"));
    const QString above = QFileInfo(QCoreApplication::applicationDirPath()).path();
    QCOMPARE(Service::GetRootQuillmereInstallPath(), u(above));
    QCOMPARE(Service::GetRootQuillmereResourceInstallPath(), u(above));
    const PackageInfo info;
    QCOMPARE(info.GetImageFolder(), ustring("/opt/Parvenor/Quillmere/images"));
    QCOMPARE(info.GetLogFolder(), u(home + "/.Quillmere"));
    QCOMPARE(info.GetLogLevelPath(), ustring("/opt/Parvenor/Quillmere/log/launcher.debug"));
    QCOMPARE(info.GetPackagePath(), ustring("/opt/Parvenor/Quillmere/package/quillmere.qpk"));
    QCOMPARE(info.GetConfigFolder(), ustring("/opt/Parvenor/Quillmere/conf"));
  }

  void version_data() {
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QString>("record");
    QTest::newRow("all") << QByteArray("[Version]\nmajor_version=3\nminor_version=\"1\"\n"
                                       "build_version=1234\nicon_overlay_version=7\n")
                         << "3 1 1234 7";
    QTest::newRow("missing file") << QByteArray() << "- - - -";
    QTest::newRow("missing keys") << QByteArray("[Version]\nbuild_version=1\n") << "- - 1 -";
    QTest::newRow("empty key") << QByteArray("[Version]\nmajor_version=\n") << " - - -";
    QTest::newRow("other group") << QByteArray("build_version=1\n[Other]\nmajor_version=2\n")
                                 << "- - - -";
    QTest::newRow("malformed") << QByteArray("\0\xff[[Version\nbuild_version=1\n]=\n", 31)
                               << "- - - -";
  }
  void version() {
    QFETCH(QByteArray, info);
    TestService service;
    for (auto* v : {&service.source_version, &service.target_version}) *v = {"-", "-", "-", "-"};
    const QString packaged = QString::fromUtf8(Service::GetRootQuillmereInstallPath().c_str()) + "/INFO";
    for (const QString& path : {app() + "/INFO", packaged}) if (!info.isEmpty()) put(path, info);
    service.PreUpgrade();
    QFile::remove(packaged);
    for (const auto* v : {&service.source_version, &service.target_version}) {
      QTEST(QString::fromUtf8((v->major_version + " " + v->minor_version + " " +
                               v->build_version + " " + v->icon_overlay_version).c_str()), "record");
    }
  }

  void decision_data() {
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("client");
    QTest::addColumn<bool>("needed");
    QTest::newRow("higher") << "1234" << "1235" << true << true;
    QTest::newRow("more digits") << "999" << "1000" << true << true;
    QTest::newRow("same") << "1234" << "1234" << true << false;
    QTest::newRow("lower") << "1234" << "1200" << true << false;
    QTest::newRow("no source") << "" << "1" << true << true;
    QTest::newRow("no target") << "1" << "" << true << false;
    QTest::newRow("no numbers") << "x" << "y" << true << false;
    QTest::newRow("no client") << "1234" << "1234" << false << true;
  }
  void decision() {
    QFETCH(QString, source);
    QFETCH(QString, target);
    QFETCH(bool, client);
    TestService service;
    service.source_version.build_version = u(source);
    service.target_version.build_version = u(target);
    if (client) put(app() + "/bin/cloud-ui", "");
    QTEST(service.IsNeedUpgrade(), "needed");
  }

  void prepare_data() {
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<int>("extracted");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("after");
    const QStringList fresh{"app/", "app/new:n"};
    const QStringList stale{"app_tmp/x", "app_tmp1/x"};
    QTest::newRow("first") << QStringList() << 0 << 0 << fresh;
    QTest::newRow("first, stale backup") << QStringList{"app_tmp/x"} << 0 << 0 << fresh;
    QTest::newRow("first fails") << QStringList() << -1 << -1 << fresh;
    QTest::newRow("replaces") << QStringList{"app/INFO", "app/old"} << 0 << 0 << fresh;
    QTest::newRow("stale backups") << (stale + QStringList{"app/old"}) << 0 << 0 << fresh;
    QTest::newRow("later backups stay") << QStringList{"app/old", "app_tmp1/x"} << 0 << 0
                                        << (fresh + QStringList{"app_tmp1/", "app_tmp1/x:"});
    QTest::newRow("rolls back") << (stale + QStringList{"app/INFO", "app/old"}) << -1 << -1
                                << QStringList{"app/", "app/INFO:", "app/old:", "app_tmp/",
                                               "app_tmp/x:", "app_tmp1/", "app_tmp1/x:"};
    QTest::newRow("no name left") << taken() << 0 << -1 << QStringList();
  }
  void prepare() {
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);
    QFETCH(int, extracted);
    const QString home = m_dir->filePath(".Quillmere");
    for (const QString& path : before) put(home + '/' + path, "");
    TestService service;
    service.extract_result = extracted;
    const bool blocked = after.isEmpty();
    if (blocked) after = tree(home);
    QTEST(service.PrepareUserEnv(), "result");
    QCOMPARE(tree(home), after);
    QCOMPARE(service.extractions, blocked ? 0 : 1);
  }

  void copyPath_data() {
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("copied");
    QTest::newRow("file") << "a/f" << "new" << 0 << QStringList{"new:f"};
    QTest::newRow("file fails") << "a/f" << "no/new" << 0 << QStringList();
    QTest::newRow("missing") << "missing" << "new" << -1 << QStringList();
    QTest::newRow("below a file") << "a/f/x" << "new" << -1 << QStringList();
    QTest::newRow("tree") << "a" << "new/b" << 0
                          << QStringList{"new/", "new/b/", "new/b/d/", "new/b/d/g:g", "new/b/f:f"};
    QTest::newRow("merge") << "a" << "full" << 0 << QStringList{"full/d/g:g", "full/f:f"};
    QTest::newRow("over a file") << "a" << "a/f" << -1 << QStringList();
    QTest::newRow("child fails") << "a/d" << "bad" << -1 << QStringList();
  }
  void copyPath() {
    QFETCH(QString, from);
    QFETCH(QString, to);
    for (const char* path : {"a/f", "a/d/g"}) put(m_dir->filePath(path), path + strlen(path) - 1);
    for (const char* path : {"full/old", "full/d/old", "bad/g/x"}) put(m_dir->filePath(path), "");
    const QStringList before = tree(m_dir->path());
    TestService service;
    QTEST(service.FSCopyPath(u(m_dir->filePath(from)), u(m_dir->filePath(to))), "result");
    QStringList copied;
    for (const QString& path : tree(m_dir->path())) if (!before.contains(path)) copied += path;
    QTEST(copied, "copied");
  }

  void extract_data() {
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<int>("cut");   // bytes the archive is cut to, 0 for none
    QTest::addColumn<int>("flip");  // the byte that is damaged, 0 for none
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("written");
    const Entries three{{"a/b.txt", "b"}, {"c", "c"}, {"INFO", "i"}};
    const QStringList all{"INFO:i", "a/", "a/b.txt:b", "c:c", "old:o"};
    const QStringList first{"a/", "a/b.txt:b", "old:o"};
    const QStringList none{"old:o"};
    QTest::newRow("three") << three << 0 << 0 << 3 << 0 << all;
    QTest::newRow("replaces") << Entries{{"old", "new"}} << 0 << 0 << 1 << 0
                              << QStringList{"old:new"};
    QTest::newRow("empty") << Entries() << 0 << 0 << 0 << -1 << none;
    QTest::newRow("missing") << three << -1 << 0 << -1 << -1 << none;
    QTest::newRow("cut in data") << Entries{{"a/b.txt", "b"}, {"c", QByteArray(2048, 'c')}} << 1800
                                 << 0 << 2 << -1
                                 << QStringList{"a/", "a/b.txt:b", "c:" + QString(264, 'c'), "old:o"};
    QTest::newRow("cut in a header") << three << 1100 << 0 << 1 << -1 << first;
    QTest::newRow("damaged header") << three << 0 << 1024 << 1 << -1 << first;
    QTest::newRow("no archive") << three << 0 << 1 << -1 << -1 << none;
    QTest::newRow("parent") << Entries{{"../x", "x"}} << 0 << 0 << 1 << -1 << none;
    QTest::newRow("parent inside") << Entries{{"d/../../x", "x"}} << 0 << 0 << 1 << -1 << none;
    QTest::newRow("absolute") << Entries{{"/x", "x"}} << 0 << 0 << 1 << 0
                              << QStringList{"old:o", "x:x"};
    QTest::newRow("hard link") << Entries{{"h", "h"}, {"l", "", "h"}} << 0 << 0 << 2 << -1
                               << QStringList{"h:h", "old:o"};
  }
  void extract() {
    QFETCH(Entries, entries);
    QFETCH(int, cut);
    QFETCH(int, flip);
    QFETCH(int, result);
    const QString source = m_dir->filePath("package");
    const QString target = m_dir->filePath("target");
    put(target + "/old", "o");
    pack(source, entries);
    QByteArray bytes = content(source);
    if (flip > 0) bytes[flip] = char(bytes[flip] ^ 0x10);
    if (cut > 0) bytes.truncate(cut);
    put(source, bytes);
    if (cut < 0) QFile::remove(source);

    Extractor extractor;
    extractor.SetSource(u(source));
    QCOMPARE(extractor.Extract(), -1);
    QCOMPARE(extractor.Count(), -1);
    extractor.SetTarget(u(target));
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
    QTEST(tree(target), "written");
    QVERIFY(!QFileInfo::exists(m_dir->filePath("x")));
  }

  void list() {
    const QString source = m_dir->filePath("package");
    pack(source, {{"a/b.txt", "b"}, {"c", "c"}});
    Extractor extractor;
    extractor.SetSource(u(source));
    const QByteArray listed = m_dir->filePath("listed").toUtf8();
    fflush(stdout);
    const int saved = dup(STDOUT_FILENO);
    QVERIFY(freopen(listed.constData(), "w", stdout));
    const int result = extractor.List();
    fflush(stdout);
    dup2(saved, STDOUT_FILENO);
    close(saved);
    QCOMPARE(result, 0);
    QCOMPARE(content(listed), QByteArray("a/b.txt\nc\n"));
    extractor.SetSource(u(source + "x"));
    QCOMPARE(extractor.List(), -1);
  }

  void copyData() {
    const QString source = m_dir->filePath("package");
    pack(source, {{"f", QByteArray(100000, 'f')}});
    archive* const reader = archive_read_new();
    archive* const writer = archive_write_disk_new();
    archive_read_support_format_all(reader);
    QCOMPARE(archive_read_open_filename(reader, u(source).c_str(), 512), ARCHIVE_OK);
    archive_entry* entry = nullptr;
    Extractor extractor;
    QCOMPARE(extractor.copy_data(nullptr, writer), -1);
    QCOMPARE(extractor.copy_data(reader, nullptr), -1);
    QCOMPARE(archive_read_next_header(reader, &entry), ARCHIVE_OK);
    QCOMPARE(archive_write_header(writer, entry), ARCHIVE_OK);
    QCOMPARE(extractor.copy_data(reader, writer), 0);
    archive_read_free(reader);
    archive_write_free(writer);
    QCOMPARE(content(m_dir->filePath("f")), QByteArray(100000, 'f'));
  }

 private:
  QString app() const { return m_dir->filePath(".Quillmere/app"); }

  static ProcessingProgressDialog* findDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(widget)) return dialog;
    }
    return nullptr;
  }

  // The old copy, and a backup under each of the 100 names.
  static QStringList taken() {
    QStringList paths{"app/old", "app_tmp/x"};
    for (int i = 1; i < 100; ++i) paths += QString("app_tmp%1/x").arg(i);
    return paths;
  }

  std::unique_ptr<QTemporaryDir> m_dir;
};

int main(int argc, char** argv) {
  // The toolkit's own event loop delivers waiting calls inside a call whenever it is asked to;
  // GLib's does so only while more of them arrive, which no test could count on.
  qputenv("QT_NO_GLIB", "1");
  StrTable::InitStrTable();
  Application application(argc, argv);
  TestLauncher test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_launcher.moc"
