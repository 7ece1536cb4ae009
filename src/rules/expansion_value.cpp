#include "rules/expansion_value.h"

namespace quorvane {

double ExpansionValue(const PlanetRecord& planet) {
  const double ironium = planet[PlanetField::IronMC].Number();
  const double boranium = planet[PlanetField::BoraMC].Number();
  const double germanium = planet[PlanetField::GermMC].Number();
  const double habValue = planet[PlanetField::HabValue].Number();
  return (ironium * 1.5 + boranium + 2 * germanium) / 4.5 * habValue / 100;
}

}  // namespace quorvane
