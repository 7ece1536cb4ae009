#include "rules/race_ranges.h"

#include <algorithm>

namespace quorvane {
namespace {

constexpr double kLowestGravity = 0.12;
constexpr double kHighestGravity = 8;
constexpr double kHighestTemperature = 200;
constexpr double kHighestRadiation = 100;

struct Range {
  double Min = 0;
  double Max = 0;

  void Include(double reading) {
    Min = std::min(Min, reading);
    Max = std::max(Max, reading);
  }
};

struct HabRanges {
  Range Gravity = {kHighestGravity, kLowestGravity};
  Range Temperature = {kHighestTemperature, -kHighestTemperature};
  Range Radiation = {kHighestRadiation, 0};
};

void Store(PlayerRecord& player, const HabRanges& ranges) {
  player[PlayerField::GravMin] = ranges.Gravity.Min;
  player[PlayerField::GravMax] = ranges.Gravity.Max;
  player[PlayerField::TempMin] = ranges.Temperature.Min;
  player[PlayerField::TempMax] = ranges.Temperature.Max;
  player[PlayerField::RadMin] = ranges.Radiation.Min;
  player[PlayerField::RadMax] = ranges.Radiation.Max;
}

HabRanges Scan(const GameSession& session, int player) {
  HabRanges ranges;
  for (const PlanetRecord& planet : session.Planets()) {
    if (planet.Owner().empty() || planet.OwnerIndex() != player) continue;
    ranges.Gravity.Include(planet[PlanetField::Gravity].Number());
    ranges.Temperature.Include(planet[PlanetField::Temperature].Number());
    ranges.Radiation.Include(planet[PlanetField::Radiation].Number());
    ranges.Gravity.Min = std::max(ranges.Gravity.Min, kLowestGravity);
  }
  return ranges;
}

// A race that was seen on few planets tolerates more than those show. Only the maximums move.
void Widen(HabRanges& ranges) {
  Range& gravity = ranges.Gravity;
  if (gravity.Min == gravity.Max) gravity.Max = gravity.Min * 1.75;
  // As a quotient: 0.27 g to 0.36 g counts as narrow, which 0.27 > 0.75 * 0.36 would miss.
  if (gravity.Min / gravity.Max > 0.75) gravity.Max = gravity.Max + 0.5;
  gravity.Max = std::min(gravity.Max, kHighestGravity);
  Range& temperature = ranges.Temperature;
  if (temperature.Min == temperature.Max) temperature.Max = temperature.Min + 80;
  temperature.Max = std::min(temperature.Max, kHighestTemperature);
  Range& radiation = ranges.Radiation;
  if (radiation.Min == radiation.Max) radiation.Max = radiation.Min + 20;
  radiation.Max = std::min(radiation.Max, kHighestRadiation);
}

}  // namespace

void ResetHabRanges(PlayerRecord& player) { Store(player, HabRanges()); }

void EstimateHabRanges(GameSession& session, int player) {
  HabRanges ranges = Scan(session, player);
  Widen(ranges);
  Store(session.Player(player), ranges);
}

}  // namespace quorvane
