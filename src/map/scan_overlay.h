#pragma once

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// What is being scanned: the scanner ranges of planets in view as dark discs, the penetrating ones
/// above the normal ones, and a yellow point on every planet in view whose report is current. Only
/// per-player reports state scanner ranges.
void DrawScannedPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface);

}  // namespace quorvane
