#include "rules/distances.h"

#include <gtest/gtest.h>

#include <string>

#include "support/game_builder.h"

namespace quorvane {
namespace {

TEST(YearsAtWarp, CountsAPartOfAYearAsOne) {
  for (int warp = kSlowestWarp; warp <= kFastestWarp; ++warp) {
    const double year = warp * warp;
    EXPECT_EQ(YearsAtWarp(0, warp), 0) << warp;
    EXPECT_EQ(YearsAtWarp(0.1, warp), 1) << warp;
    EXPECT_EQ(YearsAtWarp(year, warp), 1) << warp;
    EXPECT_EQ(YearsAtWarp(year + 0.1, warp), 2) << warp;
    EXPECT_EQ(YearsAtWarp(7 * year, warp), 7) << warp;
  }
}

// Numbers, in the order of the list.
std::string Numbers(const std::vector<NearPlanet>& planets) {
  std::string numbers;
  for (const NearPlanet& planet : planets) numbers += std::to_string(planet.Number) + " ";
  return numbers;
}

TEST(NearestPlanets, ComeByDistanceThenNumberAndAreTenAtMost) {
  GameBuilder game;
  game.Planet("From", {1500, 1500}).OwnedBy("Mine").With(PlanetField::GateRange, 100);
  for (int i = 0; i < 12; ++i) game.Planet("Far", {1900.0 - 10 * i, 1500}).OwnedBy("Mine");
  game.Planet("South", {1500, 1490}).OwnedBy("Theirs").With(PlanetField::GateRange, 100);
  game.Planet("East", {1510, 1500}).With(PlanetField::GateRange, kUnlimitedGate);
  game.Planet("Nobody", {1501, 1500});
  GameSession session = game.Build();
  EXPECT_EQ(Numbers(NearestOwnPlanets(session, 1)), "") << "no race of one's own";
  session.MyRaceName = "Mine";
  EXPECT_EQ(Numbers(NearestOwnPlanets(session, 1)), "13 12 11 10 9 8 7 6 5 4 ");
  EXPECT_EQ(Numbers(NearestStargates(session, 1)), "14 15 ") << "equally far";
  EXPECT_EQ(Numbers(NearestStargates(session, 16)), "1 15 14 ");
  EXPECT_EQ(NearestStargates(session, 1).at(0).LightYears, 10);
  for (const int none : {-1, 0, 17}) EXPECT_EQ(Numbers(NearestStargates(session, none)), "");
}

}  // namespace
}  // namespace quorvane
