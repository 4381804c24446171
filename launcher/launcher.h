#pragma once

#include <QObject>
#include <QProgressDialog>
#include <QString>
#include <QThread>

#include "launcher/linux/linux-service.h"

class QCloseEvent;

// The only window: a progress dialog of fixed width that the user can neither cancel nor
// close. GUI thread.
class ProcessingProgressDialog : public QProgressDialog {
  Q_OBJECT

 public:
  // Hidden, at 0 of 100, with the "initializing" label.
  ProcessingProgressDialog();

  // Escape and the window manager's close request would hide the dialog while the upgrade
  // goes on; both are ignored.
  void reject() override;

  // As high as it takes to show the whole label in the fixed width.
  QSize sizeHint() const override;

 protected:
  void closeEvent(QCloseEvent* event) override;
};

// The thread of the worker: an event loop and nothing else.
class HandlerThread : public QThread {
  Q_OBJECT

 protected:
  void run() override;
};

// The job: asks the service for each step, on a thread of its own.
class Worker : public QObject {
  Q_OBJECT

 public:
  // Moves itself to its thread, which StartThread() starts.
  Worker();

  // GUI thread. Waits for a job that still runs.
  ~Worker() override;

  // False when the system has no thread to give: nothing will be delivered then.
  [[nodiscard]] bool StartThread();
  void QuitThread();

  // Blocks until the thread has ended, without a time limit.
  void JoinThread();

  // Has the thread end when what was asked of it is done, and waits for that.
  void FinishJob();

  // GUI thread, without a worker thread only: starts the client without an upgrade, from the whole
  // copy where an earlier upgrade was cut short.
  void StartClient();

 signals:
  // Emitted on the worker thread, received by the Launcher on the GUI thread.
  void sigServiceDone();             // the job is over, whatever its outcome
  void sigShowMsg();                 // an upgrade begins
  void sigUpdateProgress(int, int);  // (total, done)
  void sigSetLabelText(QString);

 public slots:
  // Runs the job on the worker thread; the Launcher asks for it once. The name has a "c" too many;
  // it stays so.
  void HandleServicce();

 private:
  HandlerThread* m_handler_thread;  // owned; lives on the GUI thread
  Service* m_service;               // owned; used on the worker thread only
};

// The controller: owns the job and the dialog, shows the progress of the one in the other,
// and ends the application when the job is done. GUI thread.
class Launcher : public QObject {
  Q_OBJECT

 public:
  Launcher();

  // Waits for a job that still runs.
  ~Launcher() override;

  // Starts the worker thread, whose job is brought to its end even if the toolkit ends the
  // process because the display has gone. Where there is none to be had, the client is started
  // without it as soon as the event loop runs, and the application ends.
  void Run();

  // Has the worker begin. To be called once, after Run().
  void Start();

 signals:
  // Emitted by Start() on the GUI thread, received by the worker on its own.
  void sigStart();

 public slots:
  // Shows 100 %, hides the dialog, ends and joins the worker thread and quits.
  void LaunchDone();

  // Shows `steps` of `total` as a percentage, rounded down. `total` must not be 0.
  void UpdateProgress(int total, int steps);

  void SetLabelText(QString text);

  // Shows the dialog. There is no message box; the name stays.
  void ShowMsgBox();

 private:
  Worker* m_worker;                      // owned
  ProcessingProgressDialog* m_progress;  // owned
};
