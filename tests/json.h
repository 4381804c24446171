#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

// What the file `name` of the tests' data holds. lib.json has the rows of the library's test,
// languages.json the languages in the order of their numbers, terms.json the words that are settled
// for each.
inline QJsonObject json(const char* name) {
  QFile file(QString(TEST_DATA "/") + name);
  if (!file.open(QIODevice::ReadOnly)) qFatal("%s: %s", name, qPrintable(file.errorString()));
  return QJsonDocument::fromJson(file.readAll()).object();
}
