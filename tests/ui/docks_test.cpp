#include <QSettings>

#include "support/write_faults.h"
#include "ui/distances_dock.h"
#include "ui/key_dock.h"
#include "ui/main_window_fixture.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

class DocksTest : public LoadedGameTest {
 protected:
  QStringList KeyTexts() {
    QStringList texts;
    for (const QLabel* label : window.KeyDock->KeyList->widget()->findChildren<QLabel*>()) {
      if (!label->text().isEmpty()) texts << label->text();
    }
    return texts;
  }
};

TEST_F(DocksTest, LeaveEveryControlWhereItIsWhileTheyAreClosed) {
  const auto places = [&] {
    QList<QRect> rects;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
      if (!control->objectName().isEmpty() && control->isVisible()) rects << control->geometry();
    }
    return rects;
  };
  QApplication::processEvents();
  const QList<QRect> before = places();
  driver.Choose("ViewKey").Choose("ViewDistances");
  QApplication::processEvents();
  EXPECT_TRUE(window.KeyDock->isVisible() && driver.Action("ViewKey").isChecked());
  EXPECT_FALSE(places() == before);
  window.KeyDock->close();
  EXPECT_FALSE(driver.Action("ViewKey").isChecked());
  driver.Choose("ViewDistances");
  QApplication::processEvents();
  EXPECT_EQ(places(), before);
}

TEST_F(DocksTest, KeyFollowsTheSwitchesAndTheZoom) {
  driver.Choose("ViewKey");
  EXPECT_EQ(KeyTexts(), QStringList{"No overlay is on"});
  driver.Click("OvButt(5)").Click("OvButt(2)");
  EXPECT_EQ(KeyTexts().at(0), "Planets");
  EXPECT_TRUE(KeyTexts().contains("magenta: habitable after terraforming"));
  EXPECT_EQ(driver.Text("KeyAcross"), "400 light years across");
  driver.Choose("ViewZoomIn").Click("OvButt(0)");
  QApplication::processEvents();
  EXPECT_EQ(driver.Text("KeyAcross"), "320 light years across");
  EXPECT_TRUE(window.KeyDock->KeyScaleBar->accessibleDescription().endsWith(" l.y."));
  EXPECT_EQ(KeyTexts(), QStringList{"No overlay is on"});
}

TEST_F(DocksTest, HintStandsOnTheBlackMapUntilTheFirstOverlay) {
  EXPECT_TRUE(driver.IsVisible("MapHint"));
  driver.Click("OvButt(2)");
  EXPECT_FALSE(driver.IsVisible("MapHint"));
  driver.Click("OvButt(2)");
  EXPECT_FALSE(driver.IsVisible("MapHint"));
}

TEST_F(DocksTest, DistancesAreToldToThePointerAndToAKeptDestination) {
  driver.Choose("ViewDistances").MoveTo("Universe", At({1300, 1100}));
  EXPECT_EQ(driver.Text("DistancesFrom"), "Select a planet on the map first");
  driver.ClickAt("Universe", At({1050, 1300}));
  driver.MoveTo("Universe", At({1300, 1100}));
  EXPECT_EQ(driver.Text("DistancesFrom"), "From Alpha");
  EXPECT_EQ(driver.Text("DistancesPointer"), "Gamma");
  EXPECT_EQ(driver.Text("DistancesLightYears(0)"), "320.2 l.y.");
  EXPECT_EQ(driver.Text("DistancesYears(0,9)"), "4 years");
  driver.Choose("ViewKeepDestination").MoveTo("Universe", At({1200, 1200}));
  EXPECT_EQ(driver.Text("DistancesPointer"), "Deep Space");
  EXPECT_EQ(driver.Text("DistancesGateThere(0)"), "no");
  EXPECT_EQ(driver.Text("DistancesKept"), "Gamma");
  EXPECT_TRUE(driver.IsVisible("WayLine"));
  EXPECT_EQ(driver.Text("WayLength"), "320.2 l.y.");
  EXPECT_NEAR(window.Map->WayLine->geometry().left(), At({1050, 1300}).x(), 3);
  driver.Choose("ViewZoomIn");
  EXPECT_NEAR(window.Map->WayLine->geometry().bottom(), At({1300, 1100}).y(), 3);
  driver.Click("DistancesForget");
  EXPECT_FALSE(driver.IsVisible("WayLine") || driver.IsEnabled("DistancesForget"));
}

TEST_F(DocksTest, RowOfANearPlanetSelectsIt) {
  driver.Choose("ViewDistances").ClickAt("Universe", At({1050, 1300}));
  auto& own = driver.Find<QTreeWidget>("DistancesOwn");
  EXPECT_EQ(own.topLevelItemCount(), 1);
  Activate();
  own.setFocus();
  driver.MoveTo("Universe", At({1200, 1200})).Choose("ViewKeepDestination");
  EXPECT_EQ(driver.Text("DistancesKept"), "Beta") << "the row with the keyboard";
  QTest::keyClick(&own, Qt::Key_Return);
  EXPECT_EQ(driver.Text("PlanetName"), "Beta");
  EXPECT_TRUE(driver.IsVisible("CurrentSelected"));
}

TEST_F(DocksTest, NamesAndGatesFollowTheirSwitchesAndTheSelectedPlanet) {
  driver.Click("OvButt(4)").Choose("mnuNames(0)");
  const QImage outlined = Map();
  driver.Choose("ViewOutlineNames");
  EXPECT_FALSE(Map() == outlined);
  driver.Choose("ViewOutlineNames");
  EXPECT_TRUE(Map() == outlined);
  driver.Click("OvButt(0)").Choose("mnuStarGate");
  const QImage all = Map();
  EXPECT_FALSE(IsBlank(all));
  driver.Choose("ViewGatesOfSelected");
  EXPECT_TRUE(Map() == all) << "no planet is selected";
  driver.ClickAt("Universe", At({1390, 1390}));
  EXPECT_TRUE(IsBlank(Map())) << "a planet without a gate";
  driver.Choose("mnuHideSelect");
  EXPECT_TRUE(Map() == all);
}

class PreferencesTest : public MainWindowTest {
 protected:
  std::filesystem::path file = folder / "quorvane.ini";
};

TEST_F(PreferencesTest, AreKeptForTheNextStart) {
  {
    Main first(folder.Path(), &prompts, file);
    WindowDriver main(first);
    first.show();
    first.resize(1111, 777);
    main.Choose("ViewOutlineNames").Choose("ViewFewerNames").Choose("ViewKey");
    first.close();
  }
  Main second(folder.Path(), &prompts, file);
  WindowDriver main(second);
  second.show();
  EXPECT_FALSE(main.Action("ViewOutlineNames").isChecked());
  EXPECT_TRUE(main.Action("ViewFewerNames").isChecked() && second.KeyDock->isVisible());
  EXPECT_FALSE(second.DistancesDock->isVisible());
  EXPECT_LE(second.width(), second.screen()->availableSize().width()) << "as far as it has room";
  EXPECT_EQ(main.Text("theplanet"), "");
}

TEST_F(PreferencesTest, OverlaySetsAreKeptWhateverTheirNames) {
  Preferences values;
  EXPECT_EQ(PreferencesFile(file).Values().Sets.size(), 6U);
  values.Sets.resize(2);
  values.Sets[1].Name = "=a, \"b\"\n%20;[c] \xC3\xA4";
  values.NumbersInLegend = true;
  PreferencesFile(file).Keep(values);
  EXPECT_EQ(PreferencesFile(file).Values().Sets, values.Sets);
  EXPECT_TRUE(PreferencesFile(file).Values().NumbersInLegend);
  values.Sets.clear();
  PreferencesFile(file).Keep(values);
  EXPECT_TRUE(PreferencesFile(file).Values().Sets.empty()) << "all removed";
}

TEST_F(PreferencesTest, DamagedOnesAreKeptAsideAndToldOfOnce) {
  const std::string damaged = "[Map]\nFewerNames=true\n\x01\xff no value here\n[[[\n";
  folder.Write("quorvane.ini", damaged);
  Main main(folder.Path(), &prompts, file);
  WindowDriver driven(main);
  EXPECT_EQ(folder.Read("quorvane.ini.damaged"), damaged);
  EXPECT_EQ(driven.Text("theplanet"), " Preferences are damaged");
  EXPECT_TRUE(driven.Find("theplanet").toolTip().endsWith("quorvane.ini.damaged"));
  EXPECT_TRUE(driven.Action("ViewOutlineNames").isChecked());
  EXPECT_TRUE(driven.Action("ViewFewerNames").isChecked()) << "what could be read";
  EXPECT_EQ(prompts.Shown(), Texts());
  Main next(folder.Path(), &prompts, file);
  EXPECT_EQ(WindowDriver(next).Text("theplanet"), "") << "once";
}

TEST_F(PreferencesTest, NewerAndProtectedOnesStayAsTheyAre) {
  const std::string newer = "[General]\nFormat=99\n[Map]\nFewerNames=true\n";
  folder.Write("quorvane.ini", newer);
  {
    Main main(folder.Path(), &prompts, file);
    WindowDriver(main).Choose("ViewFewerNames");
    EXPECT_TRUE(WindowDriver(main).Text("theplanet").contains("newer version"));
  }
  EXPECT_EQ(folder.Read("quorvane.ini"), newer);
  folder.Write("quorvane.ini", "");
  std::filesystem::permissions(folder.Path(), std::filesystem::perms(0555));
  std::filesystem::permissions(file, std::filesystem::perms(0444));
  const OrdinaryUser user;
  Main main(folder.Path(), &prompts, file);
  WindowDriver driven(main);
  driven.Choose("ViewFewerNames");
  EXPECT_TRUE(driven.Text("theplanet").contains("cannot be saved"));
  EXPECT_EQ(prompts.Shown(), Texts());
}

}  // namespace
}  // namespace quorvane
