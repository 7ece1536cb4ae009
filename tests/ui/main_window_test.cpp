#include <QAbstractItemView>
#include <QSignalSpy>
#include <tuple>
#include <utility>

#include "paint/twips.h"
#include "ui/details_panel.h"
#include "ui/drawing_tools.h"
#include "ui/grid.h"
#include "ui/main_window_fixture.h"
#include "ui/manual.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

TEST_F(MainWindowTest, OpensWithoutAGameAndStaysSoWhenTheDialogIsCancelled) {
  InNextDialog([](QWidget& dialog) { WindowDriver(dialog).Click("Command2"); });
  driver.Choose("mnuMap");
  EXPECT_EQ(window.Session().PlanetCount, 0);
  EXPECT_FALSE(driver.IsEnabled("OvButt(4)"));
  for (const char* menu : {"mnuOver", "mnuData", "mnuTerra", "mnuStarGate"}) {
    EXPECT_FALSE(driver.Action(menu).isEnabled()) << menu;
  }
  EXPECT_EQ(driver.Text("Combo1"), "Select a Race, then click Show Boundary");

  OpenTools();
  driver.Choose("mnuSave").Choose("mnuSaveRaceC").Click("SaveQVL");
  EXPECT_EQ(prompts.Shown(), Texts(3, "There is nothing to save before a game is loaded"));
  driver.Click("Draw(2)").ClickAt("Universe", {100, 100}).ClickAt("Universe", {200, 200});
  EXPECT_EQ(window.Detail->Tools->PlotBox->toPlainText(), "");
  driver.MoveTo("Universe", {200, 100});
  EXPECT_EQ(driver.Text("XYCoord").left(4) + driver.Text("theplanet"), " X:4 Deep Space");
}

TEST_F(LoadedGameTest, KeepsTheGameOnScreenWhenAFileChangesBeforeItIsRead) {
  driver.Click("OvButt(4)");
  window.ProgressBar1->hide();  // it alone changes
  const QImage shown = window.grab().toImage();
  folder.Write("Demo.P3", "");
  window.LoadChosenGame();
  const std::string told = prompts.Shown().at(0);
  EXPECT_NE(told.find("Demo.P3, line 1: the heading"), told.npos) << told;
  EXPECT_TRUE(window.grab().toImage() == shown);
  EXPECT_EQ(window.Session().PlanetTable.size(), 5U);
}

TEST_F(LoadedGameTest, ButtonsAndMenuItemsSwitchTogether) {
  EXPECT_TRUE(IsBlank(Map())) << "until an overlay is switched on";
  EXPECT_TRUE(driver.IsEnabled("OvButt(11)") && driver.Action("mnuStarGate").isEnabled());
  EXPECT_TRUE(driver.IsVisible("RaceC(1)") && !driver.IsVisible("RaceC(2)"));
  driver.Click("OvButt(4)");
  EXPECT_TRUE(driver.Action("mnuToolBarBut(4)").isChecked());
  EXPECT_FALSE(IsBlank(Map()));
  EXPECT_EQ(window.focusWidget(), &driver.Find("Universe"));
  driver.Choose("mnuToolBarBut(4)");
  EXPECT_FALSE(driver.IsDown("OvButt(4)"));
  EXPECT_TRUE(IsBlank(Map()));
  driver.Choose("mnuNames(0)").Choose("mnuNames(1)");
  EXPECT_FALSE(driver.Action("mnuNames(0)").isChecked());
  EXPECT_TRUE(driver.Action("mnuNames(1)").isChecked());
}

TEST_F(LoadedGameTest, ClearMapAndTheNextLoadReleaseWhatWasSwitchedOn) {
  for (const bool isCleared : {true, false}) {
    driver.Click("OvButt(2)").Choose("mnuTerrEdge");
    isCleared ? void(driver.Click("OvButt(0)")) : Load();
    EXPECT_TRUE(IsBlank(Map()));
    EXPECT_FALSE(driver.IsDown("OvButt(2)") || driver.Action("mnuToolBarBut(2)").isChecked());
    EXPECT_EQ(driver.Action("mnuTerrEdge").isChecked(), !isCleared);
    EXPECT_FALSE(driver.IsDown("OvButt(0)"));
  }
  driver.Choose("mnuToolBarButClear");
  EXPECT_FALSE(driver.Action("mnuToolBarButClear").isChecked());
}

TEST_F(LoadedGameTest, ZoomsByABoxAndScrollsUntilTheButtonIsReleased) {
  driver.Click("OvButt(4)").Click("OvButt(11)").ClickAt("Universe", At({1120, 1250}));
  const QImage full = Map();
  const int fullSide = driver.Find("CurrentSelected").width();
  const QPoint end = At({1200, 1200});
  driver.Click("OvButt(1)").ClickAt("Universe", At({1100, 1300}));
  EXPECT_FALSE(driver.IsEnabled("OvButt(2)") || driver.Action("mnuOver").isEnabled());
  driver.MoveTo("Universe", end).ClickAt("Universe", end);
  EXPECT_TRUE(driver.IsEnabled("OvButt(2)") && driver.Action("mnuOver").isEnabled());
  const MapView zoomed = window.Map->State().View;
  EXPECT_NEAR(zoomed.ViewXMin, 100, 1);
  EXPECT_NEAR(zoomed.ViewXMax, 200, 1);
  const QRect marker = driver.Find("CurrentSelected").geometry();
  EXPECT_NEAR(marker.width(), 4 * fullSide, 12);

  driver.Press("Universe", Qt::Key_Right).Press("Universe", Qt::Key_A);
  driver.Press("Universe", Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(window.Map->State().View.ViewXMin, zoomed.ViewXMin + 1);
  EXPECT_LT(driver.Find("CurrentSelected").x(), marker.x());
  const int yMin = window.Map->State().View.ViewYMin;
  EXPECT_NEAR(yMin, zoomed.ViewYMin + 50, 1);
  OpenTools();
  Activate();
  driver.Find("Draw(0)").setFocus();
  driver.Press("Combo1", Qt::Key_Down).Press("Draw(0)", Qt::Key_Down);
  EXPECT_EQ(window.Map->State().View.ViewYMin, yMin) << "keys of the chooser and the tools";
  EXPECT_EQ(window.focusWidget(), &driver.Find("Draw(1)"));
  driver.Click("DColour(1)");
  QApplication::processEvents();
  QTest::keyClick(window.focusWidget(), Qt::Key_Down);
  EXPECT_EQ(window.Map->State().View.ViewYMin, yMin + 1) << "the map has the focus again";
  EXPECT_FALSE(Map() == full);
  driver.Press("Combo1", Qt::Key_Up).Click("OvButt(1)");
  EXPECT_TRUE(Map() == full);
  EXPECT_EQ(driver.Find("CurrentSelected").width(), fullSide);
}

TEST_F(LoadedGameTest, OpenZoomBoxLeavesTheMapAsItIsAndIsGivenUpByEscape) {
  driver.Click("OvButt(4)").Click("OvButt(1)").ClickAt("Universe", At({1200, 1300}));
  window.resize(1100, 700);
  driver.MoveTo("Universe", At({1300, 1200}));
  EXPECT_EQ(driver.Text("XYCoord").left(8), " X:1300 ") << "as the map shows it";
  const QRect box = driver.Find("ZoomBox").geometry();
  EXPECT_NEAR(box.left(), At({1200, 1300}).x(), 2);
  EXPECT_NEAR(box.right(), At({1300, 1200}).x(), 2);
  const QImage shown = Map();
  OpenTools();
  driver.Press("PlotBox", Qt::Key_Escape);
  EXPECT_FALSE(driver.IsVisible("ZoomBox"));
  EXPECT_TRUE(driver.IsEnabled("OvButt(2)") && driver.Action("mnuOver").isEnabled());
  EXPECT_TRUE(driver.IsDown("OvButt(1)"));
  EXPECT_EQ(window.Map->State().ClickMode, kStartZoomBox);
  EXPECT_TRUE(Map() == shown);
}

TEST_F(LoadedGameTest, EveryChoiceOfARaceRedrawsTheMapOnce) {
  // While Zoom In is down the borders are painted with every redraw, up to the 651st column.
  driver.Click("OvButt(4)").Click("OvButt(11)").Click("OvButt(1)");
  const QImage shown = Map();
  QSignalSpy progress(window.ProgressBar1, &QProgressBar::valueChanged);
  const auto redraws = [&] {
    return std::exchange(static_cast<QList<QList<QVariant>>&>(progress), {}).count({651});
  };
  driver.Press("Combo1", Qt::Key_Down);
  EXPECT_EQ(driver.Text("Combo1"), "Drask");
  EXPECT_EQ(redraws(), 1);
  window.Combo1->setCurrentIndex(0);
  EXPECT_EQ(redraws(), 1) << "set by the program";
  window.Combo1->setEditText("Hum");
  driver.Choose("mnuAge").Choose("mnuAge");
  EXPECT_EQ(redraws(), 2);
  EXPECT_FALSE(Map() == shown) << "nobody's values";
  for (int choice = 0; choice < 2; ++choice) {
    window.Combo1->showPopup();
    QTest::keyClick(window.Combo1->view(), Qt::Key_Return);
    EXPECT_EQ(redraws(), 1) << "the same race again";
    EXPECT_TRUE(Map() == shown);
  }
}

TEST_F(LoadedGameTest, LaysOutItsPartsForItsOuterSizeAndRedrawsTheMap) {
  driver.Click("OvButt(4)").ClickAt("Universe", At({1120, 1250}));
  window.resize(1400, 900);
  const int outerHeight = TwipsFromPixels(window.frameGeometry().height());
  const QRect map = driver.Find("Universe").geometry();
  EXPECT_NEAR(TwipsFromPixels(map.height()), outerHeight - 1585, 8);
  EXPECT_EQ(driver.Find("Universe2").geometry(), map);
  EXPECT_EQ(Map().size(), map.size());
  EXPECT_FALSE(IsBlank(Map()));
  EXPECT_NEAR(driver.Find("CurrentSelected").geometry().center().x(), At({1120, 1250}).x(), 1);
  Load();
  EXPECT_FALSE(driver.IsVisible("CurrentSelected"));
}

TEST_F(LoadedGameTest, ClickOnAPlanetTellsAllAboutItAndMarksIt) {
  EXPECT_FALSE(driver.IsEnabled("ChartType"));
  driver.ClickAt("Universe", At({1300, 1100}));
  EXPECT_EQ(driver.Text("PlanetName"), "Gamma");
  EXPECT_EQ(driver.Text("RHab(0)"), "-28%");
  EXPECT_TRUE(driver.IsVisible("CurrentSelected"));

  driver.ClickAt("Universe", At({1200, 1200}));  // deep space
  EXPECT_EQ(driver.Text("PlanetName"), "Gamma");
  EXPECT_FALSE(driver.IsVisible("CurrentSelected"));
  driver.ClickAt("Universe", At({1050, 1300}));
  driver.Choose("mnuHideSelect");
  EXPECT_FALSE(driver.IsVisible("CurrentSelected"));
}

TEST_F(MainWindowTest, PlanetOnShowIsToldAnewWithItsGameAndGoneWithAnother) {
  folder.Write("Next.MAP", folder.Read("Demo.MAP"));
  folder.Write("Next.P1", folder.Read("Demo.P1"));
  Load();
  driver.ClickAt("Universe", At({1300, 1100}));
  EXPECT_EQ(driver.Text("Starbase"), "Death Star");
  std::string report = folder.Read("Demo.P3");
  folder.Write("Demo.P3", report.replace(report.find("Death Star"), 10, "Space Dock"));
  Load();
  EXPECT_EQ(driver.Text("PlanetName") + driver.Text("Starbase"), "GammaSpace Dock");
  EXPECT_EQ(window.Detail->SSGList->count(), 1);
  EXPECT_EQ(driver.Text("RHab(0)"), "");
  EXPECT_FALSE(driver.IsEnabled("ChartType"));

  LoadGame(driver, "Next.MAP");
  EXPECT_EQ(driver.Text("PlanetName") + driver.Text("IronS") + driver.Text("RHab(0)"), "");
  EXPECT_EQ(driver.Text("SGType"), "None Detected");
  EXPECT_EQ(window.Detail->SSGList->count(), 0);
  EXPECT_TRUE(driver.Find<PieChart>("Pie2").Slices().empty());
  EXPECT_EQ(driver.Find("MCI").height() + driver.Find("MSG").height(), 0);
}

TEST_F(MainWindowTest, OldReportsLeaveTheirTabsAlone) {
  folder.AddOldReport();  // which is taken, because questions are answered with no
  Load();
  driver.Find<QLabel>("SGType").setText("as it was");
  driver.ClickAt("Universe", At({1050, 1300}));
  EXPECT_EQ(driver.Text("Temp1") + driver.Text("SGType"), "Unavailableas it was");
  EXPECT_EQ(driver.Text("RHab(0)"), "");
}

TEST_F(LoadedGameTest, ChartsSwitchBetweenPiesAndBars) {
  window.Detail->setCurrentIndex(1);
  driver.ClickAt("Universe", At({1050, 1300})).Click("ChartType");
  EXPECT_EQ(driver.Text("ChartType"), "View as Pie Chart");
  EXPECT_FALSE(driver.IsVisible("Pie1"));
  const QWidget& bar = driver.Find("MSB");
  EXPECT_EQ(QRect(bar.mapTo(window.Detail, QPoint()), bar.size()), QRect(220, 151, 21, 9));
  EXPECT_EQ(window.focusWidget(), &driver.Find("Universe"));
  driver.Click("ChartType").ClickAt("Universe", At({1390, 1390}));
  EXPECT_TRUE(driver.IsVisible("Pie2") && !driver.IsVisible("MSG"));
  EXPECT_TRUE(driver.Find<PieChart>("Pie1").Slices().empty()) << "a planet that was never seen";
}

TEST_F(LoadedGameTest, PointerIsFollowedInTheStatusLine) {
  const std::tuple<GamePoint, const char*, const char*> cases[] = {
      {{1120, 1250}, " Beta", "Click for more details on Beta"}, {{1200, 1200}, " Deep Space", ""}};
  for (const auto& [place, name, tip] : cases) {
    driver.MoveTo("Universe", At(place));
    EXPECT_EQ(driver.Text("theplanet"), name);
    EXPECT_EQ(driver.Find("Universe").toolTip(), tip);
  }
}

TEST_F(LoadedGameTest, FrameTellsThatTheKeyboardIsOnTheMapUntilItIsClicked) {
  QWidget& map = driver.Click("OvButt(4)").Find("Universe");
  Activate();
  const auto isFramed = [&] {
    return map.grab().toImage().convertToFormat(QImage::Format_RGB32) != Map();
  };
  EXPECT_TRUE(map.hasFocus() && !isFramed()) << "the program gave it the focus";
  driver.Find("Combo1").setFocus();
  map.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(isFramed());
  driver.ClickAt("Universe", At({1200, 1200}));
  EXPECT_FALSE(isFramed());
}

TEST_F(LoadedGameTest, FoundPlanetIsMarkedAndItsDetailsAreShownOnlyWhenAsked) {
  const std::pair<const char*, const char*> cases[] = {
      {"Gamma", ""}, {"Nowhere", ""}, {"Beta", "Beta"}};
  for (const auto& [name, shown] : cases) {
    InNextDialog([name = name, isDetailed = *shown != '\0'](QWidget& opened) {
      if (isDetailed) WindowDriver(opened).Click("Check1");
      WindowDriver(opened).Type("PlanetList", name).Click("Command1");
    });
    driver.Choose("mnuSearchPlanet");
    EXPECT_EQ(driver.Text("PlanetName"), shown);
    EXPECT_EQ(driver.IsVisible("CurrentSelected"), prompts.Shown().empty()) << name;
  }
}

TEST_F(LoadedGameTest, PlanetGridIsFilledAnewByItsMenuItemAndStaysBesideTheWindow) {
  const auto open = [&] {
    driver.Choose("mnuGrid");
    QApplication::processEvents();  // it becomes the active window
    return qobject_cast<Grid*>(QApplication::activeWindow());
  };
  Grid* const grid = open();
  ASSERT_NE(grid, nullptr);
  grid->SetColumnWidth(1, 0);
  grid->showMinimized();
  EXPECT_EQ(open(), grid);
  EXPECT_FALSE(grid->isMinimized());
  EXPECT_EQ(grid->ColumnWidth(1), 795);
  // The program ends with its main window, whatever the grid does.
  QTimer::singleShot(0, &window, &Main::close);
  QTimer::singleShot(5000, &window, [] { QApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(MainWindowTest, NamesTheRacesThatItsFilesLeaveOut) {
  std::string report = folder.Read("Demo.P1");
  report.replace(report.find("Drask"), 5, "the \"Herd\"");
  folder.Write("Demo.P1", report);
  std::filesystem::remove(folder / "Demo.P3");
  Load();
  InNextDialog([](QWidget& dialog) { WindowDriver(dialog).Click("SaveInfo").Click("OK"); });
  driver.Choose("mnuGrid2").Choose("mnuSaveRaceC");
  const std::string leftOut =
      "\n\nLeft out, because a double quote in a name cannot be saved: the \"Herd\"";
  EXPECT_EQ(prompts.Shown(),
            (Texts{"Information Saved" + leftOut, "Current Colour settings saved" + leftOut}));
}

TEST_F(MainWindowTest, TakesAGameWhoseNameIsInTheGamesOwnEncodingAndSavesItsMap) {
  folder.Write("K\xF6n.map", folder.Read("Demo.MAP"));
  folder.Write("K\xF6n.p1", folder.Read("Demo.P1"));
  LoadGame(driver, "Kön.map");
  EXPECT_TRUE(window.windowTitle().contains("{ Kön.map  Year: 2450 }"));
  driver.Click("OvButt(4)").ClickAt("Universe", At({1120, 1250}));
  driver.Choose("mnuSaveRaceC").Choose("mnuSave");
  EXPECT_TRUE(prompts.Shown().back().ends_with("/Kön Universe Map 2450.bmp"));
  EXPECT_NE(folder.Read("K\xF6n.QVC"), "");
  const QByteArray saved = QByteArray::fromStdString(folder.Read("K\xF6n Universe Map 2450.bmp"));
  EXPECT_EQ(QImage::fromData(saved).convertToFormat(QImage::Format_RGB32), Map())
      << "without the marker";
}

TEST_F(MainWindowTest, ShowsTheManualBesideTheMapAndNamesEveryOverlayInIt) {
  driver.Press("Universe", Qt::Key_F1);
  Manual* manual = nullptr;
  const auto isInFront = [&manual] {
    manual = qobject_cast<Manual*>(QApplication::activeWindow());
    return manual != nullptr;
  };
  ASSERT_TRUE(QTest::qWaitFor(isInFront));
  const QString text = manual->Text->toPlainText();
  for (const OverlayTexts& overlay : kOverlayTable) {
    // "Show Names (White)" is explained with its sister, and so are the three minerals.
    QString name = ToQString(overlay.MenuCaption).section(" (", 0, 0);
    EXPECT_TRUE(text.contains(name.remove(" Concentration"))) << name.toStdString();
  }
  QTest::keyClick(manual, Qt::Key_Escape);
  EXPECT_FALSE(manual->isVisible());
}

}  // namespace
}  // namespace quorvane
