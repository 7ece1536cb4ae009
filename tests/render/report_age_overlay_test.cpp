#include "render/report_age_overlay.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/drawn.h"

namespace quorvane {
namespace {

TEST(DrawReportAge, GoesFromGreenToRedWithTheYears) {
  const std::tuple<double, const char*, const char*> cases[] = {
      {0, "Current", "#00ff00"},           {3, "  3 years old", "#1ee100"},
      {25, " 25 years old", "#fa0500"},    {26, " 26 years old", "#ff0000"},
      {9999, "9999 years old", "#ff0000"}, {0, "", nullptr},
      {-2, " -2 years old", nullptr}};
  for (const auto& [years, age, colour] : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).With(PlanetField::ReportAge, years);
    game.With(PlanetField::AgeText, age);
    const Texts expected = colour != nullptr ? Texts{Disc("60", colour)} : Texts();
    EXPECT_EQ(Drawn(DrawReportAge, game.Build()), expected) << years;
  }
}

}  // namespace
}  // namespace quorvane
