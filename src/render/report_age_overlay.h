#pragma once

#include "model/game_session.h"
#include "render/drawing_surface.h"
#include "render/map_view.h"

namespace quorvane {

/// How old the newest report of every reported planet in view is: from green for a current one to
/// red after 26 years.
void DrawReportAge(const GameSession& session, const MapView& view, DrawingSurface& surface);

}  // namespace quorvane
