#include "rules/scores.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quorvane {
namespace {

TEST(PlanetScore, CountsPeopleStarbaseAndEconomyEachInWholePoints) {
  const std::tuple<int, int, const char*, int> cases[] = {
      {10'000, 13, "None", 0},    // 0.1 + 0.43
      {450'000, 0, "None", 34},   // 4.5 and, from the people alone, 30
      {900'000, 75, "None", 8},   // six for people at most, 2.5
      {50'000, 105, "Dock", 7}};  // 0.5 + 3 + 3.5
  for (const auto& [population, resources, starbase, score] : cases) {
    PlanetRecord planet;
    planet[PlanetField::Population] = population;
    planet[PlanetField::Resources] = resources;
    planet[PlanetField::Starbase] = starbase;
    EXPECT_EQ(PlanetScore(planet), score) << population;
  }
}

}  // namespace
}  // namespace quorvane
