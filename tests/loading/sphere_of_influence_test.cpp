#include "loading/sphere_of_influence.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quorvane {
namespace {

TEST(SphereRadius, GrowsWithPeopleStarbaseAndDefences) {
  const std::tuple<const char*, SphereInputs, int> cases[] = {
      {"cut to the setting", SphereInputs{1200000, "Space Dock", "48.96%", 100}, 100},
      {"below the setting", SphereInputs{1200000, "Space Dock", "48.96%", 200}, 200},
      {"defended half", SphereInputs{600000, "Space Dock", "48.96%", 100}, 54},
      {"smallest populated", SphereInputs{1, "None", "Unknown", 100}, 5},
      {"fully defended", SphereInputs{500000, "None", "97.92%", 100}, 35},
      {"nobody", SphereInputs{0, "Space Dock", "97.92%", 100}, 0},
      {"fewer than nobody", SphereInputs{-5, "Space Dock", "97.92%", 100}, 0},
      {"a starbase that the line does not name", SphereInputs{500000, "", "Unknown", 100}, 40},
      {"whole ten thousands only", SphereInputs{199999, "Space Dock", "97.92%", 100}, 19},
      {"more people than numbers", SphereInputs{1e300, "Space Dock", "97.92%", 500}, 500}};
  for (const auto& [what, inputs, radius] : cases) EXPECT_EQ(SphereRadius(inputs), radius) << what;
}

}  // namespace
}  // namespace quorvane
