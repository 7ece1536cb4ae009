#pragma once

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// Every planet in view as a white dot with a black rim.
void DrawPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// Every owned planet in view as a disc in its owner's colour on a black one, wider and ringed in
/// yellow where a starbase orbits. Players without a colour are not drawn.
void DrawOwnedPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface);

}  // namespace quorvane
