#pragma once

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// How old the newest report of every reported planet in view is: from green for a current one to
/// red after 26 years.
void DrawReportAge(const GameSession& session, const MapView& view, DrawingSurface& surface);

}  // namespace quorvane
