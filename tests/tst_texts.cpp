#include <QProcess>
#include <QRegularExpression>
#include <QResource>
#include <QTranslator>
#include <QtEndian>
#include <QtTest>

#include <set>

#include "launcher/texts/strtab.h"
#include "libcommon/ParvLocale.h"

using namespace StrTable;

namespace {

constexpr int kTexts = 312;  // different ones among the rows

enum Script { Latin, Cyrillic, Hangul, Japanese, Simplified, Traditional };

#define CYRILLIC "\\x{400}-\\x{4ff}"
#define HANGUL "\\x{ac00}-\\x{d7a3}"
#define KANA "\\x{3041}-\\x{3096}\\x{30a1}-\\x{30fa}"
#define HAN "\\x{4e00}-\\x{9fff}"

// By script, what a translation has at least one of, and none. The single characters are
// frequent ones that tell one way of writing Chinese from the other.
const struct { const char* wanted; const char* unwanted; } kScripts[] = {
    {"\\p{Latin}", "[" CYRILLIC HANGUL KANA HAN "]"}, {"[" CYRILLIC "]", "[" HANGUL KANA HAN "]"},
    {"[" HANGUL "]", "[" CYRILLIC KANA "]"},          {"[" KANA HAN "]", "[" CYRILLIC HANGUL "]"},
    {"[" HAN "]", "[這個們設時連應務檔" CYRILLIC HANGUL KANA "]"},
    {"[" HAN "]", "[这个们设时连应务档" CYRILLIC HANGUL KANA "]"},
};

// Each language with the texts that are rightly the same as in English, beside the name.
const struct { const char* code; Script script; const char* same; } kLanguages[] = {
    {"enu", Latin, "*"},
    {"cht", Traditional, "ID"},
    {"chs", Simplified, "ID"},
    {"jpn", Japanese, "ID|OK"},
    {"deu", Latin, "Computer|ID|Internet|Name|OK|Port|Proxy|Status|Status:|Version"},
    {"krn", Hangul, "ID"},
    {"fra", Latin, "Action|Destination|ID|Inactive|Internet|OK|Options|Port|Proxy|Version"},
    {"ita", Latin, "&No|Computer|ID|Internet|OK|Password|Proxy"},
    {"esn", Latin, "&No|Error|ID|Internet|Proxy"},
    {"ptb", Latin, "ID|Internet|OK|Proxy|Status|Status:"},
    {"rus", Cyrillic, "ID"},
    {"dan", Latin, "Computer|Destination|Internet|OK|Port|Proxy|Standby|Status|Status:|Version"},
    {"nor", Latin, "ID|OK|Port|Proxy|Status|Status:"},
    {"sve", Latin, "ID|Internet|OK|Port|Proxy|Status|Status:|Version"},
    {"nld", Latin, "Computer|Help|ID|Internet|OK|Proxy|Status|Status:"},
    {"plk", Latin, "ID|Internet|OK|Port"},
    {"hun", Latin, "Internet|OK|Port|Proxy"},
    {"ptg", Latin, "ID|Internet|OK|Proxy"},
    {"trk", Latin, ""},
    {"csy", Latin, "ID|Internet|OK|Port"},
};

// The accelerators that stand side by side in one dialog.
const char* const kDialogs[] = {
    "msi_button_back msi_button_next msi_button_install msi_button_print",
    "msi_button_back msi_button_repair", "msi_button_back msi_button_remove",
    "msi_button_back msi_button_finish", "msi_button_yes msi_button_no",
    "msi_button_retry msi_button_ignore msi_button_exit msi_filesinuse_dlg_closeall "
    "msi_filesinuse_dlg_closenone",
    "msi_button_back msi_button_next msi_button_print msi_eula_dlg_accept msi_eula_dlg_reject",
    "msi_button_back msi_button_next msi_maintenance_dlg_change_label "
    "msi_maintenance_dlg_repair_label msi_maintenance_dlg_remove_label",
};

// The accelerator of a text; null where it has none before a letter or digit.
QChar accelerator(const QString& text) {
  static const QRegularExpression mark("&([\\p{L}\\p{N}])");
  const QRegularExpressionMatch match = mark.match(text);
  return match.hasMatch() ? match.captured(1).at(0).toUpper() : QChar();
}

QString translated(const QTranslator& translator, const char* text) {
  return translator.translate("global", text);
}

// Translates every text into one.
class Echo : public QTranslator {
 public:
  explicit Echo(const QString& text) : m_text(text) {}
  bool isEmpty() const override { return false; }
  QString translate(const char*, const char*, const char*, int) const override { return m_text; }

 private:
  const QString m_text;
};

}  // namespace

class TestTexts : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    InitStrTable();
    for (const char* text : stab) m_texts.insert(text);
  }

  void table() {
    QCOMPARE(m_texts.size(), size_t(kTexts));
    QSet<QString> keys;
    for (const char* key : ktab) keys.insert(QString(key).toLower());
    QCOMPARE(keys.size(), 350);
    const QList<int> ids{msg_progress, desc_qlmr_env_preparing, desc_qlmr_env_preparation_done,
                         app_name, msg_disabled};
    QCOMPARE(ids, QList<int>({4, 76, 81, 190, 349}));
    QCOMPARE(LoadStr(76), QString("Quillmere is initializing..."));
    QCOMPARE(LoadStr(81), QString("Quillmere is ready."));
    QCOMPARE(LoadStr(190), QString("Parvenor Quillmere"));
    QCOMPARE(QString(stab[20]), QString(stab[66]));
    const QMap<QString, int> found{{"msg_progress", 4}, {"MSG_PROGRESS", 4}, {"msg_progres", -1},
                                   {"NSIS_NOT_ADMIN_CONFIRM", 226}, {"msg_disabled", 349},
                                   {"msi_welcome_dlg_subtitle", 0}, {"", -1}};
    for (const QString& key : found.keys()) QCOMPARE(LookupStrID(key), found[key]);
  }

  void escapes() {
    Echo echo("a\\nb\\tc\\\\d \\x %1 &e");
    QCoreApplication::installTranslator(&echo);
    QCOMPARE(LoadStr(0), QString("a\nb\tc\\\\d \\x %1 &e"));
  }

  void languageNumbers() {
    const QStringList codes = ParvLocale::getSupportedLanguages();
    QCOMPARE(codes.join(' '), QString("enu cht chs jpn deu krn fra ita esn ptb rus dan nor sve nld "
                                      "plk hun ptg trk csy"));
    for (int id = 0; id < codes.size(); ++id) {
      QCOMPARE(ParvLocale::getLanguageAbbrByID(id), codes[id]);
      QVERIFY(ParvLocale::isLanguageInstalled(codes[id]));
    }
    for (const int id : {20, 21, -1, INT_MIN}) {
      QCOMPARE(ParvLocale::getLanguageAbbrByID(id), QString());
    }
    QCOMPARE(ParvLocale::getStrLanguageFallSafe(), QString("enu"));
    for (const char* code : {"", "xyz", "DEU"}) QVERIFY(!ParvLocale::isLanguageInstalled(code));
  }

  void defaultLanguage_data() {
    QTest::addColumn<QString>("code");
    const QMap<QString, QString> rows{
        {"enu", "C POSIX en_US en_GB sr_RS ar_EG"}, {"cht", "zh_TW zh_HK zh_MO"},
        {"chs", "zh_CN zh_SG"}, {"jpn", "ja_JP"}, {"deu", "de_DE de_AT"}, {"krn", "ko_KR"},
        {"fra", "fr_CA"}, {"ita", "it_IT"}, {"esn", "es_MX"}, {"ptb", "pt_BR"}, {"ptg", "pt_PT"},
        {"rus", "ru_RU"}, {"dan", "da_DK"}, {"nor", "nb_NO nn_NO no_NO"}, {"sve", "sv_SE"},
        {"nld", "nl_BE"}, {"plk", "pl_PL"}, {"hun", "hu_HU"}, {"trk", "tr_TR"}, {"csy", "cs_CZ"}};
    for (const QString& code : rows.keys()) {
      for (const QString& locale : rows[code].split(' ')) {
        QTest::newRow(qPrintable(locale)) << code;
      }
    }
  }

  // The system locale is read once a process, so each row is one.
  void defaultLanguage() {
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", QString(QTest::currentDataTag()) + ".UTF-8");
    environment.insert("QT_LOGGING_RULES", "*.debug=false");
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {"--default-language"});
    QVERIFY(child.waitForFinished());
    QTEST(QString(child.readAllStandardOutput()), "code");
  }

  void file_data() { languages(); }
  void file() {
    QFETCH(QString, path);
    QFETCH(int, script);
    const QResource resource(path);
    QCOMPARE(resource.compressionAlgorithm(), script >= Hangul ? QResource::NoCompression
                                                               : QResource::ZlibCompression);
    // A magic of 16 bytes, then sections: a tag byte, a length, the data.
    const QByteArray qm = resource.uncompressedData();
    QMap<int, quint32> sections;
    int at = 16;
    while (at + 5 <= qm.size()) {
      const quint32 length = qFromBigEndian<quint32>(qm.constData() + at + 1);
      sections[uchar(qm[at])] = length;
      at += 5 + int(length);
    }
    QCOMPARE(at, qm.size());
    QCOMPARE(sections.keys(), QList<int>({0x42, 0x69}));  // hashes and messages, nothing else
    QCOMPARE(sections[0x42], quint32(kTexts * 8));

    QTranslator damaged;
    QByteArray copy = qm;
    copy[3] = char(copy[3] ^ 1);
    QVERIFY(!damaged.load(reinterpret_cast<const uchar*>(copy.constData()), copy.size()));
    QVERIFY(!damaged.load(reinterpret_cast<const uchar*>(qm.constData()), qm.size() / 2));
    QVERIFY(damaged.isEmpty());
    QCOMPARE(LoadStr(app_name), QString("Parvenor Quillmere"));
  }

  void markup_data() { languages(); }
  void markup() {
    QVERIFY(load());
    const QRegularExpression tag("^(\\{\\\\\\w+\\}|\\[DlgTitleFont\\])?");
    for (const char* text : m_texts) {
      const QString own = translated(m_translator, text);
      const QString english(text);
      for (const char* mark : {"%", "%1", "[ProductName]", "\\n", "\\t", "&", "{\\", "\n"}) {
        QVERIFY2(own.count(mark) == english.count(mark), qPrintable(english + " -> " + own));
      }
      QCOMPARE(tag.match(own).captured(), tag.match(english).captured());
      QVERIFY2(accelerator(own).isNull() == accelerator(english).isNull(), qPrintable(own));
    }
    for (const char* dialog : kDialogs) {
      QString used;
      for (const QString& key : QString(dialog).split(' ')) {
        const QChar own = accelerator(translated(m_translator, stab[LookupStrID(key)]));
        QVERIFY2(!own.isNull() && !used.contains(own), qPrintable(key + ' ' + own));
        used += own;
      }
    }
  }

  void language_data() { languages(); }
  void language() {
    QVERIFY(load());
    QFETCH(int, script);
    QFETCH(QStringList, same);
    const QRegularExpression wanted(kScripts[script].wanted);
    const QRegularExpression unwanted(kScripts[script].unwanted);
    for (const char* text : m_texts) {
      const QString own = translated(m_translator, text);
      const bool alike = own == text;
      QVERIFY2(!alike || same.contains(text) || same.contains("*"), qPrintable(own));
      QVERIFY2(alike || wanted.match(own).hasMatch(), qPrintable(own));
      QVERIFY2(!unwanted.match(own).hasMatch(), qPrintable(own));
    }
  }

 private:
  void languages() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("script");
    QTest::addColumn<QStringList>("same");
    for (const auto& [code, script, same] : kLanguages) {
      QTest::newRow(code) << QString(":/%1.qm").arg(code) << int(script)
                          << (QString(same) + "|Parvenor Quillmere").split('|', Qt::SkipEmptyParts);
    }
  }

  bool load() {
    QFETCH(QString, path);
    return m_translator.load(path, QString(""), QString(""), QString(""));
  }

  std::set<QByteArray> m_texts;
  QTranslator m_translator;
};

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(texts);
  QCoreApplication application(argc, argv);
  if (argc == 2 && strcmp(argv[1], "--default-language") == 0) {
    printf("%s", qPrintable(ParvLocale::getDefaultLanguage()));
    return 0;
  }
  TestTexts test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_texts.moc"
