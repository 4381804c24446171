#include <QTranslator>

#include <optional>

#include "launcher/launcher.h"
#include "launcher/startup.h"
#include "launcher/texts/strtab.h"
#include "lib/log.h"
#include "qtsingleapplication/qtsingleapplication.h"

int main(int argc, char** argv) {
  if (answer_question(argc, argv)) return 0;
  int ret = -1;
  open_standard_streams();
  outlive_signals();
  initialize_resources(argv[0]);
  initialize_application();
  std::optional<PlatformFallback> fallback(std::in_place);
  QtSingleApplication app(argc, argv, true);
  fallback.reset();
  ensure_utf8_names();
  initialize_logger();
  if (app.isRunning()) {
    // Support knows it by its number.
    Logger::LogMsg(Logger::L_DEBUG, "launcher_debug",
                   "[DEBUG] main(%d): app has already launched, return\n", 80);
    return 0;
  }
  log_version();

  QTranslator trans;
  install_translator(&trans);
  StrTable::InitStrTable();

  Launcher* launcher = new Launcher;
  launcher->Run();
  launcher->Start();
  ret = app.exec();
  delete launcher;
  return ret;
}
