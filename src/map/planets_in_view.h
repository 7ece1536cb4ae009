#pragma once

#include <vector>

#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// A planet that the map shows, and where it is drawn.
struct PlanetInView {
  const PlanetRecord& Planet;
  SurfacePoint At;
};

/// Where a planet lies in the universe.
inline StoredPoint PlaceOf(const PlanetRecord& planet) {
  return {static_cast<double>(planet.X()), static_cast<double>(planet.Y())};
}

/// Where a planet is drawn, whether or not the view shows that place.
inline SurfacePoint PositionOf(const PlanetRecord& planet, const MapView& view) {
  return view.ToSurface(PlaceOf(planet));
}

/// The planets strictly inside the view's window, in planet order. They refer to the session's
/// records.
std::vector<PlanetInView> PlanetsInView(const GameSession& session, const MapView& view);

/// The planet under the pointer: one whose place on the map lies at most 5 light years from it in
/// either direction, the last such planet where several lie so close.
/// @return the planet's number, or 0 for deep space
int PlanetAt(const GameSession& session, const MapView& view, SurfacePoint pointer);

}  // namespace quorvane
