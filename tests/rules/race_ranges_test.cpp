#include "rules/race_ranges.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>
#include <vector>

#include "support/game_builder.h"

namespace quorvane {
namespace {

TEST(EstimateHabRanges, SpansTheOwnedPlanetsAndWidensWhatIsNarrow) {
  using Reading = std::array<const char*, 3>;
  // The planets' gravity, temperature and radiation; what follows for fields 8 to 13.
  const std::tuple<const char*, std::vector<Reading>, std::array<double, 6>> cases[] = {
      {"one planet", {Reading{"1.00g", "20", "50mR"}}, {1, 1.75, 20, 100, 50, 70}},
      {"two gravities close together",
       {Reading{"1.0", "0", "30"}, Reading{"1.2", "40", "60"}},
       {1, 1.7, 0, 40, 30, 60}},
      {"at the upper ends",
       {Reading{"7.5", "180", "95"}, Reading{"7.9", "180", "95"}},
       {7.5, 8, 180, 200, 95, 100}},
      {"below the lowest gravity",
       {Reading{"0.05", "0", "1"}, Reading{"2", "1", "2"}},
       {0.12, 2, 0, 1, 1, 2}},
      {"no planet", {}, {8, 0.62, 200, -200, 100, 0}}};
  for (const auto& [what, planets, ranges] : cases) {
    GameBuilder builder;
    builder.Planet("Other", {1100, 1100}).OwnedBy("Other");
    for (const auto& [gravity, temperature, radiation] : planets) {
      builder.Planet("P", {1200, 1300}).OwnedBy("Humanoid").With(PlanetField::Gravity, gravity);
      builder.With(PlanetField::Temperature, temperature).With(PlanetField::Radiation, radiation);
    }
    GameSession session = builder.Build();
    EstimateHabRanges(session, 2);
    for (std::size_t i = 0; i < ranges.size(); ++i) {
      EXPECT_DOUBLE_EQ(session.Player(2).Field(8 + i).Number(), ranges[i]) << what << ' ' << 8 + i;
    }
  }
}

}  // namespace
}  // namespace quorvane
