#include "map/overlay_stack.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/game_builder.h"
#include "support/map_views.h"
#include "support/recording_surface.h"

namespace quorvane {
namespace {

using Kind = OverlayKind;

std::vector<Kind> AllKinds() {
  std::vector<Kind> kinds;
  for (const OverlayTexts& texts : kOverlayTable) kinds.push_back(texts.Kind);
  return kinds;
}

OverlaySwitches On(const std::vector<Kind>& kinds) {
  OverlaySwitches switches;
  for (const Kind kind : kinds) switches.Set(kind, true);
  return switches;
}

TEST(OverlaySwitches, ClearMapLeavesTheZoomAndANewGameTerritoryEdgesAndEmpireExpansion) {
  OverlaySwitches cleared = On(AllKinds());
  cleared.ClearMap();
  EXPECT_EQ(cleared, On({Kind::ZoomIn}));
  OverlaySwitches begun = On(AllKinds());
  begun.BeginNewGame();
  EXPECT_EQ(begun, On({Kind::TerritoryEdges, Kind::EmpireExpansion}));
  begun.ClearMap();
  EXPECT_EQ(begun, On({})) << "nothing is switched on";
}

class DrawOverlayStackTest : public testing::Test {
 protected:
  DrawOverlayStackTest() {
    session.GridCellSize = 100;
    session.CreateInfluenceGrid(2);
    session.InfluenceGrid.At(2, 2) = {1, 100};
  }

  // Redraws with these overlays on and gives what the map was told.
  Texts Redraw(const std::vector<Kind>& kinds) {
    OverlaySwitches switches = On(kinds);
    switches.RaceName = session.MyRaceName;
    map.Forget();
    const Progress progress = {.ShowValue = [this](int, int) { hasProgress = true; },
                               .AskStopped = [this] { return --questionsLeft < 0; }};
    isComplete = DrawOverlayStack({session, state, switches, map, twin, progress});
    return map.Lines();
  }

  GameSession session = GameBuilder().Planet("Alpha", {1500, 1500}).OwnedBy("Humanoid").Build();
  MapState state = {.View = FullView()};
  RecordingSurface map, twin;
  bool hasProgress = false;
  bool isComplete = false;
  int questionsLeft = 1000;
};

TEST_F(DrawOverlayStackTest, FullViewOfTheBordersIsKeptWithoutTheOverlaysAboveAndUsedAgain) {
  Redraw({Kind::InfluenceBorders, Kind::Planets});
  EXPECT_TRUE(hasProgress && isComplete);
  EXPECT_EQ(twin.Lines(), Texts{"background of 1 lines"});
  EXPECT_EQ(Redraw({Kind::InfluenceBorders}).at(0), "background of 1 lines");
  EXPECT_EQ(Redraw({}), (Texts{"background none"}));
}

TEST_F(DrawOverlayStackTest, BordersArePaintedAndNotKeptWhileZoomIsPressed) {
  // There is no zoom box yet, so the view is the full one.
  Redraw({Kind::InfluenceBorders, Kind::ZoomIn});
  EXPECT_EQ(twin.Lines(), Texts());
  EXPECT_EQ(state.BordersCached, 0);

  Redraw({Kind::InfluenceBorders});
  twin.Forget();
  state.View = Zoomed(100, 100, 200);
  EXPECT_EQ(Redraw({Kind::InfluenceBorders, Kind::ZoomIn}).at(1),
            "point 5000,5000 #ff0000 copy w9");
  EXPECT_EQ(twin.Lines(), Texts());
  EXPECT_EQ(state.BordersCached, 1) << "the picture of the full view";
}

TEST_F(DrawOverlayStackTest, StacksAllOverlaysInOneOrder) {
  PlanetRecord& planet = session.Planet(1);
  planet[PlanetField::AgeText] = "Current";
  planet[PlanetField::HabValue] = "50";
  planet[PlanetField::Population] = planet[PlanetField::Resources] = 250'000;
  planet[PlanetField::IronMC] = planet[PlanetField::BoraMC] = planet[PlanetField::GermMC] = 40;
  session.MyRaceName = "Humanoid";
  // At the planet: radius and colour, of the point the colour alone; elsewhere the kind alone.
  std::string marks;
  for (const std::string& line : Redraw(AllKinds())) {
    const std::size_t place = line.find("5000,5000 ");
    const std::string mark = place != line.npos ? line.substr(place + 10) : line;
    marks += mark.substr(0, mark.find(' ', place != line.npos ? 5 : 0)) + "; ";
  }
  EXPECT_EQ(marks,
            "background; point; "
            // current report, planet, its habitability, owner, difficulty of attack, growth,
            "#ffff00; r20 #000000; r10 #ffffff; r75 #00ff00; r40 #000000; r30 #000000; "
            "r50 #33cc00; r50 #807f00; "
            // estimated habitability, name, minerals and their average,
            "r30 #ffff00; text; r40 #0000ff; r40 #00ff00; r40 #ffff00; r40 #666666; "
            // report age, terraforming, expansion, edges
            "r60 #00ff00; r30 #503c3c; r100 #ffe600; point; point; ");
}

TEST_F(DrawOverlayStackTest, SingleMineralsTakeTheModeOfTheRedrawBefore) {
  session.Planet(1)[PlanetField::IronMC] = 40;
  EXPECT_EQ(Redraw({Kind::IroniumConcentration}).back(),
            "circle 5000,5000 r40 #0000ff fill #0000ff copy no-outline w1");
  Redraw({Kind::EstimateHabValues});
  EXPECT_EQ(Redraw({Kind::IroniumConcentration}).back(),
            "circle 5000,5000 r40 #0000ff fill #0000ff merge no-outline w1");
}

TEST_F(DrawOverlayStackTest, StoppedRedrawKeepsWhatIsDrawnAndNoHalfPictureOfTheBorders) {
  questionsLeft = 0;
  EXPECT_EQ(Redraw({Kind::InfluenceBorders, Kind::Planets}), (Texts{"background none"}));
  EXPECT_FALSE(isComplete);
  EXPECT_EQ(state.BordersCached, 0);

  session.PlanetTable.resize(101, session.Planet(1));
  session.PlanetCount = 100;
  questionsLeft = 2;
  EXPECT_EQ(Redraw({Kind::Planets, Kind::OwnedPlanets}).size(), 1U + 47U);
  EXPECT_FALSE(isComplete);
}

TEST_F(DrawOverlayStackTest, EveryOverlayBearsAnEmptySession) {
  session = GameSession();
  state = MapState();
  EXPECT_EQ(Redraw(AllKinds()), (Texts{"background none"}));
}

}  // namespace
}  // namespace quorvane
