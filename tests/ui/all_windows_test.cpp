#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTextDocument>
#include <QToolTip>
#include <set>
#include <vector>

#include "ui/controls.h"
#include "ui/empire_stat.h"
#include "ui/grid.h"
#include "ui/legend.h"
#include "ui/main_window_fixture.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr const char* kName = "<b>x</b><img src=x>&[*]";
constexpr const char* kFile = "<b>x<img src=x>&[*]";  // no file's name holds a slash

bool HoldsName(const QString& text) { return text.contains(kName) || text.contains(kFile); }

// Looks at every control of the program: no text may be interpreted instead of being shown.
class AllWindowsTest : public testing::Test {
 protected:
  AllWindowsTest() {
    std::filesystem::create_directories(Games() / "<i>gone");
    const std::string name = kName;
    const auto write = [&](const char* ending, const std::string& text) {
      folder.Write(std::string(kFile) + "/" + kFile + ending, text);
    };
    write(".MAP", "#\tX\tY\tName\r\n1\t1050\t1300\t" + name + "\r\n2\t1390\t1390\tDelta\r\n");
    write(".P1", "Planet Name\tOwner\tStarbase Type\tReport Age\r\n" + name + "\t" + name + "\t" +
                     name + "\t0\t900000" + std::string(15, '\t') + "905\t\r\n");
    write("2.MAP", "#\tX\tY\tName\r\n");
    write("2.PLA", "Planet Name\tOwner\tStarbase Type\tReport Age\r\n");
  }

  std::filesystem::path Games() const { return folder / kFile; }

  // A text in which "&" marks a key, and one in which markup is carried out.
  void CheckCaption(const QString& caption, const std::string& where) {
    EXPECT_FALSE(HoldsName(caption)) << where << " loses the &";
    if (HoldsName(QString(caption).replace("&&", "&"))) seen.insert(where);
  }
  void CheckTip(const QString& tip, const std::string& where) {
    QTextDocument shown;
    Qt::mightBeRichText(tip) ? shown.setHtml(tip) : shown.setPlainText(tip);
    EXPECT_FALSE(shown.toPlainText().contains(QChar::ObjectReplacementCharacter)) << where;
    EXPECT_EQ(tip.contains("src=x"), HoldsName(shown.toPlainText()))
        << where << ": " << ToText(tip);
    if (HoldsName(shown.toPlainText())) seen.insert(where + " tip");
  }

  void Check(const QAbstractItemModel& model, const std::string& where) {
    for (int cell = 0; cell < model.rowCount() * model.columnCount(); ++cell) {
      const int column = cell % model.columnCount();
      const QModelIndex index = model.index(cell / model.columnCount(), column);
      CheckTip(index.data(Qt::ToolTipRole).toString(), where);
      CheckTip(model.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString(), where);
      if (HoldsName(index.data().toString())) seen.insert(where);
    }
  }

  // What a control, an action or a menu tells about itself.
  void Check(const QObject& object, const std::string& where) {
    CheckTip(object.property("toolTip").toString(), where);
    const auto* label = qobject_cast<const QLabel*>(&object);
    const bool hasKey = object.property("shortcut").isValid() || (label && label->buddy());
    if (label != nullptr && HoldsName(label->text())) {
      EXPECT_EQ(label->textFormat(), Qt::PlainText) << where;
      seen.insert(where);
    }
    if (hasKey) CheckCaption(object.property("text").toString(), where);
    CheckCaption(object.property("title").toString(), where);
  }

  void Check(QWidget& widget) {
    const std::string where = ToText(widget.window()->objectName() + "." + widget.objectName());
    Check(widget, where);
    for (const QAction* action : widget.actions()) Check(*action, where);
    QString title = widget.windowTitle();
    title.replace("[*][*]", "[!]").replace("[*]", "").replace("[!]", "[*]");
    if (HoldsName(title)) seen.insert(where + " title");
    const auto* combo = qobject_cast<const QComboBox*>(&widget);
    if (combo != nullptr) Check(*combo->model(), where);
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    if (view != nullptr && view->model() != nullptr) Check(*view->model(), where);
    CheckName(widget, where);
  }

  // Who cannot see a control has to be told what it is.
  static void CheckName(QWidget& control, const std::string& where) {
    const QString name = control.objectName();
    // The text box inside a list box, too, is stopped at.
    const bool isOwn = qobject_cast<const QLineEdit*>(&control) != nullptr ||
                       (!name.isEmpty() && !name.startsWith("qt_") && !control.isHidden());
    if (!isOwn || control.isWindow() || control.focusPolicy() == Qt::NoFocus) return;
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    const bool showsText = button != nullptr && !button->text().isEmpty();
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&control);
    EXPECT_TRUE(showsText || !control.accessibleName().isEmpty() ||
                !told->text(QAccessible::Name).isEmpty())
        << where;
  }

  static void PressForScreenReader(QWidget& control) {
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&control);
    EXPECT_EQ(told->role(), QAccessible::Button);
    told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  }

  void CheckAll() {
    for (QWidget* widget : QApplication::allWidgets()) Check(*widget);
  }
  void CheckNext() {
    InNextDialog([this](QWidget& dialog) {
      CheckAll();
      dialog.close();
    });
  }

  TempFolder folder;
  std::set<std::string> seen;
};

TEST_F(AllWindowsTest, ShowNamesAsTheyStandAndNameTheirControls) {
  Main window(Games());
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  WindowDriver driver(window);
  InNextDialog([this](QWidget& opened) {
    WindowDriver dialog(opened);
    dialog.ClickEntry("File1", QString(kFile) + "2.MAP");
    CheckAll();
    std::filesystem::remove(Games() / "<i>gone");
    dialog.ClickEntry("File1", QString(kFile) + ".MAP");
    auto& folders = dialog.Find<QListWidget>("Dir1");
    folders.setCurrentRow(folders.count() - 1);
    CheckNext();
    dialog.Press("Dir1", Qt::Key_Return);
    CheckAll();
    dialog.Click("Command1");
  });
  driver.Choose("mnuMap");
  const QPoint planet =
      window.Map->Universe->WidgetPoint(window.Map->State().View.ToSurface({50, 100})).toPoint();
  driver.MoveTo("Universe", planet).ClickAt("Universe", planet);
  driver.Choose("ViewPlanets").Click("SearchHelpButton").Type("SearchLine", "\"<b");
  CheckAll();
  EXPECT_EQ(QAccessible::queryAccessibleInterface(window.Map->Universe)->role(),
            QAccessible::Graphic);
  CheckNext();
  PressForScreenReader(*window.RaceLegend->RaceC[0]);
  InNextDialog([this](QWidget& dialog) {
    CheckNext();
    WindowDriver(dialog).Type("PlanetList", kName + QString("?")).Click("Command1");
  });
  driver.Choose("mnuSearchPlanet");
  InNextDialog<EmpireStat>([this](EmpireStat& statistics) {
    statistics.SSTab1->setCurrentIndex(1);
    CheckNext();
    statistics.Race->ShowData[8]->click();
    statistics.close();
  });
  driver.Choose("mnuGrid2");
  driver.Choose("mnuGrid");
  QApplication::processEvents();  // it becomes the active window
  CheckNext();
  dynamic_cast<Grid&>(*QApplication::activeWindow()).mnuSH->trigger();

  const QString places =
      "Main.PlanetsTable,Main.PlanetsTable "
      "tip,OpenFile.PLALabelText,OpenFile.Check1(1),OpenFile.Dir1,OpenFile.Dir1 tip,OpenFile.File1,"
      "MessageBox.qt_msgbox_label,Main.Main title,Main.Race(0),Main.Race(0) tip,Main.Universe tip,"
      "Main.theplanet,Main.PlanetName,Main.Starbase,Main.Combo1,RaceColour.RaceColour title,"
      "FindPlanet.PlanetList,EmpireStat.Combo1,InputBox.,Grid.DG,Grid.DG tip,ShowHide.ShowHideList";
  for (const QString& place : places.split(',')) {
    EXPECT_TRUE(seen.contains(ToText(place))) << ToText(place);
  }
}

TEST(SetPlainToolTip, BreaksLongLinesOnTheScreenOnly) {
  QWidget widget;
  const QString whole = QString(250, 'W') + "\n" + QString("word ").repeated(30);
  SetPlainToolTip(widget, whole);
  EXPECT_EQ(widget.toolTip(), whole);
  widget.show();
  QHelpEvent rest(QEvent::ToolTip, {}, {});
  QApplication::sendEvent(&widget, &rest);
  std::vector<qsizetype> lengths;
  for (const QString& line : QToolTip::text().split('\n')) lengths.push_back(line.size());
  EXPECT_EQ(lengths, (std::vector<qsizetype>{100, 100, 50, 100, 50}));
}

}  // namespace
}  // namespace quorvane
