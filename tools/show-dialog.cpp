// show-dialog DONE: shows the dialog as it stands when DONE of 100 entries have been unpacked,
// in the language of the locale, until it is ended. For the pictures of the documentation.
//
// Must stand in the bin directory of a package root, like the launcher.

#include <QTranslator>

#include <cstdlib>

#include "launcher/launcher.h"
#include "launcher/startup.h"
#include "launcher/texts/strtab.h"
#include "qtsingleapplication/qtsingleapplication.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  initialize_resources(argv[0]);
  initialize_application();
  const QtSingleApplication app(argc, argv, true);
  QTranslator trans;
  install_translator(&trans);
  StrTable::InitStrTable();

  Launcher launcher;
  launcher.ShowMsgBox();
  launcher.UpdateProgress(100, atoi(argv[1]));
  return QtSingleApplication::exec();
}
