#include "ui/find_planet.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>

#include "support/game_builder.h"
#include "support/scripted_prompts.h"
#include "support/window_driver.h"

namespace quorvane {
namespace {

class FindPlanetTest : public testing::Test {
 protected:
  FindPlanetTest() {
    GameBuilder game;
    game.Planet("Twin", {1100, 1200}).OwnedBy("Drask").Planet("Beta", {1300, 1400});
    session = game.Planet("Twin", {1500, 1600}).Build();
    dialog.show();
  }

  GameSession session;
  ScriptedPrompts prompts;
  MapState state;
  FindPlanet dialog{session, state, prompts, nullptr};
  WindowDriver driver{dialog};
};

TEST_F(FindPlanetTest, TypedNameFindsTheFirstPlanetAndAnEntryItsOwn) {
  // The third entry reads just like this text, but it was typed.
  driver.Type("PlanetList", "Twin").Press("PlanetList", Qt::Key_Tab).Click("Command1");
  EXPECT_EQ(state.SelectedX, 100);
  EXPECT_FALSE(dialog.isVisible());

  dialog.show();
  EXPECT_EQ(driver.Text("PlanetList"), "Twin");
  dialog.PlanetList->setCurrentIndex(2);
  driver.Click("Command1");
  EXPECT_EQ(state.SelectedX, 500);
  EXPECT_EQ(prompts.Shown(), Texts());

  dialog.show();
  driver.Type("PlanetList", "Twin (Drask)").Press("PlanetList", Qt::Key_Return);
  EXPECT_EQ(prompts.Shown(), Texts{"Planet Twin (Drask) not found!"});
}

TEST_F(FindPlanetTest, EnterGoesToTheTypedNameAlthoughCompletionsAreOffered) {
  QTest::keyClicks(dialog.PlanetList->lineEdit(), "Twin");
  QWidget& completions = *dialog.PlanetList->completer()->popup();
  ASSERT_TRUE(completions.isVisible());
  QTest::keyClick(&completions, Qt::Key_Return);
  EXPECT_EQ(state.SelectedX, 100);
  EXPECT_FALSE(dialog.isVisible() || completions.isVisible());

  dialog.show();
  driver.Type("PlanetList", "");
  QTest::keyClicks(dialog.PlanetList->lineEdit(), "b");
  QTest::keyClick(&completions, Qt::Key_Down);
  QTest::keyClick(&completions, Qt::Key_Return);
  EXPECT_EQ(driver.Text("PlanetList"), "Beta");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_GT(dialog.Command1->x(), dialog.PlanetList->geometry().right());
}

TEST_F(FindPlanetTest, ListsThePlanetsOfTheGameOnScreenAtEachOpening) {
  driver.Click("Check1").Click("Command2");
  session = GameBuilder().Planet("Only", {1100, 1200}).Build();
  dialog.show();
  EXPECT_EQ(dialog.PlanetList->count(), 1);
  EXPECT_EQ(driver.Text("PlanetList"), "");
  EXPECT_EQ(dialog.ShowFoundDetails, 1);
}

}  // namespace
}  // namespace quorvane
