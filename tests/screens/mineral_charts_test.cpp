#include "screens/mineral_charts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

namespace quorvane {
namespace {

using Amounts = std::array<FieldValue, 3>;
using Heights = std::array<double, 3>;

MineralChart ChartFor(const Amounts& amounts, bool isStored) {
  const auto first =
      static_cast<std::size_t>(isStored ? PlanetField::StoredIron : PlanetField::IronMC);
  PlanetRecord planet;
  for (std::size_t i = 0; i < amounts.size(); ++i) planet.Field(first + i) = amounts[i];
  return isStored ? StoredChart(planet) : ConcentrationChart(planet);
}

// The slices as "b1 180 g180 270 ", in degrees.
std::string SlicesText(const MineralChart& chart) {
  std::string text;
  for (const PieSlice& slice : chart.Slices) {
    text += slice.SliceColour == Colour{0, 0, 255} ? 'b' : slice.SliceColour.Red == 0 ? 'g' : 'y';
    for (const double angle : {slice.Start, slice.End}) {
      text += std::to_string(std::lround(angle * 180 / std::numbers::pi)) + " ";
    }
  }
  return text;
}

TEST(MineralCharts, SliceTheWholeCircleAndCutTallBars) {
  const std::tuple<const char*, Amounts, bool, const char*, Heights> cases[] = {
      {"concentrations", {"50", "25", "25"}, false, "b1 180 g180 270 y270 360 ", {800, 400, 400}},
      {"one is out", {0, 100, 150}, false, "g0 144 y144 360 ", {0, 1600, 1600}},
      {"only ironium", {10, 0, 0}, false, "b1 360 ", {160, 0, 0}},
      {"unknown", {"Unknown", "Unknown", "Unknown"}, false, "", {0.16, 0.16, 0.16}},
      {"hardly any", {0.2, 0.1, 0}, false, "", {0, 0, 0}},
      {"stored", {1999, 999, 999}, true, "b1 180 g180 270 y270 360 ", {320, 160, 160}},
      {"a lot", {20000, 0, 0}, true, "b1 360 g360 360 y360 360 ", {1600, 0.16, 0.16}},
      {"nothing stored", {0, "", 0}, true, "", {0.16, 0.16, 0.16}}};
  for (const auto& [what, amounts, isStored, slices, heights] : cases) {
    const MineralChart chart = ChartFor(amounts, isStored);
    EXPECT_EQ(SlicesText(chart), slices) << what;
    EXPECT_EQ(chart.BarHeights, heights) << what;
  }
}

}  // namespace
}  // namespace quorvane
