#include "rules/expansion_value.h"

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

}  // namespace quorvane
