#include "rules/scores.h"

#include <algorithm>

#include "model/rounding.h"

namespace quorvane {

double ExpansionValue(const PlanetRecord& planet) {
  const double ironium = planet[PlanetField::IronMC].Number();
  const double boranium = planet[PlanetField::BoraMC].Number();
  const double germanium = planet[PlanetField::GermMC].Number();
  const double habValue = planet[PlanetField::HabValue].Number();
  // In this order: 113, 113, 120 and 90 % give 104.5, which the map rounds to 104; divided by 450
  // at once they give a little more, and 105.
  return (ironium * 1.5 + boranium + 2 * germanium) / 4.5 * habValue / 100;
}

int PlanetScore(const PlanetRecord& planet) {
  const double population = planet.Population();
  const double resources = planet[PlanetField::Resources].Number();
  const double people = std::min(RoundHalfEven(population / 100000), 6.0);
  const double starbase = planet.Starbase() != kNoStarbase ? 3 : 0;
  // Rounded before the sum: 10,000 people and 13 resources score 0, not 0.53 rounded to 1.
  const double economy = RoundHalfEven(resources > 0 ? resources / 30 : population / 500 / 30);
  return ToWhole32(people + starbase + economy);
}

}  // namespace quorvane
