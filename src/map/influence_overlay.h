#pragma once

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"
#include "model/progress.h"

namespace quorvane {

/// Paints every point of the influence grid in view as a dot in its holder's colour, dimmed by the
/// strength of the hold. The dots overlap into closed areas. Points that nobody holds, or a player
/// without a colour, stay as they are.
/// @return false when the user stopped it before all was painted
bool DrawInfluenceBorders(const GameSession& session, const MapView& view, DrawingSurface& surface,
                          const Progress& progress);

/// Draws dots in the full race colours along both sides of every line where the holder of the
/// influence grid changes.
void DrawTerritoryEdges(const GameSession& session, const MapView& view, DrawingSurface& surface);

}  // namespace quorvane
