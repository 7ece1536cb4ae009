#include <QComboBox>
#include <QKeySequence>
#include <QListView>
#include <QMenu>
#include <QRegularExpression>
#include <QTabWidget>
#include <fstream>
#include <sstream>

#include "ui/grid.h"
#include "ui/main_window_fixture.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// What belongs to this computer, this test or the toolkit.
const QStringList kNotOurs = {"Drive1", "Dir1", "FolderPath", "GameRecent(1)",
                              "qt_tabwidget_tabbar"};

// Tells all windows of a game in which a planet was clicked, line by line: the name of a control or
// a menu item, "-" where it has none, and its texts, in the order in which they are made. A caption
// therefore stands above the value that it belongs to.
class CaptionsTest : public LoadedGameTest {
 protected:
  void Tell(const QObject& object) {
    QStringList words = {object.objectName().isEmpty() ? "-" : object.objectName()};
    for (const char* text : {"text", "title", "windowTitle", "currentText", "accessibleName"}) {
      const QVariant word = object.property(text);
      if (word.typeId() == QMetaType::QString) words << word.toString();
    }
    // A menu item without a tooltip of its own has one of its text.
    const QVariant tip = object.property("toolTip");
    if (tip != object.property("iconText")) words << tip.toString();
    for (const char* key : {"shortcut", "key"}) {
      words << object.property(key).value<QKeySequence>().toString();
    }
    const auto* box = qobject_cast<const QComboBox*>(&object);
    const auto* list = qobject_cast<const QListView*>(&object);
    const auto* entries = box != nullptr ? box->model() : list != nullptr ? list->model() : nullptr;
    for (int row = 0; entries != nullptr && row < entries->rowCount(); ++row) {
      words << entries->index(row, 0).data().toString();
    }
    if (!object.property("pixmap").value<QPixmap>().isNull()) words << "(a picture)";
    const auto* tabs = qobject_cast<const QTabWidget*>(&object);
    for (int tab = 0; tabs != nullptr && tab < tabs->count(); ++tab) words << tabs->tabText(tab);
    words.removeAll("");
    words.removeDuplicates();
    QString line = words.join(" | ").replace('\n', '/').remove('\r') + " |";
    line.replace(QRegularExpression("Version [0-9.]+"), "Version ...");
    // A menu and the item that opens it tell the same.
    if (words.size() > 1 && line != told.value(told.size() - 1)) told << line;
    for (const QObject* part : object.children()) {
      const auto* widget = qobject_cast<const QWidget*>(part);
      const bool isWindow = widget != nullptr && widget->isWindow();
      const bool isMenu = qobject_cast<const QMenu*>(part) != nullptr;
      if ((!isWindow || isMenu) && !kNotOurs.contains(part->objectName())) Tell(*part);
    }
  }

  void TellNextDialog() {
    InNextDialog([this](QWidget& dialog) {
      Tell(dialog);
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
  }

  QStringList told;
};

TEST_F(CaptionsTest, EveryControlOfEveryWindowShowsItsTextsAndKeys) {
  driver.ClickAt("Universe", At({1050, 1300}));
  Tell(window);
  for (const char* command : {"mnuMap", "mnuSearchPlanet", "mnuGrid2", "mnuAbout", "mnuThanks"}) {
    TellNextDialog();
    driver.Choose(command);
  }
  TellNextDialog();
  driver.Press("RaceC(1)", Qt::Key_Space).Choose("mnuGrid");
  QApplication::processEvents();  // it becomes the active window
  auto& grid = dynamic_cast<Grid&>(*QApplication::activeWindow());
  Tell(grid);
  TellNextDialog();
  grid.mnuSH->trigger();
  std::stringstream expected;
  expected << std::ifstream(QUORVANE_CAPTIONS).rdbuf();
  EXPECT_EQ(ToText(told.join('\n')) + "\n", expected.str());
}

}  // namespace
}  // namespace quorvane
