#include "reference/plain_pick.h"

#include <cmath>

namespace quorvane::reference {

int PlainPlanetAt(const GameSession& session, const MapView& view, SurfacePoint pointer) {
  const double reach = std::nearbyint(5 * view.MapScale);
  int found = 0;
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& planet = session.Planet(number);
    const SurfacePoint place =
        view.ToSurface({static_cast<double>(planet.X()), static_cast<double>(planet.Y())});
    const double right = std::nearbyint(place.X) - pointer.X;
    const double down = std::nearbyint(place.Y) - pointer.Y;
    if (std::abs(right) <= reach && std::abs(down) <= reach) found = number;
  }
  return found;
}

}  // namespace quorvane::reference
