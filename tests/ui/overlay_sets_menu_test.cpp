#include "ui/overlay_sets_menu.h"

#include "ui/legend.h"
#include "ui/main_window_fixture.h"

namespace quorvane {
namespace {

class OverlaySetsMenuTest : public LoadedGameTest {
 protected:
  // The number of the set that is marked; 0: none.
  int Lit() {
    int lit = 0;
    for (int set = 1; set <= 9; ++set) {
      const auto* item = window.findChild<QAction*>(QString("ViewSet(%1)").arg(set));
      if (item != nullptr && item->isChecked()) lit = set;
    }
    return lit;
  }
};

TEST_F(OverlaySetsMenuTest, SetIsShownByItsKeyAndMarkedWhileItIsOn) {
  EXPECT_EQ(Lit(), 0);
  Activate();
  driver.Click("OvButt(2)").Press("Universe", Qt::Key_5, Qt::ControlModifier);
  EXPECT_TRUE(driver.IsDown("OvButt(6)") && driver.IsDown("OvButt(9)"));
  EXPECT_FALSE(driver.IsDown("OvButt(2)"));
  EXPECT_EQ(Lit(), 5);
  const QImage both = Map();
  driver.Click("OvButt(9)");
  EXPECT_EQ(Lit(), 0);
  driver.Choose("ViewSet(5)");
  EXPECT_TRUE(Map() == both);
  driver.Choose("ViewSet(5)");
  EXPECT_EQ(Lit(), 5) << "chosen again it stays on";
}

TEST_F(OverlaySetsMenuTest, SetsAreSavedAndRemoved) {
  prompts.AnswerText("Mine & others");
  driver.Choose("ViewSaveSet");
  EXPECT_EQ(prompts.Shown().size(), 2U) << "no overlay is on";
  prompts.AnswerText("Mine & others");
  driver.Click("OvButt(2)").Choose("ViewSaveSet");
  EXPECT_EQ(Lit(), 7);
  EXPECT_EQ(driver.Action("ViewSet(7)").text(), "Mine && others");
  driver.Choose("ViewRemoveSet");
  EXPECT_EQ(window.findChild<QAction*>("ViewSet(7)"), nullptr);
  EXPECT_FALSE(driver.Action("ViewRemoveSet").isEnabled());
}

TEST_F(OverlaySetsMenuTest, NumbersStandOnSwatchesAndBesideTheMarker) {
  const auto swatch = [this] { return driver.Find("RaceC(0)").grab().toImage(); };
  driver.ClickAt("Universe", At({1300, 1100}));
  const QImage plain = swatch();
  EXPECT_FALSE(driver.IsVisible("MarkerNumber"));
  driver.Choose("ViewNumbersInLegend");
  EXPECT_FALSE(swatch() == plain);
  EXPECT_TRUE(driver.IsVisible("MarkerNumber"));
  EXPECT_EQ(driver.Text("MarkerNumber"), "2") << "the Drask own Gamma";
  while (driver.Action("ViewZoomIn").isEnabled()) driver.Choose("ViewZoomIn");
  QApplication::processEvents();
  EXPECT_FALSE(driver.IsVisible("MarkerNumber")) << "Gamma is out of sight";
  driver.Choose("ViewZoomToSelected");
  QApplication::processEvents();  // as near as that, the marker is wider than the map
  EXPECT_TRUE(driver.IsVisible("MarkerNumber"));
  EXPECT_TRUE(driver.Find("Universe").rect().contains(driver.Find("MarkerNumber").geometry()));
  driver.Choose("ViewWholeUniverse");
  driver.ClickAt("Universe", At({1390, 1390}));
  EXPECT_FALSE(driver.IsVisible("MarkerNumber")) << "nobody owns Delta";
  driver.Choose("ViewNumbersInLegend");
  EXPECT_TRUE(swatch() == plain);
}

}  // namespace
}  // namespace quorvane
