#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QStandardPaths>
#include <QTimer>
#include <QWindow>
#include <cstdio>
#include <string_view>

#include "formats/settings_file.h"
#include "loading/example_games.h"
#include "ui/accessible_roles.h"
#include "ui/icons.h"
#include "ui/main_window.h"
#include "ui/texts.h"
#include "ui/theme.h"

namespace {

constexpr const char* kHelp =
    "Usage: quorvane [OPTION]\n"
    "Shows the territories and planets of a Stars! game on a star map.\n\n"
    "  --help     show this text and end\n"
    "  --version  show the version and end\n\n"
    "A dialog asks for the game. F1 opens the manual, \"man quorvane\" tells of the files.\n";

// Answers what packagers and reports of faults need, without a display. Everything else on the
// command line is ignored.
bool AnswerCommandLine(int argc, char* argv[]) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view option = argv[i];
    if (option == "--version") return std::puts("Quorvane " QUORVANE_VERSION) >= 0;
    if (option == "--help") return std::fputs(kHelp, stdout) >= 0;
  }
  return false;
}

// The program's own data lie beside it in a build folder, below share when it is installed.
QString ProgramData() {
  const QDir program(QApplication::applicationDirPath());
  return QFile::exists(program.filePath("Stars.ini")) ? program.path()
                                                      : program.filePath("../share/quorvane");
}

struct Start {
  std::filesystem::path Folder;
  bool IsNamed = false;  // by the game's settings; otherwise there are only the examples
};

Start FindStart() {
  const std::filesystem::path home = quorvane::ToPath(QDir::homePath());
  const std::filesystem::path programData = quorvane::ToPath(ProgramData());
  const QString userData = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  const auto places = quorvane::SettingsPlaces(home, programData);
  const std::filesystem::path folder = quorvane::FindInstallDir(places, home);
  const bool areExamples = folder.parent_path() == programData;
  return {.Folder =
              quorvane::ExampleFolder(folder, programData, quorvane::ToPath(userData) / "quorvane"),
          .IsNamed = quorvane::NamesInstallDir(places) && !areExamples};
}

std::filesystem::path PreferencesPlace() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return quorvane::ToPath(folder) / "quorvane" / "quorvane.ini";
}

// The user's data on this machine: XDG_DATA_HOME, or the local application data of Windows.
std::filesystem::path HistoryPlace() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return quorvane::ToPath(folder) / "quorvane" / "history.sqlite";
}

// Opens the first dialog when the window has its place on the screen: it stands in the middle of
// it.
class FirstDialog : public QObject {
 public:
  explicit FirstDialog(quorvane::Main& window) : window_(window) {
    window.windowHandle()->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* handle, QEvent* event) override {
    if (event->type() == QEvent::Expose && window_.windowHandle()->isExposed()) {
      handle->removeEventFilter(this);
      QTimer::singleShot(0, &window_, &quorvane::Main::Begin);
    }
    return false;
  }

 private:
  quorvane::Main& window_;
};

}  // namespace

int main(int argc, char* argv[]) {
  if (AnswerCommandLine(argc, argv)) return 0;
  QApplication application(argc, argv);
  QApplication::setApplicationName("Quorvane");
  QApplication::setDesktopFileName("quorvane");
  quorvane::ApplyTheme(application);
  quorvane::InstallAccessibleRoles();
  QApplication::setWindowIcon(quorvane::ThemedIcon("quorvane"));
  const Start start = FindStart();
  quorvane::Main window(start.Folder, nullptr, PreferencesPlace(), HistoryPlace());
  if (!start.IsNamed) window.OfferLastGame();
  window.show();
  const FirstDialog firstDialog(window);
  return QApplication::exec();
}
