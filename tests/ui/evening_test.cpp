#include <QPlainTextEdit>
#include <QTableView>
#include <memory>

#include "analysis/find_planet.h"
#include "platform/files/files.h"
#include "render/planets_in_view.h"
#include "ui/details_panel.h"
#include "ui/empire_stat.h"
#include "ui/main_window_fixture.h"
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
    LoadGame(*driver, "Aurelia Reach.map");
    ASSERT_EQ(prompts.Shown(), Texts());
  }

  const GameSession& Game() { return window->Session(); }
  int OwnNumber() { return Game().FindPlayerByName(Game().MyRaceName); }
  QPoint PlaceOf(const char* planet) {
    const PlanetRecord& record = Game().Planet(FindPlanetNamed(Game(), planet));
    const SurfacePoint at = PositionOf(record, window->Map->State().View);
    return window->Map->Universe->WidgetPoint(at).toPoint();
  }
  QImage Map() { return window->Map->Universe->Surface().Picture(); }

  void LookAround() {
    driver->Click("OvButt(4)").Click("OvButt(2)").Click("OvButt(6)").Choose("mnuNames(0)");
    driver->Choose("mnuToolBarBut(7)").Choose("mnuStarGate").Click("OvButt(11)");
    const QImage full = Map();
    const QPoint home = PlaceOf(kHome);
    driver->ClickAt("Universe", home);
    EXPECT_EQ(driver->Text("PlanetName"), kHome);
    EXPECT_EQ(Map(), full) << "a click draws nothing";

    driver->Click("OvButt(1)").ClickAt("Universe", home - QPoint(80, 80));
    driver->MoveTo("Universe", home + QPoint(80, 0)).ClickAt("Universe", home + QPoint(80, 0));
    driver->Press("Universe", Qt::Key_Right, Qt::ShiftModifier);
    InNextDialog([](QWidget& dialog) {
      WindowDriver(dialog).Click("Check1").Type("PlanetList", kAllysGate).Click("Command1");
    });
    driver->Choose("mnuSearchPlanet");
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
    InNextDialog<RaceColour>([](RaceColour& dialog) {
      dialog.RedSlide->setValue(1);
      dialog.GreenSlide->setValue(250);
      dialog.butOK->click();
    });
    driver->ClickAt("RaceC(0)", {4, 4}).Choose("mnuSaveRaceC");
  }

  void CorrectARange() {
    InNextDialog<EmpireStat>([this](EmpireStat& statistics) {
      statistics.SSTab1->setCurrentWidget(statistics.Race);
      prompts.AnswerText("-199.5");
      WindowDriver race(statistics);
      race.ClickAt("ShowData(10)", {9, 9}).Click("LRT(13)");
      statistics.RaceNotes->setPlainText("Watch the\nsouth");
      race.Click("SaveInfo").Click("OK");
    });
    driver->Choose("mnuGrid2");
  }

  QString EstimateInGrid() {
    driver->Choose("mnuGrid");
    QApplication::processEvents();  // it becomes the active window
    const auto* cells = QApplication::activeWindow()->findChild<QTableView*>("DG")->model();
    return cells->index(FindPlanetNamed(Game(), kHome) - 1, 24 + OwnNumber()).data().toString();
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
  EXPECT_EQ(prompts.Shown().size(), 5U);
  const QString estimate = EstimateInGrid();
  const GameSession before = Game();

  window.reset();
  Start();
  EXPECT_EQ(Game().PlayerTable, before.PlayerTable);
  EXPECT_EQ(Game().RaceColours, before.RaceColours);
  EXPECT_EQ(Game().ColourOf(1)->Red, 1);
  EXPECT_EQ(Game().ColourOf(1)->Green, 250);
  const PlayerRecord& own = Game().Player(OwnNumber());
  EXPECT_EQ(own[PlayerField::TempMin], FieldValue(-199.5));
  EXPECT_EQ(own[PlayerField::NotesText].Text(), "Watch the\nsouth");
  EXPECT_EQ(EstimateInGrid(), estimate);
  driver->ClickAt("Universe", PlaceOf(kHome));
  EXPECT_EQ(driver->Text(IndexedName("RHab", OwnNumber() - 1)), estimate + "%");
  driver->Click("OvButt(10)");
  EXPECT_TRUE(driver->Find<QPlainTextEdit>("PlotBox").toPlainText().endsWith(",5\n"));
  const QPoint middle = (PlaceOf(kHome) + PlaceOf(kAllysGate)) / 2;
  EXPECT_EQ(Map().pixelColor(middle), QColor(255, 255, 0));
  EXPECT_TRUE(FindFile(folder / "Aurelia Reach Universe Map 2450.bmp"));
}

}  // namespace
}  // namespace quorvane
