#include <QCryptographicHash>
#include <QRegularExpression>
#include <QResource>
#include <QTranslator>
#include <QtEndian>
#include <QtTest>

#include "launcher/texts/strtab.h"
#include "tests/json.h"

using namespace StrTable;
using Pattern = QRegularExpression;

namespace {

// The accelerator of a text; empty where it has none before a letter or digit.
QString accelerator(const QString& text) {
  static const Pattern mark("&([\\p{L}\\p{N}])");
  return mark.match(text).captured(1).toUpper();
}

// Translates everything, in the context "global" alone.
class Marker : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char*, const char*, int) const override {
    return strcmp(context, "global") == 0 ? QString("a\\nb\\tc") : QString();
  }
};

}  // namespace

class TestTexts : public QObject {
  Q_OBJECT

 private slots:
  void table() {
    QCOMPARE(QSet<QString>(std::begin(stab), std::end(stab)).size(), 312);
    for (int id = 0; id < 350; ++id) {
      QCOMPARE(LookupStrID(QString(ktab[id]).toUpper()), id);
      QCOMPARE(LoadStr(id), QString(stab[id]).replace("\\n", "\n").replace("\\t", "\t"));
    }
    QVERIFY(LookupStrID("msg_progres") == -1 && LookupStrID("") == -1);
    // All keys in the order of their numbers, which programs and installers rely on.
    const QStringList keys(std::begin(ktab), std::end(ktab));
    QCOMPARE(QCryptographicHash::hash(keys.join('\n').toUtf8(), QCryptographicHash::Sha1).toHex(),
             QByteArray("4a43243e78f03927eca0e9d3637222e5945520bf"));
    QVERIFY(LoadStr(76).endsWith("initializing...") && LoadStr(app_name) == "Parvenor Quillmere");
    Marker marker;
    QVERIFY(QCoreApplication::installTranslator(&marker));
    QCOMPARE(LoadStr(app_name), QString("a\nb\tc"));
  }

  void language_data() {
    QTest::addColumn<QJsonObject>("row");
    for (const QJsonValue& row : m_all["languages"].toArray())
      QTest::newRow(qPrintable(row["code"].toString())) << row.toObject();
  }
  void language() {
    QFETCH(QJsonObject, row);
    QTranslator translator;
    checkFile(row["code"].toString(), translator);
    if (QTest::currentTestFailed()) return;
    // What a translation has at least one of, and none. The single characters are frequent ones
    // that tell one way of writing Chinese from the other.
    const QJsonValue script = m_all["scripts"][row["script"].toString()];
    const Pattern wanted(script[0].toString());
    const Pattern unwanted(script[1].toString());
    const Pattern tag("^(\\{\\\\\\w+\\}|\\[DlgTitleFont\\])?");
    const QJsonArray same = row["same"].toArray();  // rightly as in English, like the name
    for (const QString english : stab) {
      const QString own = translator.translate("global", english.toUtf8());
      const QString both = english + " -> " + own;
      const bool alike = own == english;
      QVERIFY2(alike ? same.contains(english) || same.contains("*") || english == stab[app_name]
                     : wanted.match(own).hasMatch(),
               qPrintable(both));
      QVERIFY2(!unwanted.match(own).hasMatch(), qPrintable(both));
      for (const char* mark : {"%", "%1", "[ProductName]", "\\n", "\\t", "&", "{\\", "\n"})
        QVERIFY2(own.count(mark) == english.count(mark), qPrintable(both));
      QCOMPARE(tag.match(own).captured(), tag.match(english).captured());
      QVERIFY2(accelerator(own).isEmpty() == accelerator(english).isEmpty(), qPrintable(both));
    }
    // The accelerators that stand side by side in one dialog.
    for (const QJsonValue& dialog : m_all["dialogs"].toArray()) {
      QString used;
      for (const QString& key : dialog.toString().split(' ')) {
        const char* const text = stab[LookupStrID("msi_" + key)];
        const QString own = accelerator(translator.translate("global", text));
        QVERIFY2(!own.isEmpty() && !used.contains(own), qPrintable(key + ' ' + own));
        used += own;
      }
    }
    if (row["code"] != "enu") checkTerms(json("terms.json")[row["code"].toString()], translator);
  }

 private:
  // Two sections, the messages and their index, and the compression that is agreed on.
  static void checkFile(const QString& code, QTranslator& translator) {
    const QResource resource(":/" + code + ".qm");
    const bool plain = QStringList{"chs", "cht", "jpn", "krn"}.contains(code);
    QCOMPARE(resource.compressionAlgorithm(),
             plain ? QResource::NoCompression : QResource::ZlibCompression);
    const QByteArray file = resource.uncompressedData();
    QByteArray sections;
    for (int at = 16; at < file.size(); at += 5 + qFromBigEndian<qint32>(file.data() + at + 1)) {
      sections += file[at];
      if (file[at] == 0x42) QCOMPARE(qFromBigEndian<qint32>(file.data() + at + 1), 312 * 8);
    }
    QCOMPARE(sections, QByteArray("\x42\x69"));
    QVERIFY(translator.load(resource.absoluteFilePath()));
  }

  // A text with a settled term has its word, each standard button the toolkit's, and no button is
  // so long that it breaks the dialog.
  void checkTerms(const QJsonValue& words, const QTranslator& translator) const {
    const QJsonObject terms = words["terms"].toObject();
    const QJsonObject buttons = words["buttons"].toObject();
    const Pattern button(
        m_all["button"].toString());  // the keys of what stands on one, or in a menu
    QVERIFY(terms.size() >= 10 && buttons.size() >= 20);
    for (int id = 0; id < 350; ++id) {
      const QString english = QString(stab[id]).remove('&');
      const QString own = translator.translate("global", stab[id]).remove('&');
      const QString both = QString("%1: %2 -> %3").arg(ktab[id], english, own);
      for (auto term = terms.begin(); term != terms.end(); ++term) {
        const Pattern word(term->toString(), Pattern::CaseInsensitiveOption);
        QVERIFY2(!english.contains(term.key(), Qt::CaseInsensitive) || own.contains(word),
                 qPrintable(both));
      }
      QVERIFY2(!QString(ktab[id]).contains(button) || own.size() <= 2 * english.size() + 10,
               qPrintable(both));
    }
    for (auto own = buttons.begin(); own != buttons.end(); ++own)
      QCOMPARE(translator.translate("global", stab[LookupStrID(own.key())]), own->toString());
  }

  const QJsonObject m_all = json("languages.json");
};

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(texts);
  QCoreApplication application(argc, argv);
  InitStrTable();
  TestTexts test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_launcher_texts.moc"
