#pragma once

#include <span>

#include "map/drawing_surface.h"
#include "map/map_options.h"
#include "map/map_state.h"
#include "map/overlay_kind.h"
#include "model/drawing_record.h"
#include "model/game_session.h"
#include "model/progress.h"

namespace quorvane {

/// Everything that one redraw of the map reads and draws on.
struct MapDrawing {
  const GameSession& Session;
  /// Only `BordersCached` is written.
  MapState& State;
  const OverlaySwitches& Switches;
  /// The map.
  DrawingSurface& Universe;
  /// Its twin of the same size, which is never shown and keeps the picture of the borders.
  DrawingSurface& Universe2;
  /// Told how far the painting of the borders is; the user may stop the redraw.
  const quorvane::Progress& Progress;
  /// The user's drawings as their file has them.
  std::span<const DrawingRecord> Drawing = {};
  MapOptions Options = {};
};

/// Blanks the map and draws every overlay that is on, each over the previous ones, in one fixed
/// order. The influence borders come first; their picture at full view is kept on the twin and used
/// again while `BordersCached` is 1.
/// @return false when the user stopped it; what is drawn by then stays
bool DrawOverlayStack(const MapDrawing& map);

}  // namespace quorvane
