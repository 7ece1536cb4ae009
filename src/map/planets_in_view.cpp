#include "map/planets_in_view.h"

#include <cmath>

#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr double kPickLightYears = 5;

// Whether a place on the map, rounded as it is for picking, lies within reach.
bool IsNear(double place, double pointer, double reach) {
  return std::fabs(RoundHalfEven(place) - pointer) <= reach;
}

}  // namespace

std::vector<PlanetInView> PlanetsInView(const GameSession& session, const MapView& view) {
  std::vector<PlanetInView> planets;
  for (const PlanetRecord& planet : session.Planets()) {
    if (view.Contains(planet.X(), planet.Y()))
      planets.push_back({planet, PositionOf(planet, view)});
  }
  return planets;
}

int PlanetAt(const GameSession& session, const MapView& view, SurfacePoint pointer) {
  // Rounded after multiplying: 42 units where a light year is 8.33 of them.
  const double reach = RoundHalfEven(view.MapScale * kPickLightYears);
  for (int number = session.PlanetCount; number > 0; --number) {
    const SurfacePoint place = PositionOf(session.Planet(number), view);
    if (IsNear(place.X, pointer.X, reach) && IsNear(place.Y, pointer.Y, reach)) return number;
  }
  return 0;
}

}  // namespace quorvane
