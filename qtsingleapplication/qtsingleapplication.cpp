#include "qtsingleapplication/qtsingleapplication.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kAttempts = 100;  // holders that come and go between two looks at the lock

bool isPrivateDirectory(const QString& path) {
  struct stat st;
  return QDir::isAbsolutePath(path) && lstat(QFile::encodeName(path).constData(), &st) == 0 &&
         S_ISDIR(st.st_mode) && st.st_uid == geteuid() && (st.st_mode & 077) == 0;
}

QString lockFileName() {
  const QString executable = QCoreApplication::applicationFilePath();
  const QByteArray key =
      QCryptographicHash::hash(executable.toUtf8(), QCryptographicHash::Sha1).toHex();
  const QString runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return QStringLiteral("%1/qtsingleapp-%2-%3-%4-lockfile")
      .arg(isPrivateDirectory(runtimeDir) ? runtimeDir : QDir::tempPath(),
           QFileInfo(executable).fileName(), QString::fromLatin1(key), QString::number(geteuid()));
}

// Opens the lock file, -1 when it cannot be had. In a directory that anybody may write to,
// the name may have been taken by a link or by somebody else's file: neither is used.
int openLockFile() {
  const QByteArray name = QFile::encodeName(lockFileName());
  const int fd = open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                      S_IRUSR | S_IWUSR);
  struct stat st;
  if (fd >= 0 && (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_uid != geteuid())) {
    (void)close(fd);  // nothing was written
    return -1;
  }
  return fd;
}

struct flock wholeFile() {
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  return lock;
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/)
    : QApplication(argc, argv) {
  m_lockFile = openLockFile();
  m_isRunning = m_lockFile >= 0 && isHeldByAnother();
}

QtSingleApplication::~QtSingleApplication() {
  if (m_lockFile >= 0) (void)close(m_lockFile);  // releases the lock; nothing was written
}

// A record lock belongs to the process: no child inherits it, and the kernel drops it with
// the process.
bool QtSingleApplication::isHeldByAnother() {
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    struct flock lock = wholeFile();
    if (fcntl(m_lockFile, F_SETLK, &lock) == 0) return false;
    // Held by another, or not to be had at all? The holder may also just have gone: then
    // nobody holds it, and it is tried again.
    lock = wholeFile();
    if (fcntl(m_lockFile, F_GETLK, &lock) != 0) return false;
    if (lock.l_type != F_UNLCK) return true;
  }
  return false;
}
