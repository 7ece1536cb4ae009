#include "map/planet_pick.h"

#include <cmath>

#include "map/planets_in_view.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr double kPickLightYears = 5;

// Whether a place on the map, rounded as it is for picking, lies within reach.
bool IsNear(double place, double pointer, double reach) {
  return std::fabs(RoundHalfEven(place) - pointer) <= reach;
}

}  // namespace

int PlanetAt(const GameSession& session, const MapView& view, SurfacePoint pointer) {
  // Rounded after multiplying: 42 units where a light year is 8.33 of them.
  const double reach = RoundHalfEven(view.MapScale * kPickLightYears);
  for (int number = session.PlanetCount; number > 0; --number) {
    const SurfacePoint place = PositionOf(session.Planet(number), view);
    if (IsNear(place.X, pointer.X, reach) && IsNear(place.Y, pointer.Y, reach)) return number;
  }
  return 0;
}

std::string PointerText(const MapView& view, SurfacePoint pointer) {
  const GamePoint at = view.ToGame(pointer);
  return " X:" + NumberText(at.X) + " Y:" + NumberText(at.Y);
}

}  // namespace quorvane
