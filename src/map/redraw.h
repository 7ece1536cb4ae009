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
  bool StopsDrawing() const { return !IsDue || IsFullView; }
  /// The drawing layer is to be read anew from its file.
  bool ReadsDrawing() const { return IsDue && Switches.IsOn(OverlayKind::QvlDrawing); }
};

/// Settles the switches before a redraw. A Zoom In button that has just been pressed arms the zoom:
/// the next click on the map starts the zoom box, and until the box is drawn the map keeps what it
/// shows. While it is up the view is the full one and clicks are ordinary. Clear Map turns
/// everything off, itself included.
Redraw SettleSwitches(const OverlaySwitches& switches, MapState& state);

}  // namespace quorvane
