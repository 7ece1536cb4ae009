#include "map/redraw.h"

namespace quorvane {

Redraw SettleSwitches(const OverlaySwitches& switches, MapState& state) {
  Redraw redraw = {.Switches = switches};
  if (!switches.IsOn(OverlayKind::ZoomIn)) {
    state.View.ShowAll(state.View.UniverseExtent);
    state.ClickMode = kOrdinaryClick;
    state.ZoomArmed = 0;
    redraw.IsFullView = true;
  } else if (state.ZoomArmed == 0) {
    state.ClickMode = kStartZoomBox;
    state.ZoomArmed = 1;
    redraw.IsDue = false;
    return redraw;
  }
  if (switches.IsOn(OverlayKind::ClearMap)) redraw.Switches.ClearMap();
  return redraw;
}

}  // namespace quorvane
