#include <QDir>
#include <QGuiApplication>
#include <QString>
#include <QStringList>
#include <QTextCodec>
#include <QTranslator>

#include <langinfo.h>

#include <clocale>
#include <cstdio>
#include <cstring>

#include "launcher/launcher.h"
#include "launcher/texts/strtab.h"
#include "lib/log.h"
#include "libcommon/ParvLocale.h"
#include "qtsingleapplication/qtsingleapplication.h"

namespace {

const ustring kComponent("launcher_debug");

constexpr int kRotationCount = 50;  // log files kept, each about 1 MiB

}  // namespace

// Locale, texts and plug-in path: what the toolkit needs before the application object
// exists. `bin` is the path by which the executable was started, null when there is none.
static void initialize_resources(const char* bin) {
  // A locale that is not installed leaves "C", which works as well.
  (void)setlocale(LC_ALL, "");
  Q_INIT_RESOURCE(texts);
  // Paths are UTF-8 whatever the locale says: a home directory with an umlaut in its name
  // must be found from a session that runs in "C", too.
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

  const QString bin_path = QString::fromLocal8Bit(bin);
  const QString path = QDir::cleanPath(bin_path + "/../../lib/plugins");
  const QStringList paths(path);
  QCoreApplication::setLibraryPaths(paths);
  // Nobody need be listening.
  (void)printf("lib path = '%s'\n", path.toStdString().c_str());
}

// The names inside archives are converted by the C library's locale, which the application
// object has set from the environment once more. Only the character set is replaced.
static void ensure_utf8_names() {
  if (strcmp(nl_langinfo(CODESET), "UTF-8") == 0) return;
  // Where it does not exist, names outside ASCII end as an archive that cannot be read.
  (void)setlocale(LC_CTYPE, "C.UTF-8");
}

// What ties the window to the desktop entry: its name there is the window's class on X11
// and the application id on Wayland.
static void name_application() {
  QCoreApplication::setApplicationName("parvenor-quillmere");
  QGuiApplication::setDesktopFileName("parvenor-quillmere");
}

// Opens the log. Without a directory for it there is no log, and the launcher runs.
static void initialize_logger() {
  const ustring log_level = Service::GetRootQuillmereInstallPath() + "/log/launcher.debug";
  const ustring log_folder_path = Service::GetUserQuillmereInstallPath() + "/log";
  const QDir d;
  if (!d.mkpath(QString::fromUtf8(log_folder_path.c_str()))) return;
  // A log file that cannot be opened leaves the messages on standard error.
  (void)Logger::Initialize(Logger::FILE_LOGGER, log_folder_path + "/launcher.log", log_level,
                           kRotationCount);
}

static QString getCurrentLanguageFileName() {
  return ":/" + ParvLocale::getDefaultLanguage() + ".qm";
}

int main(int argc, char** argv) {
  int ret = -1;
  initialize_resources(argv[0]);
  // Sizes are meant for an ordinary screen; a dense one shows them scaled.
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  name_application();
  QtSingleApplication app(argc, argv, true);
  ensure_utf8_names();
  initialize_logger();
  if (app.isRunning()) {
    Logger::LogMsg(Logger::L_DEBUG, kComponent,
                   "[DEBUG] main(%d): app has already launched, return\n", 80);
    return 0;
  }

  QTranslator trans;
  QString strLan = ":/enu.qm";
  strLan = getCurrentLanguageFileName();  // always replaced; it falls back to English itself
  const QString none("");  // empty, not null: null would mean the toolkit's own defaults
  // A translation that does not load leaves the translator empty, and the texts in English.
  (void)trans.load(strLan, none, none, none);
  // Fails for an empty translator only.
  if (!trans.isEmpty()) (void)QCoreApplication::installTranslator(&trans);
  StrTable::InitStrTable();

  Launcher* launcher = new Launcher;
  launcher->Run();
  launcher->Start();
  ret = app.exec();
  delete launcher;
  return ret;
}
