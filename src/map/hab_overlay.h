#pragma once

#include <string_view>

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// Every planet in view whose habitability for the user's own race the report states, as a disc:
/// its colour tells the class of the value, its size the magnitude. Overlapping discs mix.
void DrawCurrentHabValues(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// The same with the habitability that `EstimatedHab` finds for a race. Planets never reported are
/// dull discs; a planet that is reported but whose environment is not known shows the value of the
/// planet before it.
/// @param raceName the race; with a name that no player has, only the dull discs are drawn
void DrawEstimatedHabValues(const GameSession& session, const MapView& view,
                            DrawingSurface& surface, std::string_view raceName);

/// Every planet in view by its habitability after terraforming: dull discs where that is 0 or not
/// known, over them red ones for negative values, over those green ones for positive values.
void DrawValueAfterTerraforming(const GameSession& session, const MapView& view,
                                DrawingSurface& surface);

}  // namespace quorvane
