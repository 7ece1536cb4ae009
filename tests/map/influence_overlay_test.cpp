#include <gtest/gtest.h>

#include <tuple>
#include <utility>

#include "map/overlays.h"
#include "support/drawn.h"

namespace quorvane {
namespace {

// A coarse grid of 5 x 5 points that nobody holds, 100 light years apart.
GameSession CoarseGame() {
  GameSession session = GameBuilder().Player("A").Player("B").Player("C").Build();
  session.GridCellSize = 100;
  session.CreateInfluenceGrid(4);
  return session;
}

Texts Borders(const GameSession& session, const MapView& view, int widthInTwips = 6675) {
  RecordingSurface surface(widthInTwips);
  DrawInfluenceBorders(session, view, surface, {});
  return surface.Lines();
}

TEST(DrawInfluenceBorders, GoesColumnByColumnAtWholeLightYearsDimmingByTheStrength) {
  GameSession session = CoarseGame();
  session.GridCellSize = 100.5;
  session.RaceColours[0] = {255, 128, 0};
  session.Player(2)[PlayerField::ColourSlot] = 0;
  InfluenceGrid& grid = session.InfluenceGrid;
  grid.At(0, 3) = grid.At(2, 0) = {1, 100};  // on the view's edge
  grid.At(1, 2) = {2, 100};
  grid.At(3, 2) = {0, 100};
  grid.At(4, 2) = {1, 100};
  grid.At(3, 3) = {1, 0};
  grid.At(2, 1) = {1, 50};
  grid.At(1, 3) = {1, 30};
  // Ties go to even: 100.5 and 301.5 light years, colours of 76.5 and 127.5.
  EXPECT_EQ(Borders(session, FullView()),
            (Texts{"point 1000,3020 #4c2600 copy w2", "point 2010,1000 #804000 copy w2",
                   "point 3020,3020 #000000 copy w2", "point 4020,2010 #ff8000 copy w2"}));
}

TEST(DrawInfluenceBorders, DotWidthFollowsTheMapsSizeAndItsZoom) {
  GameSession session = CoarseGame();
  session.InfluenceGrid.At(2, 2) = {1, 100};
  const std::tuple<MapView, int, std::string> cases[] = {
      {FullView(), 10019, "copy w2"},
      {FullView(), 10020, "copy w3"},
      {Zoomed(100, 100, 500), 6675, "copy w4"},     // 4 x 1 / 1.1 = 3.6
      {Zoomed(100, 100, 300), 10500, "copy w11"}};  // 6 x 2 / 1.1 = 10.9
  for (const auto& [view, widthInTwips, ending] : cases) {
    EXPECT_TRUE(Borders(session, view, widthInTwips).at(0).ends_with(ending)) << ending;
  }
}

TEST(DrawInfluenceBorders, ShowsProgressEveryTenColumnsWhetherInViewOrNot) {
  GameSession session = CoarseGame();
  session.CreateInfluenceGrid(25);
  std::vector<std::pair<int, int>> shown;
  const auto show = [&](int value, int maximum) { shown.emplace_back(value, maximum); };
  Drawn(DrawInfluenceBorders, session, Zoomed(900, 900, 50),
        Progress{.ShowValue = show, .AskStopped = {}});
  EXPECT_EQ(shown, (decltype(shown){{0, 26}, {0, 26}, {10, 26}, {20, 26}, {26, 26}}));
}

TEST(DrawTerritoryEdges, DrawsBothSidesOneAndAHalfStepsFromTheUpperOrLeftPoint) {
  GameSession session = CoarseGame();
  session.GridCellSize = 101;  // the dots' own positions are not rounded
  session.Player(3)[PlayerField::ColourSlot] = 1;
  InfluenceGrid& grid = session.InfluenceGrid;
  grid.At(1, 2) = grid.At(1, 3) = {1, 100};
  grid.At(2, 2) = {1, 3};  // a weak hold has the full colour, too
  grid.At(2, 3) = {2, 100};
  grid.At(3, 2) = {3, 100};
  // Only (1, 2) and (2, 2) are inside.
  EXPECT_EQ(Drawn(DrawTerritoryEdges, session, Zoomed(50, 101, 200)),
            (Texts{"point 7600,-2525 #ff0000 copy w9", "point 7600,12625 #00ff00 copy w9",
                   // two players of one colour still have an edge
                   "point 25,5050 #ff0000 copy w9", "point 15175,5050 #ff0000 copy w9"}));
}

}  // namespace
}  // namespace quorvane
