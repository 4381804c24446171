#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include "libcommon/ParvLocale.h"
#include "tests/json.h"

class TestLocale : public QObject {
  Q_OBJECT

 private slots:
  void languageNumbers() {
    QStringList codes;
    for (const QJsonValue& language : m_languages) codes += language["code"].toString();
    QCOMPARE(ParvLocale::getSupportedLanguages(), codes);
    for (int id = 0; id < 20; ++id) QCOMPARE(ParvLocale::getLanguageAbbrByID(id), codes[id]);
    for (const int id : {20, 21, -1, INT_MIN}) QCOMPARE(ParvLocale::getLanguageAbbrByID(id), "");
    for (const char* code : {"", "xyz", "DEU"}) QVERIFY(!ParvLocale::isLanguageInstalled(code));
    QCOMPARE(ParvLocale::getStrLanguageFallSafe(), QString("enu"));
  }

  void defaultLanguage_data() {
    QTest::addColumn<QString>("code");
    for (const QJsonValue& language : m_languages) {
      for (const QJsonValue& locale : language["locales"].toArray())
        QTest::newRow(qPrintable(locale.toString())) << language["code"].toString();
    }
    QTest::newRow("de_DE") << "enu";  // runs without the translations
  }

  // The system locale is read once a process, so each row is one. On standard error it leaves the
  // traces that support reads, in a release's build, too, each of which names its place.
  void defaultLanguage() {
    QFETCH(QString, code);
    QVERIFY(qputenv("LC_ALL", QByteArray(QTest::currentDataTag()) + ".UTF-8"));
    QVERIFY(qputenv("QT_MESSAGE_PATTERN", "%{file}:%{line} %{function}|%{message}"));
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"child", QTest::currentDataTag()});
    QVERIFY(child.waitForFinished());
    const QStringList said = QString(child.readAllStandardOutput()).split(' ');
    QCOMPARE(said[0], code);
    const QRegularExpression place(
        "(\\S+/ParvLocale\\.cpp:\\d+) ParvLocale::\\w+\\|\\1 qPrintable");
    QString traces = child.readAllStandardError();
    const QString file = code == said[2] ? "(qstrLangFileName)=[:/" + code + ".qm] \n" : "";
    QCOMPARE(traces.remove(place), QString("(qstrLocaleLower)=[%1\n] \n(qstrLocaleLower)=[%1] \n"
                                           "%2(qstrDef)=[%3\n] \n")
                                       .arg(said[1], file, code));
  }

 private:
  const QJsonArray m_languages = json("languages.json")["languages"].toArray();
};

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(texts);
  QCoreApplication application(argc, argv);
  if (argc == 3 && strcmp(argv[1], "child") == 0) {
    const bool without = strcmp(argv[2], "de_DE") == 0;
    if (without) Q_CLEANUP_RESOURCE(texts);
    const QString code = ParvLocale::getDefaultLanguage();
    const QString locale = QLocale::system().name().toLower();
    printf("%s", qPrintable(QStringList({code, locale, without ? "" : code}).join(' ')));
    return 0;
  }
  TestLocale test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_libcommon.moc"
