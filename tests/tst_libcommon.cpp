#include <QProcess>
#include <QtTest>

#include "libcommon/ParvLocale.h"

namespace {

// In the order of the language numbers: locales that have the language.
const std::pair<const char*, const char*> kLanguages[] = {
    {"enu", "C POSIX en_GB sr_RS"},
    {"cht", "zh_TW zh_HK zh_MO"},
    {"chs", "zh_CN zh_SG"},
    {"jpn", "ja_JP"},
    {"deu", "de_AT"},
    {"krn", "ko_KR"},
    {"fra", "fr_CA"},
    {"ita", "it_IT"},
    {"esn", "es_MX"},
    {"ptb", "pt_BR"},
    {"rus", "ru_RU"},
    {"dan", "da_DK"},
    {"nor", "nb_NO nn_NO no_NO"},
    {"sve", "sv_SE"},
    {"nld", "nl_BE"},
    {"plk", "pl_PL"},
    {"hun", "hu_HU"},
    {"ptg", "pt_PT"},
    {"trk", "tr_TR"},
    {"csy", "cs_CZ"},
};

// The traces that have come in, without the place that each names and comes from.
QStringList g_traces;
void take_trace(QtMsgType, const QMessageLogContext& context, const QString& text) {
  const QString file(context.file);
  const bool placed = file.endsWith("libcommon/ParvLocale.cpp") && context.line > 0 &&
                      QString(context.function).contains("ParvLocale::");
  const QString place = QString("%1:%2 ").arg(file).arg(context.line);
  g_traces += placed && text.startsWith(place) ? text.mid(place.size()) : "no place: " + text;
}

}  // namespace

class TestLocale : public QObject {
  Q_OBJECT

 private slots:
  void languageNumbers() {
    QStringList codes;
    for (const auto& row : kLanguages) codes += row.first;
    QCOMPARE(ParvLocale::getSupportedLanguages(), codes);
    for (int id = 0; id < 20; ++id) QCOMPARE(ParvLocale::getLanguageAbbrByID(id), codes[id]);
    for (const int id : {20, 21, -1, INT_MIN})
      QVERIFY(ParvLocale::getLanguageAbbrByID(id).isEmpty());
    for (const char* code : {"", "xyz", "DEU"}) QVERIFY(!ParvLocale::isLanguageInstalled(code));
    QCOMPARE(ParvLocale::getStrLanguageFallSafe(), QString("enu"));
  }

  void defaultLanguage_data() {
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("option");
    for (const auto& [code, locales] : kLanguages) {
      for (const QByteArray& locale : QByteArray(locales).split(' '))
        QTest::newRow(locale) << QString(code) << "--default-language";
    }
    QTest::newRow("de_DE") << "enu"
                           << "--without-translations";
  }

  // The system locale is read once a process, so each row is one.
  void defaultLanguage() {
    QFETCH(QString, option);
    QVERIFY(qputenv("LC_ALL", QByteArray(QTest::currentDataTag()) + ".UTF-8"));
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {option});
    QVERIFY(child.waitForFinished());
    QTEST(QString(child.readAllStandardOutput()), "code");
  }

  // What support reads on standard error, in a release's build, too.
  void traces() {
    const auto earlier = qInstallMessageHandler(take_trace);
    const QString code = ParvLocale::getDefaultLanguage();
    qInstallMessageHandler(earlier);
    const QString locale = QLocale::system().name().toLower();
    const QStringList expected{
        "qPrintable(qstrLocaleLower)=[" + locale + "\n] ",
        "qPrintable(qstrLocaleLower)=[" + locale + "] ",
        "qPrintable(qstrLangFileName)=[:/" + code + ".qm] ",
        "qPrintable(qstrDef)=[" + code + "\n] ",
    };
    QCOMPARE(g_traces, expected);
  }
};

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(texts);
  QCoreApplication application(argc, argv);
  const QByteArray option(argc == 2 ? argv[1] : "");
  if (option == "--without-translations") Q_CLEANUP_RESOURCE(texts);
  if (option == "--default-language" || option == "--without-translations") {
    printf("%s", qPrintable(ParvLocale::getDefaultLanguage()));
    return 0;
  }
  TestLocale test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_libcommon.moc"
