#include "ui/details_panel.h"
#include "ui/drawing_tools.h"
#include "ui/empire_stat.h"
#include "ui/main_window_fixture.h"
#include "ui/race_colour.h"

namespace quorvane {
namespace {

// A player who draws on the map, changes a colour and corrects a race, saving each.
class EveningTest : public LoadedGameTest {
 protected:
  void DrawALine() {
    OpenTools();
    driver.Click("Draw(2)").Click("DColour(4)").ClickAt("Universe", At({1100, 1250}));
    driver.ClickAt("Universe", At({1300, 1250})).Click("SaveQVL");
  }

  void ChangeAColour() {
    InNextDialog<RaceColour>([](RaceColour& dialog) {
      dialog.RedSlide->setValue(1);
      dialog.GreenSlide->setValue(250);
      dialog.butOK->click();
    });
    driver.ClickAt("RaceC(0)", {4, 4}).Choose("mnuSaveRaceC");
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
    driver.Choose("mnuGrid2");
  }
};

TEST_F(EveningTest, WhatWasDoneIsFoundAgainTheNextDay) {
  DrawALine();
  ChangeAColour();
  CorrectARange();
  EXPECT_EQ(prompts.Shown().size(), 4U);

  Main nextDay(folder.Path(), &prompts);
  nextDay.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&nextDay));
  WindowDriver next(nextDay);
  LoadGame(next, "Demo.MAP");
  EXPECT_EQ(prompts.Shown(), Texts());
  const PlayerRecord& own = nextDay.Session().Player(1);
  EXPECT_EQ(own[PlayerField::TempMin], FieldValue(-199.5));
  EXPECT_EQ(own[PlayerField::NotesText].Text(), "Watch the\nsouth");
  EXPECT_EQ(*nextDay.Session().ColourOf(1), (Colour{1, 250, 0}));
  EXPECT_TRUE(nextDay.Detail->Tools->PlotBox->toPlainText().endsWith(",5\n"));
  next.Click("OvButt(10)");
  EXPECT_FALSE(IsBlank(nextDay.Map->Universe->Surface().Picture()));
}

}  // namespace
}  // namespace quorvane
