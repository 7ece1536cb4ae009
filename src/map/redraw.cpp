#include "map/redraw.h"

namespace quorvane {

Redraw SettleSwitches(const OverlaySwitches& switches, MapState& state) {
  Redraw redraw = {.Switches = switches};
  const bool isZoomIn = switches.IsOn(OverlayKind::ZoomIn);
  redraw.IsDue = !ArmZoom(state, isZoomIn);
  redraw.IsFullView = LeaveZoom(state, isZoomIn);
  redraw.StopsDrawing = !redraw.IsDue || redraw.IsFullView;
  if (!redraw.IsDue) return redraw;
  if (switches.IsOn(OverlayKind::ClearMap)) redraw.Switches.ClearMap();
  redraw.ReadsDrawing = redraw.Switches.IsOn(OverlayKind::QvlDrawing);
  return redraw;
}

}  // namespace quorvane
