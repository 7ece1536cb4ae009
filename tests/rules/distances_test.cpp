#include "rules/distances.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"

namespace quorvane {
namespace {

TEST(YearsAtWarp, CountsAPartOfAYearAsOne) {
  for (int warp = 4; warp <= 10; ++warp) {
    const double year = warp * warp;
    EXPECT_EQ(YearsAtWarp(0, warp), 0) << warp;
    EXPECT_EQ(YearsAtWarp(0.1, warp), 1) << warp;
    EXPECT_EQ(YearsAtWarp(year, warp), 1) << warp;
    EXPECT_EQ(YearsAtWarp(year + 0.1, warp), 2) << warp;
    EXPECT_EQ(YearsAtWarp(7 * year, warp), 7) << warp;
  }
}

TEST(GateWayText, TellsEachDirectionByTheSendersRange) {
  const std::tuple<int, int, const char*, const char*> cases[] = {
      {230, 100, "safe", "damage, 2.3 x range"},
      {230, 229, "safe", "damage, 1.0 x range"},
      {46, 45, "damage, 5.0 x range", "no"},
      {230, 0, "no", "no"},
      {0, 230, "no", "no"},
      {kUnlimitedGate, 230, "safe", "safe"}};
  for (const auto& [here, there, way, back] : cases) {
    const GameSession game = GameBuilder()
                                 .Planet("Here", {1000, 1500})
                                 .With(PlanetField::GateRange, here)
                                 .Planet("There", {1230, 1500})
                                 .With(PlanetField::GateRange, there)
                                 .Build();
    EXPECT_EQ(GateWayText(game.Planet(1), game.Planet(2)), way) << here << ", " << there;
    EXPECT_EQ(GateWayText(game.Planet(2), game.Planet(1)), back) << here << ", " << there;
  }
}

TEST(NearestPlanets, ComeByDistanceThenNumberAndAreNoMoreThanAskedFor) {
  GameBuilder game;
  game.Planet("From", {1500, 1500}).OwnedBy("Mine").With(PlanetField::GateRange, 100);
  for (int i = 0; i < 12; ++i) game.Planet("Far", {1900.0 - 10 * i, 1500}).OwnedBy("Mine");
  game.Planet("South", {1500, 1490}).OwnedBy("Theirs").With(PlanetField::GateRange, 100);
  game.Planet("East", {1510, 1500}).With(PlanetField::GateRange, kUnlimitedGate);
  game.Planet("Nobody", {1501, 1500});
  GameSession session = game.Build();
  session.MyRaceName = "Mine";
  using Numbers = std::vector<int>;
  EXPECT_EQ(NearestOwnPlanets(session, 1, 10), (Numbers{13, 12, 11, 10, 9, 8, 7, 6, 5, 4}));
  EXPECT_EQ(NearestStargates(session, 1, 10), (Numbers{14, 15})) << "equally far";
  EXPECT_EQ(NearestStargates(session, 16, 10), (Numbers{1, 15, 14}));
}

}  // namespace
}  // namespace quorvane
