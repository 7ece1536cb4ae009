#include "reference/plain_distances.h"

#include <gtest/gtest.h>

#include <random>

#include "rules/distances.h"

namespace quorvane {
namespace {

TEST(DistancesToOwnPlanets, AgreeWithALookAtEveryPair) {
  std::mt19937 dice(2);
  GameSession session;
  EXPECT_EQ(DistancesToOwnPlanets(session), std::vector<double>());
  session.MyRaceName = "Vantari";
  for (const std::uint32_t oneIn : {1U, 3U, 40U, 1000U}) {
    session.CreatePlanetTable(300);
    for (PlanetRecord& planet : session.Planets()) {
      planet[PlanetField::X] = static_cast<int>(dice() % 50);
      planet[PlanetField::Y] = static_cast<int>(dice() % 400);
      if (dice() % oneIn == 0) planet[PlanetField::Owner] = "Vantari";
    }
    EXPECT_EQ(DistancesToOwnPlanets(session), reference::PlainDistancesToOwnPlanets(session));
  }
}

}  // namespace
}  // namespace quorvane
