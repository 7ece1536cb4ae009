#include "render/hab_overlay.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"
#include "support/map_views.h"
#include "support/recording_surface.h"

namespace quorvane {
namespace {

constexpr const char* kUnexplored = "circle 5000,5000 r30 #503c3c fill #503c3c";

GameBuilder ReportedPlanet(FieldValue habValue, const char* age = "Current") {
  GameBuilder game;
  game.Planet("Alpha", {1500, 1500}).With(PlanetField::AgeText, age);
  game.With(PlanetField::HabValue, std::move(habValue));
  return game;
}

TEST(DrawCurrentHabValues, DiscTellsTheClassByItsColourAndTheValueByItsSize) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"-45", "Current", "r150 #ff0000"}, {"-50", "Current", "r166 #ff0000"},
      {"-11", "Current", "r37 #ff0000"},  {"-10", "Current", "r150 #ff00ff"},
      {"-1", "Current", "r42 #ff00ff"},   {"0", "Current", "r30 #ffff00"},
      {"10", "Current", "r150 #ffff00"},  {"11", "Current", "r30 #00ff00"},
      {"21", "Current", "r32 #00ff00"},   {"100", "Current", "r150 #00ff00"},
      {"100", "", "r100 #00ff00"},        {"-20", "", "r30 #ff0000"}};
  for (const auto& [value, age, disc] : cases) {
    RecordingSurface surface;
    DrawCurrentHabValues(ReportedPlanet(value, age).Build(), FullView(), surface);
    ASSERT_EQ(surface.Lines().size(), 1U);
    EXPECT_TRUE(surface.Lines()[0].starts_with(std::string("circle 5000,5000 ") + disc))
        << value << ": " << surface.Lines()[0];
    EXPECT_TRUE(surface.Lines()[0].ends_with(" merge no-outline w1")) << surface.Lines()[0];
  }
  RecordingSurface surface;
  DrawCurrentHabValues(ReportedPlanet("").Build(), FullView(), surface);
  EXPECT_EQ(surface.Lines(), Texts()) << "the report does not state a value";
}

TEST(DrawEstimatedHabValues, CarriesTheValueOverToAPlanetWhoseEnvironmentIsNotKnown) {
  GameBuilder game;
  game.Player("Ilyr").Player("Drask").WithPlayerField(PlayerField::GravImmune, 1);
  game.WithPlayerField(PlayerField::TempImmune, 1).WithPlayerField(PlayerField::RadImmune, 1);
  game.Planet("Unknown", {1100, 1500}).With(PlanetField::AgeText, "Current");
  game.Planet("Outside", {1900, 1500}).With(PlanetField::Radiation, "50mR");
  game.Planet("Unexplored", {1200, 1500}).With(PlanetField::Radiation, "50mR");
  game.Planet("Carried", {1500, 1500}).With(PlanetField::AgeText, "  2 years old");
  const GameSession session = game.Build();
  RecordingSurface surface;
  DrawEstimatedHabValues(session, Zoomed(50, 50, 800), surface, "Drask");
  const Texts discs = {"circle 625,5625 r30 #ffff00 fill #ffff00 merge no-outline w1",
                       "circle 1875,5625 r30 #503c3c fill #503c3c merge no-outline w1",
                       "circle 5625,5625 r150 #00ff00 fill #00ff00 merge no-outline w1"};
  EXPECT_EQ(surface.Lines(), discs);
  for (const char* nobody : {"drask", ""}) {
    surface.Forget();
    DrawEstimatedHabValues(session, Zoomed(50, 50, 800), surface, nobody);
    EXPECT_EQ(surface.Lines(), Texts{discs[1]});
  }
}

TEST(DrawValueAfterTerraforming, DrawsDullDiscsThenRedOnesThenGreenOnes) {
  GameBuilder game;
  game.Planet("Good", {1500, 1500}).With(PlanetField::TerraValue, "97%");
  game.Planet("Bad", {1500, 1500}).With(PlanetField::TerraValue, "-50%");
  game.Planet("Unknown", {1500, 1500});
  RecordingSurface surface;
  DrawValueAfterTerraforming(game.Build(), FullView(), surface);
  EXPECT_EQ(surface.Lines(),
            (Texts{std::string(kUnexplored) + " copy no-outline w1",
                   "circle 5000,5000 r166 #ff0000 fill #ff0000 copy no-outline w1",
                   "circle 5000,5000 r146 #00ff00 fill #00ff00 copy no-outline w1"}));
}

}  // namespace
}  // namespace quorvane
