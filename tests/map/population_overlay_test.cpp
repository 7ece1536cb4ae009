#include <gtest/gtest.h>

#include <tuple>

#include "map/overlays.h"
#include "support/drawn.h"

namespace quorvane {
namespace {

// The one disc that is drawn, or nothing.
Texts DiscOf(const std::string& colour) {
  return colour.empty() ? Texts() : Texts{Disc("50", colour)};
}

TEST(DrawDifficultyOfAttack, RisesWithThePopulationAndTheStarbase) {
  const std::tuple<int, const char*, const char*> cases[] = {
      {1'000'000, "None", "#cc3300"}, {1'000'000, "", "#cc3300"}, {1'000'000, "Dock", "#fe0100"},
      {1'250'000, "Dock", "#ff0000"}, {100, "None", "#00ff00"},   {0, "Dock", ""}};
  for (const auto& [population, starbase, colour] : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).With(PlanetField::Population, population);
    game.With(PlanetField::Starbase, starbase);
    EXPECT_EQ(Drawn(DrawDifficultyOfAttack, game.Build()), DiscOf(colour)) << population;
  }
}

TEST(DrawGrowth, ComparesThePopulationWithWhatTheHabitabilityAllows) {
  using Text = const char*;
  // What, habitability, population, owner, starbase, resources, mines, mining rate; the colour.
  const std::tuple<Text, Text, int, Text, Text, int, int, Text, Text> cases[] = {
      {"half full", "50%", 250'000, "Me", "None", 1, 50, "8", "#807f00"},
      {"5 % at least", "3%", 25'000, "Me", "None", 1, 50, "8", "#807f00"},
      {"overfull", "10%", 250'000, "Me", "None", 1, 50, "8", "#ff0000"},
      {"nobody can live", "-20%", 100, "Me", "None", 1, 50, "8", "#8e00ff"},
      {"mined from orbit", "100%", 1'500'000, "Me", "Dock", 1, 9, "8", "#807f00"},
      {"no starbase", "100%", 500'000, "Me", "None", 1, 9, "8", "#807f00"},
      {"remote mining", "100%", 500'000, "Me", "Dock", 1, 9, "Remote", "#807f00"},
      {"another race's", "50%", 250'000, "You", "None", 1, 50, "8", ""},
      {"no resources", "50%", 250'000, "Me", "None", 0, 50, "8", ""}};
  for (const auto& [what, hab, population, owner, starbase, resources, mines, rate, colour] :
       cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).OwnedBy(owner);
    game.With(PlanetField::HabValue, hab).With(PlanetField::Population, population);
    game.With(PlanetField::Starbase, starbase).With(PlanetField::Resources, resources);
    game.With(PlanetField::Mines, mines).With(PlanetField::IronMR, rate);
    GameSession session = game.Build();
    session.MyRaceName = "Me";
    EXPECT_EQ(Drawn(DrawGrowth, session), DiscOf(colour)) << what;
  }
}

}  // namespace
}  // namespace quorvane
