#pragma once

#include <QObject>
#include <QString>

// The way by which code without a GUI reports progress and texts to the dialog. Both
// methods may be called from any thread; the signals reach receivers on the GUI thread,
// queued when they come from another. The single instance is built on first use, which is on the
// GUI thread, and lives until the process exits.
class Notify_Adapter : public QObject {
  Q_OBJECT

 public:
  static Notify_Adapter& GetInstance();

  // Reports `step` of `total` done. `total` must be greater than 0: receivers divide by it.
  void UpdateProgress(int total, int step);

  // Reports a new label text.
  void UpdateDialogText(QString text);

 signals:
  // Emitted on the calling thread, received by the Launcher on the GUI thread.
  void sigUpdateProgress(int total, int current);
  void sigUpdateDialogText(QString text);

 private:
  Notify_Adapter() = default;
};
