#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

#include <langinfo.h>
#include <pthread.h>
#include <sys/stat.h>

#include <algorithm>
#include <clocale>
#include <optional>
#include <thread>

#include "launcher/adapter.h"
#include "launcher/launcher.h"
#include "launcher/linux/package_info.h"
#include "launcher/startup.h"
#include "launcher/texts/strtab.h"
#include "lib/log.h"
#include "tests/support.h"

namespace {

constexpr char kStartScript[] = "#!/bin/sh\ntouch begun; sleep 0.3; touch ended\n";

// Counts how deep calls queued for a Launcher are delivered inside one another.
class Application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override {
    if (QThread::currentThread() != thread()) return QApplication::notify(receiver, event);
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

}  // namespace

class TestLauncher : public QObject {
  Q_OBJECT

 private slots:
  void init() { m_home.emplace(); }
  void cleanup() { m_home.reset(); }

  // The fixed places, and the ones that follow from the home directory.
  void places() {
    const PackageInfo package;
    const ustring root("/opt/Parvenor/Quillmere");
    const ustring home = u(m_home->path() + "/.Quillmere");
    QCOMPARE(package.GetImageFolder(), root + "/images");
    QCOMPARE(package.GetLogLevelPath(), root + "/log/launcher.debug");
    QCOMPARE(package.GetPackagePath(), root + "/package/quillmere.qpk");
    QCOMPARE(package.GetConfigFolder(), root + "/conf");
    QCOMPARE(package.GetLogFolder(), home);
    QCOMPARE(Service::GetUserQuillmereDataInstallPath(), home + "/data");
  }

  void dialog() {
    const QFont earlier = QApplication::font();
    QApplication::setFont(QFont("Arial", 30));
    QApplication::setPalette(QPalette(Qt::black));  // a dark desktop's: light on dark
    Launcher launcher;
    ProcessingProgressDialog* const dialog = findDialog();
    QVERIFY(dialog && !dialog->isVisible());
    QCOMPARE(dialog->labelText(), QString("Quillmere is initializing..."));
    QCOMPARE(int(dialog->windowFlags() & ~Qt::Window),
             int(Qt::WindowTitleHint | Qt::WindowSystemMenuHint));
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QCOMPARE(dialog->font().family(), QString("Arial"));
    QVERIFY(dialog->palette().windowText().color().lightness() < 128);
    QVERIFY(dialog->minimum() == 0 && dialog->maximum() == 100 && dialog->value() == 0);
    QVERIFY(!dialog->autoReset() && dialog->findChildren<QPushButton*>().isEmpty());

    launcher.ShowMsgBox();
    QTRY_VERIFY(dialog->isVisible());
    QCOMPARE(dialog->width(), 400);
    const QLabel* const label = dialog->findChild<QLabel*>();
    const auto shown_whole = [label] {
      return label->wordWrap() && label->height() >= label->heightForWidth(label->width());
    };
    QVERIFY(shown_whole());
    std::thread([] { Notify_Adapter::GetInstance().UpdateProgress(3, 1); }).join();
    QCOMPARE(dialog->value(), 0);  // queued, not delivered on the other thread
    QTRY_COMPARE(dialog->value(), 33);
    launcher.UpdateProgress(3, 2);
    QCOMPARE(dialog->value(), 66);
    Notify_Adapter::GetInstance().UpdateDialogText(QString(300, 'w'));
    QCOMPARE(dialog->labelText(), QString(300, 'w'));
    dialog->adjustSize();
    QCOMPARE(dialog->width(), 400);
    launcher.SetLabelText(QString("Quillmere is initializing... ").repeated(9));
    QVERIFY(shown_whole());
    QVERIFY(!QGuiApplication::quitOnLastWindowClosed() &&
            !QGuiApplication::isFallbackSessionManagementEnabled());
    QTest::keyClick(dialog, Qt::Key_Escape);
    QCloseEvent close;
    QApplication::sendEvent(dialog, &close);
    QVERIFY(!close.isAccepted() && !dialog->close() && dialog->isVisible());

    QSignalSpy quit(qApp, &QCoreApplication::aboutToQuit);
    QTimer::singleShot(0, &launcher, &Launcher::LaunchDone);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(dialog->value() == 100 && !dialog->isVisible() && quit.size() == 1);
    QApplication::setFont(earlier);
  }

  // A visible dialog may deliver waiting calls while it repaints (releases of the toolkit differ):
  // the calls of a large package must not pile up on the stack.
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

  // An upgrade as the user sees it; and when the event loop ends in another way, the client's
  // start script has still ended when the launcher does.
  void upgrade() {
#ifdef __SANITIZE_THREAD__
    QSKIP("the thread sanitizer sees nothing of the queue by which calls are handed on");
#endif
    const QString root = QCoreApplication::applicationDirPath() + "/..";
    put("package/start-stop", kStartScript);
    QVERIFY(chmod("package/start-stop", 0755) == 0 && QDir().mkpath(root + "/package"));
    QCOMPARE(QProcess::execute("tar", {"-cf", root + "/package/quillmere.qpk", "package"}), 0);
    {
      Launcher launcher;
      findDialog()->setMinimumDuration(3600000);  // it would show itself after four seconds
      launcher.Run();
      launcher.Start();
      QTRY_VERIFY(findDialog()->isVisible());
      QTRY_COMPARE(findDialog()->labelText(), QString("Quillmere is ready."));
      QCOMPARE(findDialog()->value(), 100);
      QTRY_VERIFY(QFile::exists("begun"));
    }
    QVERIFY(QFile::exists("ended"));
  }

  // On a system without another thread the client is started all the same.
  void noThread() {
    put(".Quillmere/app/package/start-stop", kStartScript);
    QVERIFY(chmod(".Quillmere/app/package/start-stop", 0755) == 0);
    pthread_attr_t usual;
    QCOMPARE(pthread_getattr_default_np(&usual), 0);
    pthread_attr_t larger_than_memory = usual;
    QCOMPARE(pthread_attr_setstacksize(&larger_than_memory, ~size_t(0) / 4 * 3), 0);
    Launcher launcher;
    QCOMPARE(pthread_setattr_default_np(&larger_than_memory), 0);
    launcher.Run();
    QCOMPARE(pthread_setattr_default_np(&usual), 0);
    launcher.Start();
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(QFile::exists("ended"));
  }

  void startUp() {
    for (const char* number : {"0", "47", "48"})
      put(QString(".Quillmere/log/launcher.log_") + number, number);
    initialize_logger();
    QCOMPARE(Logger::Rotate(), 0);
    QCOMPARE(tree(".Quillmere/log"), QStringList({"launcher.log:", "launcher.log_0:",
                                                  "launcher.log_1:0", "launcher.log_48:47"}));
    QVERIFY(setlocale(LC_ALL, "C"));
    ensure_utf8_names();
    QCOMPARE(nl_langinfo(CODESET), "UTF-8");
    QVERIFY(setlocale(LC_ALL, "C.UTF-8"));
    QTranslator german;
    install_translator(&german);
    QCOMPARE(QCoreApplication::translate("global", "Quillmere is ready."),
             QString("Quillmere ist bereit."));
  }

 private:
  static ProcessingProgressDialog* findDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(widget)) return dialog;
    }
    return nullptr;
  }

  std::optional<TestHome> m_home;
};

int main(int argc, char** argv) {
  // The toolkit's own event loop delivers waiting calls inside a call whenever it is asked to;
  // GLib's does so only while more of them arrive, which no test could count on.
  qputenv("QT_NO_GLIB", "1");
  qputenv("LC_ALL", "de_DE.UTF-8");
  Q_INIT_RESOURCE(texts);
  StrTable::InitStrTable();
  Application application(argc, argv);
  TestLauncher test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_launcher.moc"
