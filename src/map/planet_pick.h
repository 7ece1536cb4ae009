#pragma once

#include <string>

#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// The planet under the pointer: one whose place on the map lies at most 5 light years from it in
/// either direction, the last such planet where several lie so close.
/// @return the planet's number, or 0 for deep space
int PlanetAt(const GameSession& session, const MapView& view, SurfacePoint pointer);

/// What the status line says of the pointer's place, in the game's own coordinates.
std::string PointerText(const MapView& view, SurfacePoint pointer);

}  // namespace quorvane
