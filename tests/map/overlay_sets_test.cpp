#include "map/overlay_sets.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

OverlaySwitches On(std::initializer_list<OverlayKind> kinds) {
  OverlaySwitches switches;
  for (const OverlayKind kind : kinds) switches.Set(kind, true);
  return switches;
}

TEST(OverlaySets, BeginWithSixAndAreKeptAsText) {
  const char* expected[] = {
      "Territories: mnuToolBarBut(4) mnuToolBarBut(6) mnuNames(0) mnuTerrEdge",
      "Scanners: mnuToolBarBut(7)",
      "Minerals: mnuIron mnuBora mnuGerm MnuAvgMC",
      "Habitability: mnuToolBarBut(5) mnuTerra",
      "Population: mnuToolBarBut(6) mnuToolBarBut(9)",
      "Stargates: mnuToolBarBut(3) mnuToolBarBut(6) mnuNames(0)"};
  const std::vector<OverlaySet> sets = FirstOverlaySets();
  ASSERT_EQ(sets.size(), std::size(expected));
  for (std::size_t i = 0; i < sets.size(); ++i) {
    EXPECT_EQ(sets[i].Name + ": " + OverlaysText(sets[i].Switches), expected[i]);
    EXPECT_EQ(OverlaysFromText(OverlaysText(sets[i].Switches)), sets[i].Switches);
  }
  EXPECT_EQ(OverlaysFromText(" nonsense mnuAge  mnuToolBarButZoom mnuToolBarButClear mnuNames(1) "
                             "mnuNames(0)"),
            On({OverlayKind::ReportAgeOverlay, OverlayKind::NamesColoured}));
}

TEST(OverlaySets, ShowExactlyTheirOverlaysAndLeaveTheZoom) {
  using enum OverlayKind;
  const OverlaySet set = {.Name = "", .Switches = On({CurrentHabValues, ValueAfterTerraforming})};
  OverlaySwitches current = On({ZoomIn, Planets});
  current.RaceName = "Drask";
  OverlaySwitches expected = On({ZoomIn, CurrentHabValues, ValueAfterTerraforming});
  expected.RaceName = "Drask";
  EXPECT_EQ(SwitchesFor(set, current, true), expected);
  EXPECT_FALSE(IsShown(set, current, true));
  EXPECT_TRUE(IsShown(set, expected, true));
  EXPECT_FALSE(IsShown(set, expected, false));
  expected.Set(ValueAfterTerraforming, false);
  EXPECT_EQ(SwitchesFor(set, current, false), expected);
  EXPECT_TRUE(IsShown(set, expected, false)) << "all that the old report knows";
  const OverlaySet unknown = {.Name = "", .Switches = On({CompleteStargateNetwork})};
  EXPECT_FALSE(IsShown(unknown, On({ZoomIn}), false)) << "nothing is on";
}

TEST(OverlaySets, AreSavedUnderANameUpToNine) {
  std::vector<OverlaySet> sets = FirstOverlaySets();
  const OverlaySwitches shown = On({OverlayKind::ZoomIn, OverlayKind::Growth});
  EXPECT_FALSE(SaveAsSet(sets, " ", shown));
  EXPECT_FALSE(SaveAsSet(sets, "New", On({OverlayKind::ZoomIn})));
  EXPECT_TRUE(SaveAsSet(sets, " scanners ", shown));
  EXPECT_EQ(sets[1], (OverlaySet{"scanners", On({OverlayKind::Growth})}));
  for (const char* name : {"7", "8", "9"}) EXPECT_TRUE(SaveAsSet(sets, name, shown)) << name;
  EXPECT_FALSE(SaveAsSet(sets, "10", shown));
  EXPECT_EQ(sets.size(), kMostOverlaySets);
}

}  // namespace
}  // namespace quorvane
