// Floor of a start with nothing to do: a QApplication, the dialog that is not shown, and the
// start script. No lock, log, translation, thread or version file.
//
//   floor_start PLUGINS ICON SCRIPT          runs SCRIPT and ends
//   floor_start PLUGINS ICON SCRIPT --show   shows the dialog first and waits for the script then
//
// Links Qt Widgets and nothing else.

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QProcess>
#include <QProgressDialog>

#include <cstring>

namespace {

// As the launcher's, so that the ratio is about everything around it.
void set_up(QProgressDialog& dialog, const char* icon) {
  dialog.setWindowTitle("Parvenor Quillmere");
  dialog.setWindowIcon(QIcon(icon));
  dialog.setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
  dialog.setRange(0, 100);
  dialog.setLabelText("Quillmere is initializing...");
  dialog.setFont(QFont("Arial"));
  dialog.setFixedWidth(400);
  dialog.setWindowModality(Qt::WindowModal);
  dialog.setStyleSheet(
      " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ");
  dialog.setCancelButton(nullptr);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  QCoreApplication::setLibraryPaths({argv[1]});
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  QApplication app(argc, argv);
  QFont font = QApplication::font();
  font.setFamily("Arial");
  QApplication::setFont(font);
  QProgressDialog dialog;
  set_up(dialog, argv[2]);
  const bool shown = argc > 4 && strcmp(argv[4], "--show") == 0;
  if (!shown) return QProcess::execute(argv[3], {"start"});

  dialog.show();
  QProcess script;
  QObject::connect(&script, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &app,
                   &QCoreApplication::quit);
  script.start(argv[3], {"start"});
  return QCoreApplication::exec();
}
