#include "ui/distances_dock.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QTest>
#include <span>

#include "support/game_builder.h"
#include "support/window_driver.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr const char* kName = "<b>&x</b>";

class DistancesDockTest : public testing::Test {
 protected:
  DistancesDockTest() {
    GameBuilder game;
    game.Planet("A", {1500, 1500}).OwnedBy("Mine").With(PlanetField::GateRange, 100);
    game.Planet(kName, {1700, 1500}).OwnedBy("Mine").With(PlanetField::GateRange, 300);
    game.Planet("C", {1581, 1500}).OwnedBy("Mine");
    session = game.Build();
    session.MyRaceName = "Mine";
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    window.resize(360, 600);
    window.show();
    QObject::connect(dock, &DistancesDock::PlanetChosen, [this](int number) {
      chosen << number;
      dock->ShowNearest(session, number);  // as the window does
    });
  }

  void Show(int selected, int pointer, int kept) {
    const std::string from = selected > 0 ? session.Planet(selected).Name() : "";
    dock->ShowWays(from, DescribeWay(session, selected, pointer, StoredPoint{500, 600}),
                   DescribeWay(session, selected, kept));
    dock->ShowNearest(session, selected);
  }
  QPoint Row(const QString& list, int row) const {
    const auto& tree = driver.Find<QTreeWidget>(list);
    return tree.visualItemRect(tree.topLevelItem(row)).center();
  }

  GameSession session;
  QMainWindow window;
  DistancesDock* dock = new DistancesDock(&window);
  WindowDriver driver{*dock};
  QList<int> chosen;
};

TEST_F(DistancesDockTest, TellsBothWaysAndNamesAsTheyStand) {
  EXPECT_EQ(driver.Text("DistancesFrom"), "Select a planet on the map first");
  Show(2, 0, 1);
  const std::pair<const char*, const char*> texts[] = {
      {"DistancesFrom", "From <b>&x</b>"},      {"DistancesPointer", "Deep Space"},
      {"DistancesLightYears(0)", "223.6 l.y."}, {"DistancesLightYears(1)", "200.0 l.y."},
      {"DistancesYears(0,4)", "14 years"},      {"DistancesYears(1,10)", "2 years"},
      {"DistancesGateThere(1)", "safe"},        {"DistancesGateBack(1)", "damage, 2.0 x range"}};
  for (const auto& [control, text] : texts) EXPECT_EQ(driver.Text(control), text) << control;
  EXPECT_TRUE(driver.IsEnabled("DistancesForget"));

  Show(1, 2, 0);
  EXPECT_EQ(driver.Text("DistancesPointer"), kName);
  const QTreeWidgetItem& row = *driver.Find<QTreeWidget>("DistancesOwn").topLevelItem(1);
  EXPECT_EQ(row.text(0) + row.text(1) + row.text(2), kName + QString("200.03 years"));
  for (const QLabel* label : dock->findChildren<QLabel*>()) {
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << ToText(label->objectName());
  }
  EXPECT_EQ(driver.Text("DistancesKept") + driver.Text("DistancesGateBack(1)"), "");
  EXPECT_FALSE(driver.IsEnabled("DistancesForget"));

  Show(0, 2, 1);
  EXPECT_EQ(driver.Text("DistancesFrom"), "Select a planet on the map first");
  for (const auto& [control, text] : std::span(texts).subspan(1)) {
    EXPECT_EQ(driver.Text(control), "") << control;
  }
  EXPECT_TRUE(driver.IsEnabled("DistancesForget")) << "it can be forgotten all the same";
  EXPECT_EQ(driver.Find<QTreeWidget>("DistancesOwn").topLevelItemCount(), 0);
}

TEST_F(DistancesDockTest, RowsAreChosenByClickAndKey) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  Show(1, 0, 0);
  auto& own = driver.Find<QTreeWidget>("DistancesOwn");
  const QTreeWidgetItem* const first = own.topLevelItem(0);
  own.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(dock->ChosenPlanet(), 3);
  driver.Press("DistancesOwn", Qt::Key_Down);
  Show(1, 2, 3);
  EXPECT_EQ(own.topLevelItem(0), first);
  EXPECT_EQ(dock->ChosenPlanet(), 2);
  driver.Click("DistancesKeep");
  EXPECT_EQ(dock->ChosenPlanet(), 2) << "a click on the button may be about it";
  driver.Press("DistancesOwn", Qt::Key_Return);
  EXPECT_EQ(chosen, QList<int>{2});
  EXPECT_EQ(dock->ChosenPlanet(), 3) << "the nearest one of planet 2";
  driver.Press("DistancesOwn", Qt::Key_Tab);
  EXPECT_EQ(dock->ChosenPlanet(), 1) << "in the other list";
  driver.Press("DistancesGates", Qt::Key_Backtab);

  QTest::mouseClick(own.viewport(), Qt::LeftButton, {}, Row("DistancesOwn", 0));
  QTest::mouseDClick(own.viewport(), Qt::LeftButton, {}, Row("DistancesOwn", 0));
  QTest::mouseRelease(own.viewport(), Qt::LeftButton, {}, Row("DistancesOwn", 0));
  EXPECT_EQ(chosen, (QList<int>{2, 3}));
}

TEST_F(DistancesDockTest, ButtonsAskAndWorkByKey) {
  QStringList asked;
  QObject::connect(dock, &DistancesDock::KeepAsked, [&] { asked << "keep"; });
  QObject::connect(dock, &DistancesDock::ForgetAsked, [&] { asked << "forget"; });
  Show(1, 0, 2);
  driver.Press("DistancesKeep", Qt::Key_Space).Click("DistancesForget");
  EXPECT_EQ(asked, (QStringList{"keep", "forget"}));
}

}  // namespace
}  // namespace quorvane
