#include "loading/sphere_of_influence.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(SphereRadius, GrowsWithPeopleStarbaseAndDefences) {
  struct Case {
    const char* What;
    SphereInputs Inputs;
    int Radius;
  };
  const Case cases[] = {
      {"cut to the setting", {1200000, "Space Dock", "48.96%", 100}, 100},
      {"below the setting", {1200000, "Space Dock", "48.96%", 200}, 200},
      {"defended half", {600000, "Space Dock", "48.96%", 100}, 54},
      {"smallest populated", {1, "None", "Unknown", 100}, 5},
      {"fully defended", {500000, "None", "97.92%", 100}, 35},
      {"nobody", {0, "Space Dock", "97.92%", 100}, 0},
      {"fewer than nobody", {-5, "Space Dock", "97.92%", 100}, 0},
      {"a starbase that the line does not name", {500000, "", "Unknown", 100}, 40},
      {"whole ten thousands only", {199999, "Space Dock", "97.92%", 100}, 19},
      {"more people than numbers", {1e300, "Space Dock", "97.92%", 500}, 500}};
  for (const Case& example : cases) {
    EXPECT_EQ(SphereRadius(example.Inputs), example.Radius) << example.What;
  }
}

TEST(StarbasePopulation, FollowsTheDesignName) {
  EXPECT_EQ(StarbasePopulation("Orbital Fort"), 250000);
  EXPECT_EQ(StarbasePopulation("Death Star"), 3000000);
  EXPECT_EQ(StarbasePopulation("death star"), 1350000);
}

}  // namespace
}  // namespace quorvane
