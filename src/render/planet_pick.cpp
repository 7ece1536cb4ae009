#include "render/planet_pick.h"

#include <cmath>

#include "model/rounding.h"
#include "render/planets_in_view.h"

namespace quorvane {
namespace {

constexpr double kPickLightYears = 5;

// Whether a coordinate, rounded as places on the map are for picking, lies within reach.
bool IsNear(double place, double pointer, double reach) {
  // Rounding moves a place by no more than a half; it is costly for all the planets far away.
  if (std::fabs(place - pointer) > reach + 1) return false;
  return std::fabs(RoundHalfEven(place) - pointer) <= reach;
}

}  // namespace

int PlanetAt(const GameSession& session, const MapView& view, SurfacePoint pointer) {
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
