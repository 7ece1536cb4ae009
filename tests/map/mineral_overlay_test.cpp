#include <gtest/gtest.h>

#include <tuple>

#include "map/overlays.h"
#include "support/drawn.h"

namespace quorvane {
namespace {

using Minerals = std::array<FieldValue, 3>;

std::string Plain(const char* radius, const char* colour) {
  return Disc(radius, colour, "copy no-outline w1");
}

// What an overlay draws for one planet of these concentrations on a surface left in this mode.
template <typename Draw>
std::string DrawnFor(const Draw& draw, const Minerals& minerals, const char* age,
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
  EXPECT_EQ(DrawnFor(draw, {"50", "1", "2"}, "Current"), Plain("50", "#0000ff"));
  EXPECT_EQ(DrawnFor(draw, {"50", "1", "2"}, "Current", "0", DrawMode::Merge),
            Disc("50", "#0000ff", "merge no-outline w1"));
  EXPECT_EQ(DrawnFor(draw, {"Unknown", "Unknown", "Unknown"}, "Current"), Plain("0", "#0000ff"));
  EXPECT_EQ(DrawnFor(draw, {"Unknown", "Unknown", "Unknown"}, ""), Plain("30", "#503c3c"));
  EXPECT_EQ(DrawnFor(DrawBoraniumConcentration, {"1", "60", "2"}, ""), Plain("60", "#00ff00"));
  EXPECT_EQ(DrawnFor(DrawGermaniumConcentration, {"1", "2", "70"}, ""), Plain("70", "#ffff00"));
}

TEST(DrawAverageMineralConcentration, MixesTheColourOfAllThree) {
  const auto drawn = [](const Minerals& minerals) {
    return DrawnFor(DrawAverageMineralConcentration, minerals, "Current", "0", DrawMode::Merge);
  };
  EXPECT_EQ(drawn({30, 60, 90}), Plain("60", "#e6994c"));
  EXPECT_EQ(drawn({10, 150, 10}), Plain("57", "#1aff1a"));
  EXPECT_EQ(drawn({1, 2, 2}), Plain("2", "#050503"));
  EXPECT_EQ(drawn({"30", "Unknown", "90"}), Plain("30", "#503c3c"));
}

TEST(DrawEmpireExpansion, ValuesMineralsAndHabitabilityTogether) {
  const std::tuple<Minerals, const char*, const char*, const char*> cases[] = {
      {{40, 40, 40}, "50%", "100", "#ffe600"},    {{40, 40, 40}, "-20%", "50", "#ff002d"},
      {{100, 100, 100}, "25%", "125", "#00ff00"}, {{100, 100, 100}, "100%", "125", "#bfff00"},
      {{100, 100, 100}, "5%", "100", "#ff9a00"},  {{45, 90, 90}, "1%", "100", "#ff8500"},
      {{40, 40, 40}, "", "50", "#ff0000"},        {{200, 200, 200}, "-45%", "50", "#ff00ff"},
      {{40, 0, 40}, "50%", "30", "#503c3c"}};
  for (const auto& [minerals, hab, radius, colour] : cases) {
    EXPECT_EQ(DrawnFor(DrawEmpireExpansion, minerals, "Current", hab, DrawMode::Merge),
              Plain(radius, colour))
        << hab;
  }
}

}  // namespace
}  // namespace quorvane
