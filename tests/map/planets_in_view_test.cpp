#include "map/planets_in_view.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"
#include "support/map_views.h"

namespace quorvane {
namespace {

TEST(PlanetAt, PicksTheLastPlanetWithinTheSquareOnAllFourEdges) {
  GameBuilder game;
  game.Planet("Alpha", {1500, 1500}).Planet("Beta", {1506, 1500}).Planet("Gamma", {1700, 1500});
  const GameSession session = game.Build();
  const std::tuple<SurfacePoint, int> cases[] = {
      {{5000, 5000}, 1},   {{4950, 4950}, 1}, {{4949.9, 5000}, 0}, {{5000, 5050}, 1},
      {{5000, 5050.1}, 0}, {{5010, 5000}, 2}, {{5009, 5000}, 1},   {{5110, 5000}, 2},
      {{5110.1, 5000}, 0}, {{7000, 4950}, 3}, {{7000, 4949}, 0},   {{0, 0}, 0}};
  for (const auto& [pointer, planet] : cases) {
    EXPECT_EQ(PlanetAt(session, FullView(), pointer), planet) << pointer.X << "," << pointer.Y;
  }
  // 12.5 units to a light year: the reach of 62.5 is rounded to 62.
  EXPECT_EQ(PlanetAt(session, Zoomed(100, 100, 800), {7562, 5000}), 3);
  EXPECT_EQ(PlanetAt(session, Zoomed(100, 100, 800), {7438, 5000}), 3);
  EXPECT_EQ(PlanetAt(session, Zoomed(100, 100, 800), {7437.9, 5000}), 0);
  EXPECT_EQ(PlanetAt(GameSession(), MapView(), {1, 1}), 0);
}

}  // namespace
}  // namespace quorvane
