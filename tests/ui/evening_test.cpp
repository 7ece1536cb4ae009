#include <gtest/gtest.h>

#include <QAction>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "analysis/find_planet.h"
#include "platform/files/files.h"
#include "render/planets_in_view.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"
#include "support/window_driver.h"
#include "ui/details_panel.h"
#include "ui/empire_stat.h"
#include "ui/main_window.h"
#include "ui/map_panel.h"
#include "ui/race_colour.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr const char* kHome = "Ulundnis's Watch";
constexpr const char* kAllysGate = "Kelothan Gate";

// A player at the example game, which lies in a folder of the player's own.
class EveningTest : public testing::Test {
 protected:
  EveningTest() {
    for (const auto& file : std::filesystem::directory_iterator(QUORVANE_EXAMPLES_DIR)) {
      std::filesystem::copy(file, folder / TextFromPath(file.path().filename()));
    }
    Start();
  }

  // Starts the program anew and loads the game.
  void Start() {
    window = std::make_unique<Main>(folder.Path(), &prompts);
    driver = std::make_unique<WindowDriver>(*window);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    InDialog<QDialog>("mnuMap", [](QDialog& dialog) {
      WindowDriver(dialog)
          .ClickEntry("File1", "Aurelia Reach.map")
          .Type("txtGameYear", "2450")
          .Click("Command1");
    });
    ASSERT_EQ(prompts.Shown(), Texts());
  }

  // Chooses a menu item that opens a dialog and works it.
  template <typename Dialog>
  void InDialog(const char* item, const std::function<void(Dialog&)>& work) {
    QTimer::singleShot(0, window.get(), [&work] {
      work(dynamic_cast<Dialog&>(*QApplication::activeModalWidget()));
    });
    driver->Choose(item);
  }

  const GameSession& Game() { return window->Session(); }
  const MapView& View() { return window->Map->State().View; }
  QPoint PlaceOf(const char* planet) {
    const PlanetRecord& record = Game().Planet(FindPlanetNamed(Game(), planet));
    return window->Map->Universe->WidgetPoint(PositionOf(record, View())).toPoint();
  }
  QImage Map() { return window->Map->Universe->Surface().Picture(); }

  void LookAround() {
    driver->Click("OvButt(4)").Click("OvButt(2)").Click("OvButt(6)").Choose("mnuNames(0)");
    driver->Choose("mnuToolBarBut(7)").Choose("mnuStarGate").Click("OvButt(11)");
    const QImage full = Map();
    driver->ClickAt("Universe", PlaceOf(kHome));
    EXPECT_EQ(driver->Text("PlanetName"), kHome);
    EXPECT_EQ(driver->Text("Owner"), "Halvorane");
    EXPECT_EQ(Map(), full) << "a click draws nothing";

    const QPoint home = PlaceOf(kHome);
    driver->Click("OvButt(1)").ClickAt("Universe", home - QPoint(80, 80));
    driver->MoveTo("Universe", home + QPoint(80, 0)).ClickAt("Universe", home + QPoint(80, 0));
    EXPECT_NEAR(View().ViewXMax - View().ViewXMin, 160 * 1000.0 / full.width(), 80);
    const int before = View().ViewXMin;
    driver->Press("Universe", Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_GT(View().ViewXMin, before);
    EXPECT_TRUE(driver->Find("CurrentSelected").geometry().contains(PlaceOf(kHome)));
    InDialog<QDialog>("mnuSearchPlanet", [](QDialog& dialog) {
      WindowDriver(dialog).Click("Check1").Type("PlanetList", kAllysGate).Click("Command1");
    });
    EXPECT_EQ(driver->Text("PlanetName"), kAllysGate);
    driver->Click("OvButt(1)");
    EXPECT_EQ(Map(), full);
  }

  void DrawALine() {
    window->Detail->setCurrentWidget(window->Detail->Tools);
    driver->Click("Draw(2)").Click("DColour(4)").ClickAt("Universe", PlaceOf(kHome));
    driver->ClickAt("Universe", PlaceOf(kAllysGate)).Click("SaveQVL");
  }

  void ChangeAColour() {
    QTimer::singleShot(0, window.get(), [] {
      auto& dialog = dynamic_cast<RaceColour&>(*QApplication::activeModalWidget());
      dialog.RedSlide->setValue(1);
      dialog.GreenSlide->setValue(250);
      WindowDriver(dialog).Click("butOK");
    });
    driver->ClickAt("RaceC(0)", {4, 4}).Choose("mnuSaveRaceC");
  }

  void CorrectARange() {
    InDialog<EmpireStat>("mnuGrid2", [this](EmpireStat& statistics) {
      statistics.SSTab1->setCurrentWidget(statistics.Race);
      prompts.AnswerText("-199.5");
      WindowDriver race(statistics);
      race.ClickAt("ShowData(10)", {9, 9}).Click("LRT(13)");
      statistics.RaceNotes->setPlainText("Watch the\nsouth");
      race.Click("SaveInfo").Click("OK");
    });
  }

  QString EstimateInGrid() {
    driver->Choose("mnuGrid");
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->objectName() != "Grid" || !top->isVisible()) continue;
      const QAbstractItemModel& cells = *top->findChild<QTableView*>("DG")->model();
      const int row = FindPlanetNamed(Game(), kHome) - 1;
      const int column = 24 + Game().FindPlayerByName(Game().MyRaceName);
      return cells.index(row, column).data().toString();
    }
    return "no grid";
  }

  TempFolder folder;
  ScriptedPrompts prompts;
  std::unique_ptr<Main> window;
  std::unique_ptr<WindowDriver> driver;
};

TEST_F(EveningTest, WhatWasDoneIsFoundAgainTheNextDay) {
  LookAround();
  DrawALine();
  ChangeAColour();
  CorrectARange();
  driver->Choose("mnuSave");
  const Texts shown = prompts.Shown();
  ASSERT_EQ(shown.size(), 5U);
  EXPECT_EQ(shown[0], "Saved to " + TextFromPath(folder / "Aurelia Reach.QVL"));
  EXPECT_EQ(shown[1], "Current Colour settings saved");
  EXPECT_EQ(shown[3], "Information Saved");
  const QString estimate = EstimateInGrid();
  const Colour colour = *Game().ColourOf(1);
  const GameSession before = Game();

  window.reset();
  Start();
  EXPECT_EQ(Game().PlayerTable, before.PlayerTable);
  EXPECT_EQ(Game().RaceColours, before.RaceColours);
  EXPECT_EQ(*Game().ColourOf(1), colour);
  EXPECT_EQ(std::pair(colour.Red, colour.Green), std::pair(1, 250));
  const PlayerRecord& own = Game().Player(Game().FindPlayerByName(Game().MyRaceName));
  EXPECT_EQ(own[PlayerField::TempMin], FieldValue(-199.5));
  EXPECT_EQ(own[PlayerField::NotesText].Text(), "Watch the\nsouth");
  EXPECT_EQ(EstimateInGrid(), estimate);
  driver->ClickAt("Universe", PlaceOf(kHome));
  const int ownRow = Game().FindPlayerByName(Game().MyRaceName) - 1;
  EXPECT_EQ(driver->Text(IndexedName("RHab", ownRow)), estimate + "%");
  driver->Click("OvButt(10)");
  EXPECT_TRUE(driver->Find<QPlainTextEdit>("PlotBox").toPlainText().endsWith(",5\n"));
  const QPoint middle = (PlaceOf(kHome) + PlaceOf(kAllysGate)) / 2;
  EXPECT_EQ(Map().pixelColor(middle), QColor(255, 255, 0));
  const QImage picture(PathText(folder / "Aurelia Reach Universe Map 2450.bmp"));
  EXPECT_EQ(picture.size(), Map().size());
}

}  // namespace
}  // namespace quorvane
