#pragma once

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// Prints the name of every planet in view, centred under the planet.
/// @param coloured whether owned planets' names take their owner's colour; all others are white
void DrawPlanetNames(const GameSession& session, const MapView& view, DrawingSurface& surface,
                     bool coloured);

}  // namespace quorvane
