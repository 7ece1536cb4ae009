#include "screens/mineral_charts.h"

#include <algorithm>

#include "map/palette.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr double kDegree = 3.1415927 / 180;
constexpr std::array kMineralColours = {kIroniumColour, kBoraniumColour, kGermaniumColour};
constexpr double kFlatBar = 0.16;

using Amounts = std::array<double, 3>;

Amounts AmountsOf(const PlanetRecord& planet, const std::array<PlanetField, 3>& fields) {
  Amounts amounts;
  std::ranges::transform(fields, amounts.begin(),
                         [&](PlanetField field) { return planet[field].Number(); });
  return amounts;
}

double SumOf(const Amounts& amounts) { return amounts[0] + amounts[1] + amounts[2]; }

Amounts Rounded(Amounts amounts, double extra) {
  for (double& amount : amounts) amount = ToWhole32(amount + extra);
  return amounts;
}

// A mineral too rare to be seen has no slice. The first slice begins a degree late.
std::vector<PieSlice> SlicesOf(const Amounts& amounts) {
  std::vector<PieSlice> slices;
  const double sum = SumOf(amounts);
  if (!(sum > 0)) return slices;
  double start = kDegree;
  double end = 0;
  for (std::size_t mineral = 0; mineral < amounts.size(); ++mineral) {
    end += amounts[mineral] / sum * 360 * kDegree;
    if (end > start) slices.push_back({start, end, kMineralColours[mineral]});
    start = end;
  }
  return slices;
}

// Bars of `perUnit` hundredths of a twip, cut at the tallest.
Amounts BarsOf(Amounts amounts, int perUnit) {
  for (double& amount : amounts) {
    amount = std::clamp(TimesHundredths(amount, perUnit), 0.0, kTallestBar);
  }
  return amounts;
}

MineralChart ChartOf(const Amounts& amounts, double extra, int perUnit) {
  MineralChart chart;
  chart.BarHeights.fill(kFlatBar);
  if (!(SumOf(amounts) > 0)) return chart;
  const Amounts whole = Rounded(amounts, extra);
  chart.Slices = SlicesOf(whole);
  chart.BarHeights = BarsOf(whole, perUnit);
  return chart;
}

}  // namespace

MineralChart ConcentrationChart(const PlanetRecord& planet) {
  const Amounts amounts =
      AmountsOf(planet, {PlanetField::IronMC, PlanetField::BoraMC, PlanetField::GermMC});
  return ChartOf(amounts, 0, 1600);
}

MineralChart StoredChart(const PlanetRecord& planet) {
  const Amounts amounts = AmountsOf(
      planet, {PlanetField::StoredIron, PlanetField::StoredBora, PlanetField::StoredGerm});
  // A kT more of each keeps the slice of a mineral that has run out visible.
  return ChartOf(amounts, 1, 16);
}

}  // namespace quorvane
