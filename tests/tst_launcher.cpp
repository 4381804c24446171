#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <thread>

#include "launcher/adapter.h"
#include "launcher/launcher.h"
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

}  // namespace

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
    std::thread([] { Notify_Adapter::GetInstance().UpdateProgress(3, 1); }).join();
    QCOMPARE(dialog->value(), 0);  // queued, not delivered on the other thread
    QTRY_COMPARE(dialog->value(), 33);
    Notify_Adapter::GetInstance().UpdateDialogText(QString(300, 'w'));
    QCOMPARE(dialog->labelText(), QString(300, 'w'));
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

 private:
  static ProcessingProgressDialog* findDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(widget)) return dialog;
    }
    return nullptr;
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
