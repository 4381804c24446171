#include "launcher/startup.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QString>
#include <QStringList>
#include <QTextCodec>
#include <QTranslator>

#include <fcntl.h>
#include <langinfo.h>
#include <signal.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <cstring>

#include "launcher/cloud-service.h"
#include "lib/log.h"
#include "libcommon/ParvLocale.h"

namespace {

const ustring kComponent("launcher_debug");

constexpr int kRotationCount = 50;  // log files kept, each about 1 MiB

constexpr char kPlatform[] = "QT_QPA_PLATFORM";

constexpr char kHelp[] =
    "usage: launcher [--version | --help]\n"
    "\n"
    "Brings your copy of the client up to date with the package that is installed on this\n"
    "machine, then starts it. The client's own start script decides what else happens.\n"
    "Each option is one only as the sole argument; any other arguments change nothing.\n"
    "\n"
    "log file    ~/.Quillmere/log/launcher.log\n"
    "level file  log/launcher.debug beside bin/, lines such as service_debug=7\n"
    "exit code   0, also when the upgrade failed or another launcher is at work\n";

// The path that leads to the plug-ins: `bin`, unless its directory is not the executable's own.
// A name found through PATH has none, and a link has another; what lies there, lib/plugins
// included, is anybody's.
QString path_of_executable(const char* bin) {
  QString bin_path = QString::fromLocal8Bit(bin);
  QString actual = QFileInfo("/proc/self/exe").canonicalFilePath();
  if (actual.isEmpty()) return bin_path;  // not to be had where /proc is not
  const auto root = [](const QString& path) {
    return QDir(QDir::cleanPath(path + "/../..")).canonicalPath();
  };
  return root(bin_path) == root(actual) ? bin_path : actual;
}

// The platforms that this machine's packages have, the session's own first. A session of
// GNOME's is served through its X server, as the toolkit itself does it: without that, there
// would be no frame around the window.
QByteArray session_platforms() {
  const bool wayland = qgetenv("XDG_SESSION_TYPE") == "wayland" &&
                       !qgetenv("XDG_CURRENT_DESKTOP").toLower().contains("gnome") &&
                       !qgetenv("XDG_SESSION_DESKTOP").toLower().contains("gnome");
  return wayland ? "wayland;xcb;offscreen" : "xcb;wayland;offscreen";
}

// The resource path of the translation for the system locale, ":/enu.qm" for example.
QString getCurrentLanguageFileName() { return ":/" + ParvLocale::getDefaultLanguage() + ".qm"; }

}  // namespace

bool answer_question(int argc, char** argv) {
  if (argc != 2) return false;
  // Whether the answer arrives is the asker's concern.
  if (strcmp(argv[1], "--version") == 0) {
    (void)printf("launcher %s\n", QUILLMERE_VERSION);
  } else if (strcmp(argv[1], "--help") == 0) {
    (void)fputs(kHelp, stdout);
  } else {
    return false;
  }
  return true;
}

void open_standard_streams() {
  // The lowest free number is given out each time.
  int fd = open("/dev/null", O_RDWR);
  while (fd >= 0 && fd <= STDERR_FILENO) fd = open("/dev/null", O_RDWR);
  if (fd >= 0) (void)close(fd);  // nothing was written
}

void outlive_signals() {
  // A handler, since a program that is started takes over what is ignored, but no handler.
  struct sigaction nothing = {};
  nothing.sa_handler = [](int) {};
  nothing.sa_flags = SA_RESTART;
  for (const int number : {SIGPIPE, SIGTERM, SIGHUP, SIGINT}) {
    struct sigaction earlier = {};
    // Neither call fails for a signal that exists.
    (void)sigaction(number, nullptr, &earlier);
    if (earlier.sa_handler != SIG_IGN) (void)sigaction(number, &nothing, nullptr);
  }
}

void initialize_resources(const char* bin) {
  // A locale that is not installed leaves "C", which works as well.
  (void)setlocale(LC_ALL, "");
  Q_INIT_RESOURCE(texts);
  // Paths are UTF-8 whatever the locale says: a home directory with an umlaut in its name
  // must be found from a session that runs in "C", too.
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

  const QString path = QDir::cleanPath(path_of_executable(bin) + "/../../lib/plugins");
  const QStringList paths(path);
  QCoreApplication::setLibraryPaths(paths);
  // Nobody need be listening; whoever is, hears it before the work begins.
  (void)printf("lib path = '%s'\n", path.toStdString().c_str());
  (void)fflush(stdout);
}

void initialize_application() {
  // Sizes are meant for an ordinary screen; a dense one shows them scaled, by what the session
  // says and not by the next whole number.
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  // What ties the window to the desktop entry: its name there is the window's class on X11
  // and the application id on Wayland.
  QCoreApplication::setApplicationName("parvenor-quillmere");
  QGuiApplication::setDesktopFileName("parvenor-quillmere");
}

PlatformFallback::PlatformFallback() : m_wanted(qgetenv(kPlatform)) {
  // Without room for the variable the toolkit chooses as it would have.
  (void)qputenv(kPlatform,
                m_wanted.isEmpty() ? session_platforms() : m_wanted + ';' + session_platforms());
}

PlatformFallback::~PlatformFallback() {
  if (m_wanted.isNull())
    (void)qunsetenv(kPlatform);  // fails for names that cannot be
  else
    (void)qputenv(kPlatform, m_wanted);
}

void ensure_utf8_names() {
  // They are converted by the C library's locale. Only its character set is replaced.
  if (strcmp(nl_langinfo(CODESET), "UTF-8") == 0) return;
  // Where it does not exist, names outside ASCII end as an archive that cannot be read.
  (void)setlocale(LC_CTYPE, "C.UTF-8");
}

void initialize_logger() {
  const ustring log_level = Service::GetRootQuillmereInstallPath() + "/log/launcher.debug";
  const ustring log_folder_path = Service::GetUserQuillmereInstallPath() + "/log";
  const QDir d;
  if (!d.mkpath(QString::fromUtf8(log_folder_path.c_str()))) return;
  // A log file that cannot be opened leaves the messages on standard error.
  (void)Logger::Initialize(Logger::FILE_LOGGER, log_folder_path + "/launcher.log", log_level,
                           kRotationCount);
}

void log_version() {
  Logger::LogMsg(Logger::L_DEBUG, kComponent, "[DEBUG] startup(%d): version %s\n", __LINE__,
                 QUILLMERE_VERSION);
}

void install_translator(QTranslator* translator) {
  QString strLan = ":/enu.qm";
  strLan = getCurrentLanguageFileName();  // always replaced; it falls back to English itself
  const QString none("");  // empty, not null: null would mean the toolkit's own defaults
  // A translation that does not load leaves the translator empty, and the texts in English.
  (void)translator->load(strLan, none, none, none);
  // Fails for an empty translator only.
  if (!translator->isEmpty()) (void)QCoreApplication::installTranslator(translator);
}
