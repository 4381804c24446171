#include "qtsingleapplication/qtsingleapplication.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

// File-system types, from the statfs manual page.
constexpr quint32 kNfsMagic = 0x6969;
constexpr quint32 kCifsMagic = 0xFF534D42;
constexpr quint32 kSmb2Magic = 0xFE534D42;

constexpr int kAttempts = 100;  // holders that come and go between two looks at the lock

// Empty when there is none that is the user's alone.
QString runtimeDirectory() {
  const QString path = QStringLiteral("/run/user/%1").arg(geteuid());
  struct stat st;
  const bool isPrivate = lstat(QFile::encodeName(path).constData(), &st) == 0 &&
                         S_ISDIR(st.st_mode) && st.st_uid == geteuid() && (st.st_mode & 077) == 0;
  return isPrivate ? path : QString();
}

// Empty when it cannot be made.
QString homeDirectory() {
  const QString path = QDir::homePath() + QLatin1String("/.Quillmere");
  return QDir().mkpath(path) ? path : QString();
}

// Whether `path` lies on a file server, which may remember the lock of a machine that has died.
bool isRemote(const QString& path) {
  struct statfs fs;
  if (statfs(QFile::encodeName(path).constData(), &fs) != 0) return false;
  const auto type = static_cast<quint32>(fs.f_type);
  return type == kNfsMagic || type == kCifsMagic || type == kSmb2Magic;
}

QString lockFileName() {
  const QString executable = QCoreApplication::applicationFilePath();
  const QByteArray key =
      QCryptographicHash::hash(executable.toUtf8(), QCryptographicHash::Sha1).toHex();
  return QStringLiteral("qtsingleapp-%1-%2-%3-lockfile")
      .arg(QFileInfo(executable).fileName(), QString::fromLatin1(key), QString::number(geteuid()));
}

// Opens the lock file in `directory`, -1 when it cannot be had. In a home directory that others
// may write to, the name may have been taken by a link or by somebody else's file: neither is
// used.
int openLockFile(const QString& directory) {
  if (directory.isEmpty()) return -1;
  const QByteArray name = QFile::encodeName(directory + '/' + lockFileName());
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

// A record lock belongs to the process: no child inherits it, and the kernel drops it with
// the process.
bool isHeldByAnother(int lockFile) {
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    struct flock lock = wholeFile();
    if (fcntl(lockFile, F_SETLK, &lock) == 0) return false;
    // Held by another, or not to be had at all? The holder may also just have gone: then
    // nobody holds it, and it is tried again.
    lock = wholeFile();
    if (fcntl(lockFile, F_GETLK, &lock) != 0) return false;
    if (lock.l_type != F_UNLCK) return true;
  }
  return false;
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/)
    : QApplication(argc, argv) {
  // Always in this order: of several that start at once, one has all that there are.
  for (const QString& directory : {runtimeDirectory(), homeDirectory()}) {
    // Better two on two machines than none because of a third.
    if (!m_lockFiles.isEmpty() && isRemote(directory)) continue;
    const int lockFile = openLockFile(directory);
    if (lockFile < 0) continue;
    m_lockFiles.append(lockFile);
    m_isRunning = isHeldByAnother(lockFile);
    if (m_isRunning) return;
  }
}

QtSingleApplication::~QtSingleApplication() {
  // Releases the locks; nothing was written.
  for (const int lockFile : m_lockFiles) (void)close(lockFile);
}
