#include <gtest/gtest.h>

#include <tuple>

#include "map/overlays.h"
#include "support/drawn.h"

namespace quorvane {
namespace {

TEST(DrawCurrentHabValues, DiscTellsTheClassByItsColourAndTheValueByItsSize) {
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"-45", "Current", "150", "#ff0000"}, {"-50", "Current", "166", "#ff0000"},
      {"-11", "Current", "37", "#ff0000"},  {"-10", "Current", "150", "#ff00ff"},
      {"-1", "Current", "42", "#ff00ff"},   {"0", "Current", "30", "#ffff00"},
      {"10", "Current", "150", "#ffff00"},  {"11", "Current", "30", "#00ff00"},
      {"21", "Current", "32", "#00ff00"},   {"100", "Current", "150", "#00ff00"},
      {"100", "", "100", "#00ff00"},        {"-20", "", "30", "#ff0000"},
      {"", "Current", "", nullptr}};
  for (const auto& [value, age, radius, colour] : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).With(PlanetField::AgeText, age);
    game.With(PlanetField::HabValue, value);
    const std::string pen = "merge no-outline w1";
    const Texts expected = colour != nullptr ? Texts{Disc(radius, colour, pen)} : Texts();
    EXPECT_EQ(Drawn(DrawCurrentHabValues, game.Build()), expected) << value;
  }
}

TEST(DrawEstimatedHabValues, CarriesTheValueOverToAPlanetWhoseEnvironmentIsNotKnown) {
  GameBuilder game;
  game.Player("Ilyr").Player("Drask").WithPlayerField(PlayerField::GravImmune, 1);
  game.WithPlayerField(PlayerField::TempImmune, 1).WithPlayerField(PlayerField::RadImmune, 1);
  game.Planet("Unknown", {1100, 1500}).With(PlanetField::AgeText, "Current");
  game.Planet("Outside", {1900, 1500}).With(PlanetField::Radiation, "50mR");
  game.Planet("Unexplored", {1200, 1500}).With(PlanetField::Radiation, "50mR");
  game.Planet("Carried", {1500, 1500}).With(PlanetField::AgeText, "  2 years old");
  const MapView view = Zoomed(50, 50, 800);
  const Texts discs = {"circle 625,5625 r30 #ffff00 fill #ffff00 merge no-outline w1",
                       "circle 1875,5625 r30 #503c3c fill #503c3c merge no-outline w1",
                       "circle 5625,5625 r150 #00ff00 fill #00ff00 merge no-outline w1"};
  EXPECT_EQ(Drawn(DrawEstimatedHabValues, game.Build(), view, "Drask"), discs);
  for (const char* nobody : {"drask", ""}) {
    EXPECT_EQ(Drawn(DrawEstimatedHabValues, game.Build(), view, nobody), Texts{discs[1]});
  }
}

TEST(DrawValueAfterTerraforming, DrawsDullDiscsThenRedOnesThenGreenOnes) {
  GameBuilder game;
  game.Planet("Good", {1500, 1500}).With(PlanetField::TerraValue, "97%");
  game.Planet("Bad", {1500, 1500}).With(PlanetField::TerraValue, "-50%");
  game.Planet("Unknown", {1500, 1500});
  const char* const pen = "copy no-outline w1";
  EXPECT_EQ(Drawn(DrawValueAfterTerraforming, game.Build()),
            (Texts{Disc("30", "#503c3c", pen), Disc("166", "#ff0000", pen),
                   Disc("146", "#00ff00", pen)}));
}

}  // namespace
}  // namespace quorvane
