#pragma once

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// How hard every populated planet in view would be to take: from green to red as its population
/// rises towards a million, redder still with a starbase.
void DrawDifficultyOfAttack(const GameSession& session, const MapView& view,
                            DrawingSurface& surface);

/// How full every productive planet of the user's own race in view is: from green to red as its
/// population nears what its habitability lets live there, blue to purple where nobody can live.
void DrawGrowth(const GameSession& session, const MapView& view, DrawingSurface& surface);

}  // namespace quorvane
