#include "render/population_overlay.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"
#include "support/map_views.h"
#include "support/recording_surface.h"

namespace quorvane {
namespace {

Texts Disc(const std::string& colour) {
  return {"circle 5000,5000 r50 " + colour + " fill " + colour + " copy solid w1"};
}

TEST(DrawDifficultyOfAttack, RisesWithThePopulationAndTheStarbase) {
  const std::tuple<int, const char*, Texts> cases[] = {
      {1'000'000, "None", Disc("#cc3300")}, {1'000'000, "", Disc("#cc3300")},
      {1'000'000, "Dock", Disc("#fe0100")}, {1'250'000, "Dock", Disc("#ff0000")},
      {100, "None", Disc("#00ff00")},       {0, "Dock", {}}};
  for (const auto& [population, starbase, expected] : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).With(PlanetField::Population, population);
    game.With(PlanetField::Starbase, starbase);
    RecordingSurface surface;
    DrawDifficultyOfAttack(game.Build(), FullView(), surface);
    EXPECT_EQ(surface.Lines(), expected) << population << " " << starbase;
  }
}

TEST(DrawGrowth, ComparesThePopulationWithWhatTheHabitabilityAllows) {
  struct Case {
    const char* What;
    const char* Hab;
    int Population;
    const char* Owner;
    const char* Starbase;
    int Resources;
    int Mines;
    const char* MiningRate;
    Texts Expected;
  };
  const Case cases[] = {
      {"half full", "50%", 250'000, "Me", "None", 1, 50, "8", Disc("#807f00")},
      {"5 % at least", "3%", 25'000, "Me", "None", 1, 50, "8", Disc("#807f00")},
      {"overfull", "10%", 250'000, "Me", "None", 1, 50, "8", Disc("#ff0000")},
      {"nobody can live", "-20%", 100, "Me", "None", 1, 50, "8", Disc("#8e00ff")},
      {"mined from orbit", "100%", 1'500'000, "Me", "Dock", 1, 9, "8", Disc("#807f00")},
      {"no starbase", "100%", 500'000, "Me", "None", 1, 9, "8", Disc("#807f00")},
      {"remote mining", "100%", 500'000, "Me", "Dock", 1, 9, "Remote", Disc("#807f00")},
      {"another race's", "50%", 250'000, "You", "None", 1, 50, "8", {}},
      {"no resources", "50%", 250'000, "Me", "None", 0, 50, "8", {}}};
  for (const Case& each : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).OwnedBy(each.Owner);
    game.With(PlanetField::HabValue, each.Hab).With(PlanetField::Population, each.Population);
    game.With(PlanetField::Starbase, each.Starbase).With(PlanetField::Resources, each.Resources);
    game.With(PlanetField::Mines, each.Mines).With(PlanetField::IronMR, each.MiningRate);
    GameSession session = game.Build();
    session.MyRaceName = "Me";
    RecordingSurface surface;
    DrawGrowth(session, FullView(), surface);
    EXPECT_EQ(surface.Lines(), each.Expected) << each.What;
  }
}

}  // namespace
}  // namespace quorvane
