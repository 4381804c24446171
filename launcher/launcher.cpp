#include "launcher/launcher.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QStyle>
#include <QTimer>

#include <cstdlib>

#include "launcher/adapter.h"
#include "launcher/texts/strtab.h"
#include "lib/log.h"

namespace {

const ustring kComponent("launcher_debug");

constexpr char kFontFamily[] = "Arial";
constexpr int kDialogWidth = 400;  // device-independent pixels

}  // namespace

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr) {
  const QFont font(kFontFamily);
  const QString icon = QString::fromUtf8(Service::GetRootQuillmereResourceInstallPath().c_str()) +
                       "/images/ico_72_quill_mere.png";
  setWindowTitle(StrTable::LoadStr(StrTable::app_name));
  setWindowIcon(QIcon(icon));
  setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
  setValue(0);
  setRange(0, 100);
  // A label that is too long, in a large font for instance, takes more lines.
  findChild<QLabel*>()->setWordWrap(true);
  setLabelText(StrTable::LoadStr(StrTable::desc_qlmr_env_preparing));
  setFont(font);
  setFixedWidth(kDialogWidth);
  // The second call overrides the first; both are meant, in this order.
  setModal(true);
  setWindowModality(Qt::WindowModal);
  setStyleSheet(" QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ");
}

QSize ProcessingProgressDialog::sizeHint() const {
  // The base takes the label's own wish, which is for another width.
  const QLabel* const label = findChild<QLabel*>();
  const int margins = style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, this) +
                      style()->pixelMetric(QStyle::PM_LayoutRightMargin, nullptr, this);
  const int height = label->heightForWidth(kDialogWidth - margins);
  return QProgressDialog::sizeHint() + QSize(0, height - label->sizeHint().height());
}

void ProcessingProgressDialog::reject() {}

void ProcessingProgressDialog::closeEvent(QCloseEvent* event) { event->ignore(); }

void HandlerThread::run() {
  (void)exec();  // ends by quit() alone, with 0
}

Worker::Worker() {
  m_service = new LinuxService;
  m_handler_thread = new HandlerThread;
  moveToThread(m_handler_thread);
}

Worker::~Worker() {
  // The controller has done both, unless the event loop ended in another way (a session
  // that closes): then the job is still brought to its end.
  FinishJob();
  delete m_handler_thread;
  delete m_service;
}

bool Worker::StartThread() {
  m_handler_thread->start(QThread::InheritPriority);
  return m_handler_thread->isRunning();
}

void Worker::QuitThread() { m_handler_thread->quit(); }

void Worker::JoinThread() {
  (void)m_handler_thread->wait();  // without a time limit there is nothing to report
}

void Worker::FinishJob() {
  // Behind the job: a thread that is asked to end before its event loop runs drops what is queued.
  // The call cannot fail for a function object.
  (void)QMetaObject::invokeMethod(
      this, [this] { QuitThread(); }, Qt::QueuedConnection);
  JoinThread();
}

void Worker::StartClient() {
  m_service->RestoreCopy();
  m_service->PostUpgrade();
}

// Support knows these messages by their numbers, whatever lines they stand on.
void Worker::HandleServicce() {
  Logger::LogMsg(Logger::L_DEBUG, kComponent, "[DEBUG] launcher(%d): running\n", 88);
  m_service->PreUpgrade();
  if (!m_service->IsNeedUpgrade()) {
    Logger::LogMsg(Logger::L_DEBUG, kComponent, "[DEBUG] launcher(%d): no need to upgrade\n", 93);
  } else {
    emit sigShowMsg();
    if (m_service->HandlePackageUpgrade() != 0) {
      // Meant: the misspelling is part of the message.
      Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] launcher(%d): Failed to upgrade packge\n",
                     100);
    } else {
      emit sigUpdateProgress(100, 100);
      emit sigSetLabelText(StrTable::LoadStr(StrTable::desc_qlmr_env_preparation_done));
    }
  }
  m_service->PostUpgrade();
  Logger::LogMsg(Logger::L_DEBUG, kComponent, "[DEBUG] launcher(%d): done\n", 111);
  emit sigServiceDone();
}

// The dialog's font family for the whole application: the toolkit measures a new dialog before
// that has a font of its own, and were the two families different, the system's fonts would be
// searched twice, which takes a tenth of a start. And colours that go with the dialog's light
// background: those of a dark desktop would be light on light.
static void set_application_look() {
  QFont font = QApplication::font();
  font.setFamily(kFontFamily);
  QApplication::setFont(font);
  QApplication::setPalette(QApplication::style()->standardPalette());
}

// Has `worker`, from now on the only one, end its job before the process exits. The toolkit
// exits by itself when the display goes away, which is how many a session ends.
static void finish_at_exit(Worker* worker) {
  static Worker* unfinished = nullptr;
  const auto finish = [] {
    if (unfinished) unfinished->FinishJob();
  };
  // Without room for it such an exit cuts the job short, which the next start mends.
  static const int registered = std::atexit(finish);
  (void)registered;
  unfinished = worker;
}

Launcher::Launcher() {
  set_application_look();
  m_worker = new Worker;
  m_progress = new ProcessingProgressDialog;
  m_progress->setCancelButton(nullptr);
  m_progress->setAutoReset(false);

  // Each crosses between the two threads, the first to the worker, the others from it: all
  // are queued.
  connect(this, &Launcher::sigStart, m_worker, &Worker::HandleServicce);
  connect(m_worker, &Worker::sigShowMsg, this, &Launcher::ShowMsgBox);
  connect(m_worker, &Worker::sigServiceDone, this, &Launcher::LaunchDone);
  connect(m_worker, &Worker::sigUpdateProgress, this, &Launcher::UpdateProgress);
  connect(m_worker, &Worker::sigSetLabelText, this, &Launcher::SetLabelText);
  Notify_Adapter& adapter = Notify_Adapter::GetInstance();
  connect(&adapter, &Notify_Adapter::sigUpdateProgress, this, &Launcher::UpdateProgress);
  connect(&adapter, &Notify_Adapter::sigUpdateDialogText, this, &Launcher::SetLabelText);

  // A closed window must not end the event loop, and a dialog that refuses to close must not
  // hold up a session that ends. Should that end the loop, ~Worker() waits for the job.
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QGuiApplication::setFallbackSessionManagementEnabled(false);
}

Launcher::~Launcher() {
  finish_at_exit(nullptr);
  delete m_worker;
  delete m_progress;
}

void Launcher::Run() {
  if (m_worker->StartThread()) {
    finish_at_exit(m_worker);
    return;
  }
  Logger::LogMsg(Logger::L_ERR, kComponent,
                 "[ERROR] launcher(%d): Failed to start the worker thread, no upgrade\n", __LINE__);
  // Quitting takes an event loop that runs.
  QTimer::singleShot(0, this, [this] {
    m_worker->StartClient();
    LaunchDone();
  });
}

void Launcher::Start() { emit sigStart(); }

void Launcher::UpdateProgress(int total, int steps) {
  // There is a call for each entry of a package; the dialog repaints for a new percentage only.
  m_progress->setValue(steps * 100 / total);
}

void Launcher::SetLabelText(QString text) { m_progress->setLabelText(text); }

void Launcher::ShowMsgBox() { m_progress->show(); }

void Launcher::LaunchDone() {
  m_progress->setValue(100);
  m_progress->hide();
  m_worker->QuitThread();
  m_worker->JoinThread();
  QCoreApplication::quit();
}
