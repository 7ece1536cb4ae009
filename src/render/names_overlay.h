#pragma once

#include "model/game_session.h"
#include "render/drawing_surface.h"
#include "render/map_view.h"

namespace quorvane {

/// Prints the name of every planet in view, centred under the planet.
/// @param coloured whether owned planets' names take their owner's colour; all others are white
void DrawPlanetNames(const GameSession& session, const MapView& view, DrawingSurface& surface,
                     bool coloured);

}  // namespace quorvane
