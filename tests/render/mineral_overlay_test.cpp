#include "render/mineral_overlay.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/game_builder.h"
#include "support/map_views.h"
#include "support/recording_surface.h"

namespace quorvane {
namespace {

std::string Disc(const std::string& radius, const std::string& colour, const char* mode = "copy") {
  return "circle 5000,5000 r" + radius + " " + colour + " fill " + colour + " " + mode +
         " no-outline w1";
}
const std::string kUnexplored = Disc("30", "#503c3c");

using DrawOverlay = void (*)(const GameSession&, const MapView&, DrawingSurface&);

// What an overlay draws for one planet of these concentrations.
std::string Drawn(DrawOverlay draw, const std::array<const char*, 3>& minerals, const char* age,
                  const char* hab = "0", DrawMode mode = DrawMode::Copy) {
  GameBuilder game;
  game.Planet("Alpha", {1500, 1500}).With(PlanetField::AgeText, age);
  game.With(PlanetField::HabValue, hab).With(PlanetField::IronMC, minerals[0]);
  game.With(PlanetField::BoraMC, minerals[1]).With(PlanetField::GermMC, minerals[2]);
  RecordingSurface surface;
  surface.SetPen({.Mode = mode, .Width = 3});
  draw(game.Build(), FullView(), surface);
  return surface.Lines().empty() ? "" : surface.Lines()[0];
}

TEST(DrawConcentration, KeepsTheModeThatTheSurfaceWasLeftIn) {
  const auto draw = DrawIroniumConcentration;
  EXPECT_EQ(Drawn(draw, {"50", "1", "2"}, "Current"), Disc("50", "#0000ff"));
  EXPECT_EQ(Drawn(draw, {"50", "1", "2"}, "Current", "0", DrawMode::Merge),
            Disc("50", "#0000ff", "merge"));
  EXPECT_EQ(Drawn(draw, {"Unknown", "Unknown", "Unknown"}, "Current"), Disc("0", "#0000ff"));
  EXPECT_EQ(Drawn(draw, {"Unknown", "Unknown", "Unknown"}, ""), kUnexplored);
  EXPECT_EQ(Drawn(DrawBoraniumConcentration, {"1", "60", "2"}, ""), Disc("60", "#00ff00"));
  EXPECT_EQ(Drawn(DrawGermaniumConcentration, {"1", "2", "70"}, ""), Disc("70", "#ffff00"));
}

TEST(DrawAverageMineralConcentration, MixesTheColourOfAllThree) {
  const std::tuple<std::array<const char*, 3>, std::string> cases[] = {
      {{"30", "60", "90"}, Disc("60", "#e6994c")},
      {{"10", "150", "10"}, Disc("57", "#1aff1a")},
      {{"1", "2", "2"}, Disc("2", "#050503")},
      {{"30", "Unknown", "90"}, kUnexplored}};
  for (const auto& [minerals, expected] : cases) {
    EXPECT_EQ(Drawn(DrawAverageMineralConcentration, minerals, "Current", "0", DrawMode::Merge),
              expected);
  }
}

TEST(DrawEmpireExpansion, ValuesMineralsAndHabitabilityTogether) {
  const std::tuple<std::array<const char*, 3>, const char*, std::string> cases[] = {
      {{"40", "40", "40"}, "50%", Disc("100", "#ffe600")},
      {{"40", "40", "40"}, "-20%", Disc("50", "#ff002d")},
      {{"100", "100", "100"}, "25%", Disc("125", "#00ff00")},
      {{"100", "100", "100"}, "100%", Disc("125", "#bfff00")},
      {{"100", "100", "100"}, "5%", Disc("100", "#ff9a00")},
      {{"45", "90", "90"}, "1%", Disc("100", "#ff8500")},
      {{"40", "40", "40"}, "", Disc("50", "#ff0000")},
      {{"200", "200", "200"}, "-45%", Disc("50", "#ff00ff")},
      {{"40", "0", "40"}, "50%", kUnexplored}};
  for (const auto& [minerals, hab, expected] : cases) {
    EXPECT_EQ(Drawn(DrawEmpireExpansion, minerals, "Current", hab, DrawMode::Merge), expected)
        << hab;
  }
}

}  // namespace
}  // namespace quorvane
