#pragma once

#include "map/map_state.h"
#include "map/overlay_kind.h"

namespace quorvane {

/// What a change of the switches asks for, beside drawing.
struct Redraw {
  /// The switches as they stand from now on.
  OverlaySwitches Switches;
  /// Whether the map is drawn now; a zoom that was just asked for waits for its box.
  bool IsDue = true;
  /// The whole universe is shown, and no button waits for a zoom box.
  bool IsFullView = false;
  /// Clicks on the map do no longer draw, because a zoom begins or ends.
  bool StopsDrawing = false;
  /// The drawing layer is to be read anew from its file.
  bool ReadsDrawing = false;
};

/// Settles the switches before a redraw: a pressed Zoom In button is honoured, a released one gives
/// the full view back, and Clear Map turns everything off, itself included.
Redraw SettleSwitches(const OverlaySwitches& switches, MapState& state);

}  // namespace quorvane
