#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

#include "lib/log.h"
#include "ustring/ustring.h"

// What the test programs share: files to start from, and what became of them.

inline ustring u(const QString& text) { return text.toUtf8().constData(); }

inline void put(const QString& path, const QByteArray& content) {
  QFile file(path);
  if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
      file.write(content) != content.size()) {
    qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
  }
}

inline QByteArray content(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

// Everything below `dir`, sorted: "name/" a directory, "name@" a link, "name:content" a file,
// "name|" anything else.
inline QStringList tree(const QString& dir) {
  QStringList found;
  QDirIterator it(dir, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                  QDirIterator::Subdirectories);
  while (it.hasNext()) {
    const QString path = it.next();
    const QFileInfo info = it.fileInfo();
    const QString name = path.mid(dir.size() + 1);
    if (info.isSymLink())
      found += name + '@';
    else if (info.isDir())
      found += name + '/';
    else if (info.isFile())
      found += name + ':' + QString::fromUtf8(content(path));
    else
      found += name + '|';
  }
  found.sort();
  return found;
}

// A home of a test's own, which is the working directory, too. What is logged stands in "log".
struct TestHome {
  TestHome() {
    if (!dir.isValid() || !qputenv("HOME", dir.path().toUtf8()) || !QDir::setCurrent(dir.path()) ||
        Logger::Initialize(Logger::FILE_LOGGER, "log", "", 0) != 0) {
      qFatal("no home");
    }
  }
  ~TestHome() { Logger::Destroy(); }
  QString path() const { return dir.path(); }
  const QTemporaryDir dir;
};
