#include "map/planets_in_view.h"

namespace quorvane {

std::vector<PlanetInView> PlanetsInView(const GameSession& session, const MapView& view) {
  std::vector<PlanetInView> planets;
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& planet = session.Planet(number);
    if (view.Contains(planet.X(), planet.Y()))
      planets.push_back({planet, PositionOf(planet, view)});
  }
  return planets;
}

}  // namespace quorvane
