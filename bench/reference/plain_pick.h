#pragma once

#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane::reference {

/// What `PlanetAt` finds, asked of every planet in map order with its place rounded first.
int PlainPlanetAt(const GameSession& session, const MapView& view, SurfacePoint pointer);

}  // namespace quorvane::reference
