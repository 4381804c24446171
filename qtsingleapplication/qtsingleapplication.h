#pragma once

#include <QApplication>
#include <QVector>

// The application object of a program that runs once per user and executable file.
//
// The first instance takes an advisory kernel lock on files of its own and holds it
// until its process ends, however it ends; so a killed instance never stands in the way
// of the next one. The files stay behind, empty. Their name is
// "qtsingleapp-<program>-<hash of the executable's path>-<user id>-lockfile", and they lie in
//
// - the user's runtime directory, /run/user/<user id>, where that is a directory of the user's
//   own and nobody else's: one place for all of the user's sessions, whatever their environment;
// - home + "/.Quillmere", which is made when it is missing: it holds what an instance works on,
//   and so keeps instances apart that have no such directory, or another one (after a logout in
//   the middle). A file server may keep the lock of a machine that died: a home there is locked
//   only where there is no runtime directory.
//
// Nobody else can take a name there. An instance runs when it has the lock in each place where
// there is one to be had. They exchange no messages.
//
// Main thread only, like every application object.
class QtSingleApplication : public QApplication {
  Q_OBJECT

 public:
  // Takes the locks, or learns that another instance holds one. `argc` and `argv` must
  // outlive the object. `GUIenabled` has no effect: this toolkit's widgets application
  // always has a GUI.
  QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
  ~QtSingleApplication() override;

  // Whether another instance holds a lock. False also when none can be had at all (no writable
  // directory, a file of somebody else's): better two than none.
  bool isRunning() const { return m_isRunning; }

 private:
  QVector<int> m_lockFiles;  // owned; each lock dies when its file is closed
  bool m_isRunning = false;
};
