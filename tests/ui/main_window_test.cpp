#include <gtest/gtest.h>

#include <QAction>
#include <QToolButton>
#include <tuple>

#include "platform/toolkit/twips.h"
#include "ui/details_panel.h"
#include "ui/grid.h"
#include "ui/main_window_fixture.h"

namespace quorvane {
namespace {

TEST_F(MainWindowTest, OpensWithoutAGame) {
  WindowDriver driver = Driver();
  EXPECT_EQ(window.windowTitle(), "Quorvane for Stars!   Version 1.6.8");
  EXPECT_FALSE(driver.Action("mnuOver").isEnabled());
  EXPECT_FALSE(driver.Action("mnuData").isEnabled());
  EXPECT_TRUE(driver.Action("mnuMap").isEnabled());
  EXPECT_FALSE(driver.IsEnabled("OvButt(4)"));
  EXPECT_EQ(driver.Text("Combo1"), "Select a Race, then click Show Boundary");
}

TEST_F(MainWindowTest, LoadsTheGameChosenInTheDialog) {
  Load();
  EXPECT_EQ(prompts.Shown(), Texts());
  WindowDriver driver = Driver();
  EXPECT_EQ(window.windowTitle(), "Quorvane for Stars!   Version 1.6.8  { Demo.MAP  Year: 2450 }");
  EXPECT_EQ(driver.Text("Race(0)"), "Humanoid");
  EXPECT_EQ(driver.Text("RName(1)"), "Drask");
  EXPECT_TRUE(driver.IsVisible("RaceC(1)"));
  EXPECT_FALSE(driver.IsVisible("RaceC(2)"));
  EXPECT_EQ(driver.Text("Combo1"), "Humanoid");
  EXPECT_TRUE(driver.IsEnabled("OvButt(11)"));
  EXPECT_TRUE(driver.Action("mnuStarGate").isEnabled());
  EXPECT_TRUE(IsBlank(Map()));  // until an overlay is switched on
  const QImage swatch = driver.Find<PictureBox>("RaceC(0)").Surface().Picture();
  EXPECT_EQ(swatch.pixelColor(1, 1), QColor(255, 0, 0));
}

TEST_F(MainWindowTest, KeepsTheGameOnScreenWhenAnotherCannotBeLoaded) {
  Load();
  Driver().Click("OvButt(4)");
  const QImage before = Map();
  folder.Write("Demo.MAP", "#\r\nnothing\r\n");
  Load();
  EXPECT_EQ(prompts.Shown(), Texts{"Demo.MAP, line 2: the planet number is no number: nothing"});
  EXPECT_EQ(Map(), before);
  EXPECT_TRUE(Driver().Action("mnuOver").isEnabled());
  EXPECT_EQ(window.Session().PlayerCount, 2);
}

TEST_F(MainWindowTest, CancelKeepsEverything) {
  QTimer::singleShot(0, &window,
                     [] { WindowDriver(*QApplication::activeModalWidget()).Click("Command2"); });
  Driver().Choose("mnuMap");
  EXPECT_EQ(window.Session().PlanetCount, 0);
  EXPECT_FALSE(Driver().IsEnabled("OvButt(4)"));
}

TEST_F(MainWindowTest, ButtonsAndMenuItemsSwitchTogether) {
  Load();
  WindowDriver driver = Driver();
  driver.Click("OvButt(4)");
  EXPECT_TRUE(driver.Action("mnuToolBarBut(4)").isChecked());
  EXPECT_FALSE(IsBlank(Map()));
  EXPECT_EQ(window.Session().BordersCached, 1);
  EXPECT_EQ(window.focusWidget(), &driver.Find("Universe"));
  driver.Choose("mnuToolBarBut(4)");
  EXPECT_FALSE(driver.IsDown("OvButt(4)"));
  EXPECT_TRUE(IsBlank(Map()));
  driver.Choose("mnuNames(0)").Choose("mnuNames(1)");
  EXPECT_FALSE(driver.Action("mnuNames(0)").isChecked());
  EXPECT_TRUE(driver.Action("mnuNames(1)").isChecked());
  EXPECT_FALSE(IsBlank(Map()));
  driver.Choose("mnuNames(1)");
  EXPECT_TRUE(IsBlank(Map()));
}

TEST_F(MainWindowTest, ClearMapReleasesEverythingButTheZoom) {
  Load();
  WindowDriver driver = Driver();
  driver.Click("OvButt(4)").Click("OvButt(2)").Choose("mnuTerrEdge").Choose("mnuNames(0)");
  driver.Click("OvButt(0)");
  EXPECT_TRUE(IsBlank(Map()));
  for (const char* button : {"OvButt(0)", "OvButt(2)", "OvButt(4)"}) {
    EXPECT_FALSE(driver.IsDown(button)) << button;
  }
  for (const char* item :
       {"mnuToolBarButClear", "mnuToolBarBut(4)", "mnuTerrEdge", "mnuNames(0)"}) {
    EXPECT_FALSE(driver.Action(item).isChecked()) << item;
  }
  driver.Choose("mnuToolBarButClear");
  EXPECT_FALSE(driver.Action("mnuToolBarButClear").isChecked());
}

TEST_F(MainWindowTest, ZoomsByABoxAndScrollsWithTheArrowKeys) {
  Load();
  WindowDriver driver = Driver();
  driver.Click("OvButt(4)");
  const QImage full = Map();
  driver.Press("Universe", Qt::Key_Right);
  EXPECT_EQ(window.Map->State().View.ViewXMin, 0);  // not zoomed
  driver.Click("OvButt(1)");
  EXPECT_EQ(Map(), full);
  const int side = driver.Find("Universe").width();
  driver.ClickAt("Universe", {side / 4, side / 4});
  EXPECT_FALSE(driver.IsEnabled("OvButt(2)"));
  EXPECT_FALSE(driver.Action("mnuOver").isEnabled());
  driver.ClickAt("Universe", {side / 4, side / 4});  // no box yet: refused
  EXPECT_EQ(window.Map->State().ClickMode, kEndZoomBox);
  driver.MoveTo("Universe", {side / 2, side / 3}).ClickAt("Universe", {side / 2, side / 3});
  const MapView zoomed = window.Map->State().View;
  EXPECT_NEAR(zoomed.ViewXMin, 100, 1);
  EXPECT_NEAR(zoomed.ViewXMax - zoomed.ViewXMin, 100, 1);
  EXPECT_TRUE(driver.IsEnabled("OvButt(2)"));
  EXPECT_NE(Map(), full);
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, int, int> moves[] = {
      {Qt::Key_Right, Qt::NoModifier, 1, 0},
      {Qt::Key_Down, Qt::ControlModifier, 0, 50},
      {Qt::Key_Left, Qt::NoModifier, -1, 0},
      {Qt::Key_A, Qt::NoModifier, 0, 0}};
  for (const auto& [key, modifiers, dx, dy] : moves) {
    const MapView before = window.Map->State().View;
    driver.Press("Universe", key, modifiers);
    EXPECT_EQ(window.Map->State().View.ViewXMin - before.ViewXMin, dx);
    EXPECT_NEAR(window.Map->State().View.ViewYMin - before.ViewYMin, dy, 1);
  }
  driver.Click("OvButt(1)");
  EXPECT_EQ(Map(), full);
  EXPECT_EQ(window.Map->State().ZoomArmed, 0);
}

TEST_F(MainWindowTest, LaysOutItsPartsForItsOuterSize) {
  WindowDriver driver = Driver();
  const auto outerHeight = [this] { return TwipsFromPixels(window.frameGeometry().height()); };
  for (const QSize size : {QSize(1280, 860), QSize(1000, 700), QSize(1400, 900), QSize(700, 400)}) {
    window.resize(size);
    const QRect map = driver.Find("Universe").geometry();
    EXPECT_EQ(map.top(), 37);
    EXPECT_EQ(map.width(), map.height());
    EXPECT_NEAR(TwipsFromPixels(map.height()), outerHeight() - 1585, 8);
    EXPECT_EQ(driver.Find("Detail").geometry().bottom(), map.bottom());
    EXPECT_EQ(driver.Find("Universe2").geometry(), map);
    EXPECT_NEAR(TwipsFromPixels(driver.Find("RaceC(8)").x()),
                TwipsFromPixels(window.frameGeometry().width()) - 765, 8);
  }
  window.setMinimumSize(1, 1);
  const QRect before = driver.Find("Universe").geometry();
  window.resize(1000, 320);
  EXPECT_EQ(driver.Find("Universe").geometry(), before);
}

TEST_F(MainWindowTest, RedrawsTheMapAtItsNewSize) {
  Load();
  Driver().Click("OvButt(4)");
  window.resize(1100, 760);
  EXPECT_EQ(Map().width(), Driver().Find("Universe").width());
  EXPECT_FALSE(IsBlank(Map()));
}

TEST_F(MainWindowTest, ReleasesTheOverlaysWithTheNextLoad) {
  Load();
  WindowDriver driver = Driver();
  driver.Click("OvButt(2)").Choose("mnuTerrEdge").Choose("mnuNames(0)");
  Load();
  EXPECT_FALSE(driver.IsDown("OvButt(2)"));
  EXPECT_FALSE(driver.Action("mnuNames(0)").isChecked());
  EXPECT_TRUE(driver.Action("mnuTerrEdge").isChecked());
  EXPECT_TRUE(IsBlank(Map()));
}

TEST_F(MainWindowTest, ClickOnAPlanetTellsAllAboutItAndMarksIt) {
  Load();
  WindowDriver driver = Driver();
  EXPECT_FALSE(driver.IsEnabled("ChartType"));
  driver.ClickAt("Universe", At({1300, 1100}));
  EXPECT_EQ(driver.Text("PlanetName"), "Gamma");
  EXPECT_EQ(driver.Text("Starbase"), "Death Star");
  EXPECT_EQ(driver.Text("Grav1"), "2g");
  EXPECT_EQ(driver.Text("RHab(0)"), "-28%");
  EXPECT_EQ(driver.Text("SGType"), "Inf Kt / Inf l.y.");
  EXPECT_TRUE(driver.IsVisible("CurrentSelected"));
  EXPECT_TRUE(driver.Find("CurrentSelected").geometry().contains(At({1300, 1100})));

  driver.ClickAt("Universe", At({1050, 1300}));
  EXPECT_EQ(driver.Text("PlanetName"), "Alpha");
  EXPECT_EQ(driver.Text("IronMR"), "31 ");
  EXPECT_EQ(driver.Text("SGType"), "500 Kt / 300 l.y.");
  driver.ClickAt("Universe", At({1200, 1200}));  // deep space
  EXPECT_EQ(driver.Text("PlanetName"), "Alpha");
  EXPECT_FALSE(driver.IsVisible("CurrentSelected"));
  driver.ClickAt("Universe", At({1050, 1300})).Choose("mnuHideSelect");
  EXPECT_FALSE(driver.IsVisible("CurrentSelected"));
}

TEST_F(MainWindowTest, OldReportsLeaveTheirTabsAlone) {
  folder.AddOldReport();
  std::filesystem::remove(folder / "Demo.P1");
  std::filesystem::remove(folder / "Demo.P3");
  Load();
  ASSERT_EQ(window.Session().ReportStyle, kOldReportStyle);
  WindowDriver driver = Driver();
  driver.Find<QLabel>("SGType").setText("as it was");
  driver.ClickAt("Universe", At({1050, 1300}));
  EXPECT_EQ(driver.Text("Temp1"), "Unavailable");
  EXPECT_EQ(driver.Text("SGType"), "as it was");
  EXPECT_EQ(driver.Text("RHab(0)"), "");
}

TEST_F(MainWindowTest, ChartsSwitchBetweenPiesAndBars) {
  Load();
  WindowDriver driver = Driver();
  window.Detail->setCurrentIndex(1);
  driver.ClickAt("Universe", At({1050, 1300})).Click("ChartType");
  EXPECT_EQ(driver.Text("ChartType"), "View as Pie Chart");
  EXPECT_FALSE(driver.IsVisible("Pie1"));
  EXPECT_EQ(driver.Find("MCI").geometry(), QRect(20, 66, 21, 68));
  EXPECT_EQ(driver.Find("MSB").geometry(), QRect(220, 125, 21, 9));
  EXPECT_EQ(window.focusWidget(), &driver.Find("Universe"));
  driver.Click("ChartType");
  EXPECT_TRUE(driver.IsVisible("Pie2"));
  EXPECT_FALSE(driver.IsVisible("MSG"));
  // Delta was never seen: its charts are blank, whatever was shown before.
  driver.ClickAt("Universe", At({1390, 1390}));
  EXPECT_TRUE(driver.Find<PieChart>("Pie1").Slices().empty());
  EXPECT_EQ(driver.Find("MCI").height(), 0);
}

TEST_F(MainWindowTest, PointerIsFollowedInTheStatusLine) {
  MovePointer({200, 100});  // without a game
  EXPECT_NE(Driver().Text("XYCoord"), "");
  Load();
  WindowDriver driver = Driver();
  MovePointer(At({1120, 1250}));
  EXPECT_EQ(driver.Text("theplanet"), " Beta");
  EXPECT_EQ(driver.Find("Universe").toolTip(), "Click for more details on Beta");
  MovePointer(At({1200, 1200}));
  EXPECT_EQ(driver.Text("theplanet"), " Deep Space");
  EXPECT_EQ(driver.Find("Universe").toolTip(), "");
  EXPECT_TRUE(driver.Text("XYCoord").startsWith(" X:1200 Y:1") ||
              driver.Text("XYCoord").startsWith(" X:1199 Y:1"));
}

TEST_F(MainWindowTest, MarkerFollowsTheSelectionThroughZoomAndScrolling) {
  Load();
  WindowDriver driver = Driver();
  driver.ClickAt("Universe", At({1120, 1250}));
  const int fullSide = driver.Find("CurrentSelected").width();
  const QPoint first = At({1100, 1300});
  const QPoint second = At({1200, 1300});
  driver.Click("OvButt(1)").ClickAt("Universe", first);
  driver.MoveTo("Universe", second).ClickAt("Universe", second);
  EXPECT_NEAR(driver.Find("CurrentSelected").width(), 4 * fullSide, 12);
  const QPoint before = driver.Find("CurrentSelected").pos();
  driver.Press("Universe", Qt::Key_Right, Qt::ControlModifier);
  EXPECT_LT(driver.Find("CurrentSelected").x(), before.x());
  driver.Click("OvButt(1)");
  EXPECT_EQ(driver.Find("CurrentSelected").width(), fullSide);
  const QSize size = driver.Find("Universe").size();
  window.resize(1100, 700);
  EXPECT_NE(driver.Find("Universe").size(), size);
  EXPECT_NEAR(driver.Find("CurrentSelected").geometry().center().x(), At({1120, 1250}).x(), 1);
  Load();
  EXPECT_FALSE(driver.IsVisible("CurrentSelected"));
}

TEST_F(MainWindowTest, FoundPlanetIsMarkedAndShownWhenAsked) {
  Load();
  WindowDriver driver = Driver();
  const auto find = [&](const char* name, bool ticks) {
    QTimer::singleShot(0, &window, [=] {
      WindowDriver dialog(*QApplication::activeModalWidget());
      if (ticks) dialog.Click("Check1");
      dialog.Type("PlanetList", name).Click("Command1");
    });
    driver.Choose("mnuSearchPlanet");
  };
  find("Gamma", false);
  EXPECT_TRUE(driver.IsVisible("CurrentSelected"));
  EXPECT_EQ(driver.Text("PlanetName"), "");
  find("Beta", true);
  EXPECT_EQ(driver.Text("PlanetName"), "Beta");
  find("Nowhere", false);
  EXPECT_EQ(prompts.Shown(), Texts{"Planet Nowhere not found!"});
  EXPECT_FALSE(driver.IsVisible("CurrentSelected"));
  EXPECT_EQ(driver.Text("PlanetName"), "Beta");
}

TEST_F(MainWindowTest, PlanetGridIsFilledAnewByItsMenuItemAndStaysBesideTheWindow) {
  Load();
  const auto open = [&] {
    Driver().Choose("mnuGrid");
    QApplication::processEvents();  // it becomes the active window
    return qobject_cast<Grid*>(QApplication::activeWindow());
  };
  Grid* const grid = open();
  ASSERT_NE(grid, nullptr);
  EXPECT_FALSE(grid->isModal());
  EXPECT_EQ(grid->DG->model()->rowCount(), 4);
  grid->SetColumnWidth(1, 0);
  grid->showMinimized();
  EXPECT_EQ(open(), grid);
  EXPECT_FALSE(grid->isMinimized());
  EXPECT_EQ(grid->ColumnWidth(1), 795);
  // The program ends with its main window, whatever the grid does.
  constexpr int kPatience = 5000;
  QTimer::singleShot(0, &window, &Main::close);
  QTimer::singleShot(kPatience, &window, [] { QApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(MainWindowTest, SavesTheMapAsItIsWithoutTheMarker) {
  Load();
  WindowDriver driver = Driver();
  driver.Click("OvButt(4)").ClickAt("Universe", At({1120, 1250}));
  driver.Choose("mnuSave");
  const std::filesystem::path file = folder / "Demo Universe Map 2450.bmp";
  EXPECT_EQ(prompts.Shown(), Texts{"Map saved to " + file.string()});
  const QImage saved(QString::fromStdString(file.string()), "bmp");
  EXPECT_EQ(saved.convertToFormat(QImage::Format_RGB32), Map());

  // The message comes first; what then goes wrong is told after it.
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  driver.Choose("mnuSave");
  const Texts shown = prompts.Shown();
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_NE(shown[1].find("Demo Universe Map 2450.bmp"), std::string::npos) << shown[1];
}

TEST_F(MainWindowTest, OpensTheSmallWindowsFromItsMenus) {
  const std::pair<const char*, const char*> cases[] = {
      {"mnuAbout", "About"}, {"mnuThanks", "Thanksto"}, {"mnuGrid2", "EmpireStat"}};
  for (const auto& [item, name] : cases) {
    if (item == std::string("mnuGrid2")) Load();
    QString opened;
    QTimer::singleShot(0, &window, [&] {
      opened = QApplication::activeModalWidget()->objectName();
      QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    Driver().Choose(item);
    EXPECT_EQ(opened, name);
  }
}

TEST_F(MainWindowTest, SavesTheRaceColours) {
  Load();
  Driver().Choose("mnuSaveRaceC");
  EXPECT_EQ(prompts.Shown(), Texts{"Current Colour settings saved"});
  EXPECT_EQ(folder.Read("Demo.QVC"), "\"Humanoid\",1,255,0,0\r\n\"Drask\",2,0,255,0\r\n");
}

}  // namespace
}  // namespace quorvane
