#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QTimer>

#include "loading/settings_file.h"
#include "ui/accessible_roles.h"
#include "ui/icons.h"
#include "ui/main_window.h"
#include "ui/texts.h"
#include "ui/theme.h"

namespace {

// The program's own data lie beside it in a build folder, below share when it is installed.
QString ProgramData() {
  const QDir program(QApplication::applicationDirPath());
  return QFile::exists(program.filePath("Stars.ini")) ? program.path()
                                                      : program.filePath("../share/quorvane");
}

std::filesystem::path StartFolder() {
  const std::filesystem::path home = quorvane::ToPath(QDir::homePath());
  return quorvane::FindInstallDir(quorvane::SettingsPlaces(home, quorvane::ToPath(ProgramData())),
                                  home);
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Quorvane");
  QApplication::setDesktopFileName("quorvane");
  quorvane::ApplyTheme(application);
  quorvane::InstallAccessibleRoles();
  QApplication::setWindowIcon(quorvane::ThemedIcon("quorvane"));
  quorvane::Main window(StartFolder());
  window.show();
  QTimer::singleShot(0, &window, &quorvane::Main::mnuMap_Click);
  return QApplication::exec();
}
