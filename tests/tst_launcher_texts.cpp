#include <QCryptographicHash>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QResource>
#include <QTranslator>
#include <QtEndian>
#include <QtTest>

#include "launcher/texts/strtab.h"

using namespace StrTable;

namespace {

// By script, what a translation has at least one of, and none. The single characters are
// frequent ones that tell one way of writing Chinese from the other.
enum Script { Latin, Cyrillic, Hangul, Japanese, Simplified, Traditional };
const std::pair<const char*, const char*> kScripts[] = {
    {"\\p{Latin}", "[^\\p{Latin}\\p{Common}]"},
    {"\\p{Cyrillic}", "[^\\p{Cyrillic}\\p{Latin}\\p{Common}]"},
    {"\\p{Hangul}", "[^\\p{Hangul}\\p{Han}\\p{Latin}\\p{Common}]"},
    {"[\\p{Han}\\p{Hiragana}\\p{Katakana}]", "[\\x{400}-\\x{4ff}\\x{ac00}-\\x{d7a3}]"},
    {"\\p{Han}", "[^\\p{Han}\\p{Latin}\\p{Common}]|[這個們設時連應務檔]"},
    {"\\p{Han}", "[^\\p{Han}\\p{Latin}\\p{Common}]|[这个们设时连应务档]"},
};

// The texts that are rightly the same as in English, beside the name.
const std::tuple<const char*, Script, const char*> kLanguages[] = {
    {"enu", Latin, "*"},
    {"cht", Traditional, "ID"},
    {"chs", Simplified, "ID"},
    {"jpn", Japanese, "ID|OK"},
    {"deu", Latin, "Computer|ID|Internet|Name|OK|Port|Proxy|Status|Status:|Version"},
    {"krn", Hangul, "ID"},
    {"fra", Latin, "Action|Destination|ID|Internet|OK|Port|Proxy|Version"},
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

// The accelerators that stand side by side in one dialog; "msi_" comes before each.
const char* const kDialogs[] = {
    "button_back button_next button_install button_print",
    "button_back button_repair",
    "button_back button_remove",
    "button_back button_finish",
    "button_yes button_no",
    "button_retry button_ignore button_exit filesinuse_dlg_closeall filesinuse_dlg_closenone",
    "button_back button_next button_print eula_dlg_accept eula_dlg_reject",
    "button_back button_next maintenance_dlg_change_label "
    "maintenance_dlg_repair_label maintenance_dlg_remove_label",
};

// The accelerator of a text; empty where it has none before a letter or digit.
QString accelerator(const QString& text) {
  static const QRegularExpression mark("&([\\p{L}\\p{N}])");
  return mark.match(text).captured(1).toUpper();
}

// What stands on a button or in a menu.
const QRegularExpression kButton(
    "(^|_)(btn|button)(_|$)|^context_menu_|^tray_(exit|about|relink)$|^manage_share_change_folder$|"
    "^(add|edit|del|finish|link_new_nas|action_unlink|(unlink|pause|resume)_connection)$");

QString translated(const QTranslator& translator, const char* text) {
  return translator.translate("global", text);
}

// The words that are settled for each language: patterns by English term, texts by button key.
QJsonObject settled() {
  QFile file(TERMS_FILE);
  if (!file.open(QIODevice::ReadOnly)) qFatal("no " TERMS_FILE);
  return QJsonDocument::fromJson(file.readAll()).object();
}

}  // namespace

// Translates everything, in the context "global" alone.
class Marker : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char*, const char*, int) const override {
    return strcmp(context, "global") == 0 ? QString("a\\nb\\tc") : QString();
  }
};

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
    const std::pair<int, const char*> texts[] = {
        {0, "{\\VerdanaBold13}Welcome to the [ProductName] Setup Wizard"},
        {15, "Currently syncing %1 files."},
        {68, "&Yes"},
        {76, "Quillmere is initializing..."},
        {81, "Quillmere is ready."},
        {app_name, "Parvenor Quillmere"}};
    for (const auto& [id, text] : texts) QCOMPARE(LoadStr(id), QString(text));
    Marker marker;
    QVERIFY(QCoreApplication::installTranslator(&marker));
    QCOMPARE(LoadStr(app_name), QString("a\nb\tc"));
  }

  // Two sections, the messages and their index, and the compression that is agreed on.
  void collection() {
    for (const auto& row : kLanguages) {
      const QString code = std::get<0>(row);
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
      QTranslator damaged;
      QVERIFY(!damaged.load(reinterpret_cast<const uchar*>(file.data()) + 1, file.size() - 1));
    }
  }

  void language_data() {
    QTest::addColumn<int>("script");
    QTest::addColumn<QStringList>("same");
    for (const auto& [code, script, same] : kLanguages) {
      QTest::newRow(code) << int(script) << (QString(same).split('|') << "Parvenor Quillmere");
    }
  }
  void language() {
    QFETCH(int, script);
    QFETCH(QStringList, same);
    QTranslator translator;
    QVERIFY(translator.load(QString(":/%1.qm").arg(QTest::currentDataTag())));
    const QRegularExpression wanted(kScripts[script].first);
    const QRegularExpression unwanted(kScripts[script].second);
    const QRegularExpression tag("^(\\{\\\\\\w+\\}|\\[DlgTitleFont\\])?");
    for (const char* text : stab) {
      const QString english(text);
      const QString own = translator.translate("global", text);
      const bool alike = own == english;
      QVERIFY2(!alike || same.contains(text) || same.contains("*"), qPrintable(own));
      QVERIFY2(alike || wanted.match(own).hasMatch(), qPrintable(own));
      QVERIFY2(!unwanted.match(own).hasMatch(), qPrintable(own));
      for (const char* mark : {"%", "%1", "[ProductName]", "\\n", "\\t", "&", "{\\", "\n"}) {
        QVERIFY2(own.count(mark) == english.count(mark), qPrintable(english + " -> " + own));
      }
      QCOMPARE(tag.match(own).captured(), tag.match(english).captured());
      QVERIFY2(accelerator(own).isEmpty() == accelerator(english).isEmpty(), qPrintable(own));
    }
    for (const char* dialog : kDialogs) {
      QString used;
      for (const QString& key : QString(dialog).split(' ')) {
        const char* const text = stab[LookupStrID("msi_" + key)];
        const QString own = accelerator(translator.translate("global", text));
        QVERIFY2(!own.isEmpty() && !used.contains(own), qPrintable(key + ' ' + own));
        used += own;
      }
    }
  }

  void terms_data() {
    QTest::addColumn<QJsonObject>("words");
    const QJsonObject languages = settled();
    QCOMPARE(languages.size(), int(std::size(kLanguages)) - 1);  // all but English
    for (const QString& code : languages.keys())
      QTest::newRow(qPrintable(code)) << languages[code].toObject();
  }
  // A text with a settled term has its word, each standard button the toolkit's, and no button is
  // so long that it breaks the dialog.
  void terms() {
    QFETCH(QJsonObject, words);
    QTranslator translator;
    QVERIFY(translator.load(QString(":/%1.qm").arg(QTest::currentDataTag())));
    const QJsonObject terms = words["terms"].toObject();
    const QJsonObject buttons = words["buttons"].toObject();
    QVERIFY(terms.size() >= 10 && buttons.size() >= 20);
    for (int id = 0; id < 350; ++id) {
      const QString english = QString(stab[id]).remove('&');
      const QString own = translated(translator, stab[id]).remove('&');
      const QString both = QString("%1: %2 -> %3").arg(ktab[id], english, own);
      for (const QString& term : terms.keys()) {
        if (!english.contains(term, Qt::CaseInsensitive)) continue;
        const QRegularExpression word(terms[term].toString(),
                                      QRegularExpression::CaseInsensitiveOption);
        QVERIFY2(own.contains(word), qPrintable(term + " in " + both));
      }
      if (QString(ktab[id]).contains(kButton))
        QVERIFY2(own.size() <= 2 * english.size() + 10, qPrintable(both));
    }
    for (const QString& key : buttons.keys())
      QCOMPARE(translated(translator, stab[LookupStrID(key)]), buttons[key].toString());
  }
};

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(texts);
  QCoreApplication application(argc, argv);
  InitStrTable();
  TestTexts test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_launcher_texts.moc"
