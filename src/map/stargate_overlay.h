#pragma once

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// The links between planets with stargates, each direction by the range of the gate that sends:
/// safe ones as green lines with two arrowheads. Links are drawn whether or not their planets are
/// in view.
/// @param isComplete whether dangerous links, up to five times the gate's range, are drawn as well,
///        from yellow to red as they get longer
void DrawStargates(const GameSession& session, const MapView& view, DrawingSurface& surface,
                   bool isComplete);

}  // namespace quorvane
