#include "analysis/race_ranges.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/game_builder.h"

namespace quorvane {
namespace {

struct Reading {
  const char* Gravity;
  const char* Temperature;
  const char* Radiation;
};

struct Case {
  const char* What;
  std::vector<Reading> Planets;
  std::vector<double> Ranges;  // fields 8 … 13
};

TEST(EstimateHabRanges, SpansTheOwnedPlanetsAndWidensWhatIsNarrow) {
  const Case cases[] = {
      {"one planet", {{"1.00g", "20", "50mR"}}, {1, 1.75, 20, 100, 50, 70}},
      {"two gravities close together",
       {{"1.0", "0", "30"}, {"1.2", "40", "60"}},
       {1, 1.7, 0, 40, 30, 60}},
      {"at the upper ends",
       {{"7.5", "180", "95"}, {"7.9", "180", "95"}},
       {7.5, 8, 180, 200, 95, 100}},
      {"below the lowest gravity", {{"0.05", "0", "1"}, {"2", "1", "2"}}, {0.12, 2, 0, 1, 1, 2}},
      {"no planet", {}, {8, 0.62, 200, -200, 100, 0}}};
  for (const Case& example : cases) {
    GameBuilder builder;
    builder.Planet("Other", {1100, 1100}).OwnedBy("Other");
    for (const Reading& planet : example.Planets) {
      builder.Planet("P", {1200, 1300})
          .OwnedBy("Humanoid")
          .With(PlanetField::Gravity, planet.Gravity)
          .With(PlanetField::Temperature, planet.Temperature)
          .With(PlanetField::Radiation, planet.Radiation);
    }
    GameSession session = builder.Build();
    EstimateHabRanges(session, 2);
    for (std::size_t i = 0; i < example.Ranges.size(); ++i) {
      EXPECT_DOUBLE_EQ(session.Player(2).Field(8 + i).Number(), example.Ranges[i])
          << example.What << ", field " << 8 + i;
    }
  }
}

}  // namespace
}  // namespace quorvane
