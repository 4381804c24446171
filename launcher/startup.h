#pragma once

#include <QByteArray>

class QTranslator;

// What main() does before there is a Launcher, in the order in which it does it. Main thread,
// before any other thread exists; each is called once.

// Answers a start whose only argument is --version or --help, on standard output. Returns
// whether it was one: then nothing else is to be done. Any other argument is nobody's business.
[[nodiscard]] bool answer_question(int argc, char** argv);

// Leads standard input, output and error to /dev/null where they are closed: what is opened
// later, the log or the lock, must not get their numbers and the toolkit's traces with them.
void open_standard_streams();

// Keeps SIGTERM, SIGHUP and SIGINT from ending an upgrade half-way, and SIGPIPE from ending it
// for a trace that nobody reads. Programs that are started later get the defaults again; what
// whoever started the launcher has ignored stays ignored for all of them.
void outlive_signals();

// Locale, texts and plug-in path: what the toolkit needs before the application object
// exists. `bin` is the path by which the executable was started, null when there is none.
void initialize_resources(const char* bin);

// The application's attributes and names, which the application object reads when it is made.
void initialize_application();

// While it lives, the application object finds a platform wherever it is made: the one that the
// user or the session wants, else another one, else one without a display. Nothing is shown
// then, and everything else happens. It lives in the environment: to be gone before anything
// is started.
class PlatformFallback {
 public:
  PlatformFallback();
  ~PlatformFallback();  // the environment is as it was
  PlatformFallback(const PlatformFallback&) = delete;
  PlatformFallback& operator=(const PlatformFallback&) = delete;

 private:
  const QByteArray m_wanted;  // what the environment said; null when it said nothing
};

// Has names inside archives read as UTF-8, whatever the locale's character set. The application
// object has set the locale from the environment once more, so this comes after it.
void ensure_utf8_names();

// Opens the log in the user's log directory, with the package root's level file. Without a
// directory for it there is no log, and the launcher runs.
void initialize_logger();

// The first line of a run that is logged whole: the launcher's version.
void log_version();

// Has `translator`, which must outlive the application, translate the texts. Where there is no
// translation they stay English.
void install_translator(QTranslator* translator);
