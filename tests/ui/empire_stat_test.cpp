#include "ui/empire_stat.h"

#include <gtest/gtest.h>

#include <QTest>
#include <memory>

#include "support/game_builder.h"
#include "support/scripted_prompts.h"
#include "support/window_driver.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// A race at 1 g with all that the reports do not say still unset, and the Drask, who are immune to
// radiation and whose record is as odd as a file can make it.
GameSession TwoRaces() {
  GameBuilder game;
  game.Planet("Alpha", {1100, 1200}).OwnedBy("Humanoid").With(PlanetField::Gravity, "1g");
  game.WithPlayerField(PlayerField::PlanetsOwned, 3).WithPlayerField(PlayerField::TotalIron, 10);
  game.WithPlayerField(PlayerField::TotalPopulation, 1000);
  game.Player("Drask").WithPlayerField(PlayerField::RadImmune, 1);
  game.WithPlayerField(PlayerField::TempImmune, 2).WithPlayerField(PlayerField::LesserTraits, "7");
  game.WithPlayerField(PlayerField::PrimaryTrait, "he");
  game.WithPlayerField(PlayerField::NotesText, "one\r\ntwo");
  GameSession session = game.Build();
  const double ranges[] = {0.5, 2, -100, 100, 20, 80};
  for (const int player : {1, 2}) {
    for (std::size_t i = 0; i < 6; ++i) session.Player(player).Field(8 + i) = ranges[i] / player;
  }
  return session;
}

class EmpireStatTest : public testing::Test {
 protected:
  EmpireStatTest() { Open("Humanoid"); }

  void Open(const char* myRace) {
    session.MyRaceName = myRace;
    window = std::make_unique<EmpireStat>(session, prompts, nullptr);
    driver = std::make_unique<WindowDriver>(*window);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  WindowDriver& OnTab(int tab) {
    window->SSTab1->setCurrentIndex(tab);
    return *driver;
  }
  const FieldValue& Field(std::size_t number) { return session.Player(1).Field(number); }

  GameSession session = TwoRaces();
  ScriptedPrompts prompts;
  std::unique_ptr<EmpireStat> window;
  std::unique_ptr<WindowDriver> driver;
};

TEST_F(EmpireStatTest, OpensOnTheUsersOwnRaceOrOnNone) {
  EXPECT_EQ(driver->Text("ShowData(4)"), "1000");
  EXPECT_EQ(driver->Text("AvgData(0)") + " " + driver->Text("AvgData(4)"), "333 3.333");
  Open("");
  EXPECT_EQ(window->CurrentPlayer, 0);
  EXPECT_EQ(driver->Text("AvgData(0)"), "");
  EXPECT_FALSE(driver->IsEnabled("ShowData(8)") || driver->IsEnabled("RaceNotes"));
}

TEST_F(EmpireStatTest, LongNamesAndSumsAreShortenedAndTheTooltipTellsThem) {
  const QSize usual = window->size();
  const std::string name(300, 'W');
  const QString sum(300, '9');
  PlayerRecord& player = session.Player(1);
  player[PlayerField::Name] = FieldValue(name);
  player[PlayerField::Territory] = player[PlayerField::GravMin] = FieldValue(ToText(sum));
  player[PlayerField::GravMax] = "a&b";
  Open(name.c_str());
  EXPECT_EQ(window->size(), usual);
  EXPECT_EQ(window->Combo1->toolTip(), ToQString(name));
  EXPECT_EQ(driver->Text("ShowData(14)"), sum);
  EXPECT_EQ(window->Totals->ShowData[14]->toolTip(), sum + "\nTotal Territory in ly");
  EXPECT_EQ(OnTab(1).Find("ShowData(8)").toolTip(), sum);
  EXPECT_EQ(driver->Find("ShowData(9)").toolTip(), "");
  EXPECT_TRUE(window->Race->ShowData[9]->shortcut().isEmpty()) << "no access key";
}

TEST_F(EmpireStatTest, ShowsAPlayerWhenTheTextIsExactlyItsName) {
  for (const char* other : {"drask", "Dras", " Drask"}) {
    driver->Type("Combo1", other).Press("Combo1", Qt::Key_Return).Press("Combo1", Qt::Key_Tab);
    EXPECT_EQ(driver->Text("Combo1"), other);
    EXPECT_EQ(window->CurrentPlayer, 1) << other;
    EXPECT_TRUE(window->isVisible());
  }
  const auto before = session.PlayerTable;
  driver->Type("Combo1", "Drask");
  EXPECT_EQ(window->CurrentPlayer, 2);
  EXPECT_EQ(driver->Text("AvgData(0)"), "");
  OnTab(1).Press("RacePRT", Qt::Key_Tab);
  EXPECT_EQ(driver->Text("RacePRT"), "he");
  EXPECT_EQ(window->RaceNotes->toPlainText(), "one\ntwo");
  EXPECT_TRUE(driver->IsDown("ImmuneMark(2)"));
  EXPECT_FALSE(driver->IsDown("ImmuneMark(1)") || driver->IsDown("LRT(0)"));
  driver->Press("Combo1", Qt::Key_Up);
  EXPECT_EQ(driver->Text("Combo1"), "Humanoid");
  EXPECT_EQ(window->CurrentPlayer, 1);
  EXPECT_TRUE(session.PlayerTable == before) << "filling the controls changes nothing";
}

TEST_F(EmpireStatTest, ClickOrKeyOnARangeAsksForItsNewValue) {
  prompts.AnswerText("0.125");
  OnTab(1).Click("ShowData(8)");
  EXPECT_TRUE(prompts.Shown().at(0).ends_with("\r\n(Enter Decimals using a dot . ) [0.5]"));
  EXPECT_EQ(driver->Text("ShowData(8)"), "0.12");
  EXPECT_EQ(Field(8), FieldValue(0.12));
  prompts.AnswerText("100.01");
  driver->Press("ShowData(13)", Qt::Key_Return);
  EXPECT_EQ(prompts.Shown().at(1), "New Value either exceeds minimum or maximum allowed");
  driver->Press("ShowData(13)", Qt::Key_Space);  // cancelled
  EXPECT_EQ(prompts.Shown().size(), 1U);
  EXPECT_EQ(Field(13), FieldValue(80.0));
  EXPECT_TRUE(window->isVisible());
}

TEST_F(EmpireStatTest, ImmunityStandsInPlaceOfItsRange) {
  OnTab(1).Click("ImmuneMark(0)").Click("ShowData(9)");
  EXPECT_EQ(prompts.Shown(), Texts{"This race is Immune to this hab type"});
  EXPECT_EQ(driver->Text("ShowData(8)") + driver->Text("ShowData(10)"), "Immune-100");
  driver->Type("Combo1", "Drask");
  EXPECT_EQ(driver->Text("ShowData(9)") + driver->Text("ShowData(12)"), "1Immune");
  driver->Type("Combo1", "Humanoid").Click("ImmuneMark(0)");
  EXPECT_EQ(driver->Text("ShowData(9)"), "2");
  EXPECT_EQ(Field(19), FieldValue(0));
}

TEST_F(EmpireStatTest, RecalculationEstimatesAnewAndEndsImmunities) {
  OnTab(1).Click("ImmuneMark(2)").Type("Combo1", "nobody").Click("ReCalcHab");
  EXPECT_EQ(prompts.Shown(), Texts{"There is no empire named \"nobody\". Nothing was changed."});
  EXPECT_EQ(Field(21), FieldValue(1));
  driver->Type("Combo1", "Humanoid").Click("ReCalcHab");
  EXPECT_EQ(driver->Text("ShowData(9)") + " " + driver->Text("ShowData(13)"), "1.75 20");
  EXPECT_EQ(Field(21), FieldValue(0));
}

TEST_F(EmpireStatTest, EveryControlSetsItsField) {
  OnTab(1).Click("ImmuneMark(1)").Press("RacePRT", Qt::Key_Down);
  for (int trait = 0; trait < 14; trait += 3) driver->Click(IndexedName("LRT", trait));
  OnTab(2);
  QTest::keyClicks(window->RaceNotes, "They came,\rsaw; 'won'");
  window->RaceNotes->insertPlainText("\u00A0!");
  EXPECT_EQ(Field(20), FieldValue(1));
  EXPECT_EQ(Field(22), FieldValue("HE"));
  for (std::size_t trait = 0; trait < 14; ++trait) {
    EXPECT_EQ(Field(23 + trait).ReadsAs(1), trait % 3 == 0) << trait;
  }
  EXPECT_EQ(Field(37), FieldValue("They came,\nsaw; 'won'\u00A0!"));
}

TEST_F(EmpireStatTest, EnterPressesTheButtonThatHasTheFocusAndNothingElse) {
  for (const char* name : {"ImmuneMark(0)", "RacePRT", "LRT(0)", "ReCalcHab"}) {
    OnTab(1).Find(name).setFocus();
    driver->Press(name, Qt::Key_Return);
    EXPECT_TRUE(window->isVisible()) << name;
  }
  EXPECT_EQ(driver->Text("ShowData(13)"), "20") << "calculated anew";
  window->OK->setFocus();
  driver->Press("OK", Qt::Key_Enter);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(EmpireStatTest, TabKeyReachesEveryControlInReadingOrder) {
  OnTab(1);
  QStringList reached;
  for (int step = 0; step < 30; ++step) {
    reached << window->focusWidget()->objectName();
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(reached.join(' '),
            "Combo1 qt_tabwidget_tabbar ShowData(8) ShowData(9) ImmuneMark(0) ShowData(10) "
            "ShowData(11) ImmuneMark(1) ShowData(12) ShowData(13) ImmuneMark(2) RacePRT LRT(0) "
            "LRT(1) LRT(2) LRT(3) LRT(4) LRT(5) LRT(6) LRT(7) LRT(8) LRT(9) LRT(10) LRT(11) "
            "LRT(12) LRT(13) ReCalcHab SaveInfo OK Combo1");
  OnTab(2).Find("RaceNotes").setFocus();
  driver->Press("RaceNotes", Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), window->SaveInfo);
  driver->Press("RaceNotes", Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

}  // namespace
}  // namespace quorvane
