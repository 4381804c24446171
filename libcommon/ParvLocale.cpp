#include "libcommon/ParvLocale.h"

#include <QDebug>
#include <QFile>
#include <QLocale>
#include <QMap>

namespace {

// In the order of the language numbers, closed by a null pointer.
const char* const grgszLanguages[] = {
    "enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",   "rus",
    "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy", nullptr,
};
constexpr unsigned kEndMarker = sizeof grgszLanguages / sizeof *grgszLanguages - 1;

const QString qstrLanguageFallSafe = QStringLiteral("enu");

// The code for the language part of a locale name.
QMap<QString, QString> locale_map() {
  return {
      {"en", "enu"}, {"zh", "chs"}, {"ja", "jpn"}, {"de", "deu"}, {"ko", "krn"},
      {"fr", "fra"}, {"it", "ita"}, {"es", "esn"}, {"pt", "ptb"}, {"ru", "rus"},
      {"da", "dan"}, {"no", "nor"}, {"nb", "nor"}, {"nn", "nor"}, {"sv", "sve"},
      {"nl", "nld"}, {"pl", "plk"}, {"hu", "hun"}, {"tr", "trk"}, {"cs", "csy"},
  };
}

// Whether `name` stands in `list`, which an empty string closes.
bool contains(const QString* list, const QString& name) {
  for (; !list->isEmpty(); ++list) {
    if (*list == name) return true;
  }
  return false;
}

}  // namespace

// The traces go to the toolkit's debug output, not to the log. Two of them have a line
// break before the closing bracket; that is meant.

QString ParvLocale::getDefaultLanguage() {
  const QString qstrLocaleLower = QLocale::system().name().toLower();
  qDebug("%s:%d %s=[%s\n] ", __FILE__, __LINE__, "qPrintable(qstrLocaleLower)",
         qPrintable(qstrLocaleLower));
  QString qstrDef;
  qDebug("%s:%d %s=[%s] ", __FILE__, __LINE__, "qPrintable(qstrLocaleLower)",
         qPrintable(qstrLocaleLower));

  // Whole locale names whose language is not that of their language part. A bare "pt"
  // is European Portuguese; pt_br is not.
  const QString traditionalChinese[] = {"zh_tw", "zh_hk", "zh_mo", ""};
  const QString europeanPortuguese[] = {"pt", "pt_pt", ""};
  if (contains(traditionalChinese, qstrLocaleLower)) qstrDef = "cht";
  if (contains(europeanPortuguese, qstrLocaleLower)) qstrDef = "ptg";

  if (qstrDef.isEmpty()) {
    const QMap<QString, QString> map = locale_map();
    // -1, no underscore, takes the whole name.
    const QString language = qstrLocaleLower.left(qstrLocaleLower.indexOf('_'));
    qstrDef = map.value(language, map.value("en"));
  }
  if (!isLanguageInstalled(qstrDef)) qstrDef = qstrLanguageFallSafe;
  qDebug("%s:%d %s=[%s\n] ", __FILE__, __LINE__, "qPrintable(qstrDef)", qPrintable(qstrDef));
  return qstrDef;
}

bool ParvLocale::isLanguageInstalled(const QString& lang) {
  const QString qstrLangFileName = ":/" + lang + ".qm";
  if (!QFile::exists(qstrLangFileName)) return false;
  qDebug("%s:%d %s=[%s] ", __FILE__, __LINE__, "qPrintable(qstrLangFileName)",
         qPrintable(qstrLangFileName));
  return true;
}

QString ParvLocale::getStrLanguageFallSafe() { return qstrLanguageFallSafe; }

QString ParvLocale::getLanguageAbbrByID(int id) {
  // A negative number is a huge one here; the end marker is null and gives an empty string.
  return static_cast<unsigned>(id) <= kEndMarker ? QString(grgszLanguages[id]) : QString();
}

QStringList ParvLocale::getSupportedLanguages() {
  QStringList languages;
  for (const char* const* code = grgszLanguages; *code; ++code) languages.append(*code);
  return languages;
}
