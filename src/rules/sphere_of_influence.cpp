#include "rules/sphere_of_influence.h"

#include <algorithm>
#include <cmath>

#include "model/planet_record.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr double kFullCoverage = 97.92;  // percent, the best defence that the game knows
// Without defences the factor falls by 97.92 / 489.6, a hair less than 0.2. Written with 0.2, a
// small colony without a starbase would have a sphere of 4 light years, not 5.
constexpr double kCoverageWeight = 489.6;

struct StandInPopulation {
  std::string_view Starbase;
  int Population;
};

constexpr StandInPopulation kStandIns[] = {{"Orbital Fort", 250000},   {"Starter Colony", 250000},
                                           {"Space Dock", 500000},     {"Space Station", 1000000},
                                           {"Ultra Station", 2000000}, {"Death Star", 3000000}};
constexpr int kOtherStarbase = 1350000;

double CoverageOf(std::string_view defence) {
  if (defence == kUnknown || defence.empty()) return 0;
  return NumericValue(defence.substr(0, defence.size() - 1));  // without the percent sign
}

}  // namespace

int SphereRadius(const SphereInputs& inputs) {
  if (!(inputs.Population > 0)) return 0;
  // Multiplied first: 100 times 57 / 100 is 57, 100 times 0.57 a little less.
  const double radius =
      std::max(std::floor(inputs.Population / 10000) * inputs.SoiSetting / 100, 10.0);
  double factor = inputs.Starbase == kNoStarbase ? 0.7 : 1.0;
  factor = factor - (kFullCoverage - CoverageOf(inputs.Defence)) / kCoverageWeight;
  return std::min(FloorToWhole32(factor * radius), inputs.SoiSetting);
}

int StarbasePopulation(std::string_view starbase) {
  const auto* const known =
      std::ranges::find(kStandIns, starbase, [](const auto& row) { return row.Starbase; });
  return known != std::end(kStandIns) ? known->Population : kOtherStarbase;
}

}  // namespace quorvane
