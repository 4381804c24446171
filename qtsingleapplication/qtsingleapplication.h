#pragma once

#include <QApplication>

// The application object of a program that runs once per user and executable file.
//
// The first instance takes an advisory kernel lock on a file of its own and holds it
// until its process ends, however it ends; so a killed instance never stands in the way
// of the next one. The file stays behind, empty. Its name is
// "qtsingleapp-<program>-<hash of the executable's path>-<user id>-lockfile", in
// XDG_RUNTIME_DIR where that is a directory of the user's own and nobody else's, in the
// temporary directory otherwise. Instances whose environments name different directories do not see
// each other. They exchange no messages.
//
// Main thread only, like every application object.
class QtSingleApplication : public QApplication {
  Q_OBJECT

 public:
  // Takes the lock, or learns that another instance holds it. `argc` and `argv` must
  // outlive the object. `GUIenabled` has no effect: this toolkit's widgets application
  // always has a GUI.
  QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
  ~QtSingleApplication() override;

  // Whether another instance holds the lock. False also when the lock cannot be had at
  // all (no writable directory, a file of somebody else's): better two than none.
  bool isRunning() const { return m_isRunning; }

 private:
  bool isHeldByAnother();

  int m_lockFile = -1;  // owned; its lock dies when it is closed
  bool m_isRunning = false;
};
