// Loads a game through the program's real windows and saves pictures of them, for the README and
// for looking at what was changed. Run it on the offscreen platform; QT_SCALE_FACTOR=2 shows what a
// screen of double density would.
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <iostream>

#include "ui/main_window.h"
#include "ui/texts.h"
#include "ui/theme.h"

namespace quorvane {
namespace {

struct ScreenshotJob {
  QString GameFolder;
  QString MapName;
  QString OutFolder;
  QString Suffix;
};

void Save(QWidget& window, const ScreenshotJob& job, const QString& name) {
  QApplication::processEvents();
  const QString path = job.OutFolder + "/" + name + job.Suffix + ".png";
  if (!window.grab().save(path)) std::cerr << "Cannot write " << path.toStdString() << "\n";
}

// Runs while the open dialog is shown: chooses the map, takes a picture and loads.
void UseOpenDialog(const ScreenshotJob& job) {
  QWidget* dialog = QApplication::activeModalWidget();
  auto* maps = dialog->findChild<QListWidget*>("File1");
  const QList<QListWidgetItem*> found = maps->findItems(job.MapName, Qt::MatchExactly);
  if (found.isEmpty()) {
    std::cerr << "There is no map " << job.MapName.toStdString() << "\n";
    dialog->findChild<QPushButton*>("Command2")->click();
    return;
  }
  maps->setCurrentItem(found.first());
  dialog->findChild<QLineEdit*>("txtGameYear")->setText("2450");
  Save(*dialog, job, "open-dialog");
  dialog->findChild<QPushButton*>("Command1")->click();
}

void SwitchOn(Main& window, const char* button) {
  window.findChild<QToolButton*>(button)->setChecked(true);
}

void TakePictures(const ScreenshotJob& job) {
  Main window(ToPath(job.GameFolder));
  window.show();
  Save(window, job, "main-empty");
  QTimer::singleShot(100, &window, [&job] { UseOpenDialog(job); });
  window.mnuMap_Click();
  SwitchOn(window, "OvButt(4)");
  Save(window, job, "main-territories");
  SwitchOn(window, "OvButt(2)");
  SwitchOn(window, "OvButt(6)");
  window.findChild<QAction*>("mnuNames(0)")->trigger();
  Save(window, job, "main-planets");
  window.findChild<QAction*>("mnuTerrEdge")->trigger();
  window.resize(1000, 700);
  Save(window, job, "main-1000x700");
}

}  // namespace
}  // namespace quorvane

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc < 4) {
    std::cerr << "Usage: quorvane-make-screenshots GAME-FOLDER MAP-NAME OUT-FOLDER [SUFFIX]\n";
    return 2;
  }
  quorvane::ApplyTheme(application);
  quorvane::TakePictures({argv[1], argv[2], argv[3], argc > 4 ? argv[4] : ""});
  return 0;
}
