#include "map/map_state.h"

#include "model/game_session.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

int ScrollStep(double mapScale, int shiftMask) {
  // Rounded once, behind the mask: 2.5 with Ctrl is a step of 5, not two of 2.
  const int step = ToWhole16((mapScale / 4) * shiftMask);
  return step == 0 ? 1 : step;
}

// Moves one pair of window edges; `step` is negative towards the universe's left or upper edge.
void MoveEdges(int& low, int& high, int step, int universeExtent) {
  const bool isAllowed = step < 0 ? low + step > 0 : high + step < universeExtent - kUniverseOrigin;
  if (!isAllowed) return;
  low += step;
  high += step;
}

}  // namespace

bool ArmZoom(MapState& state, bool isZoomIn) {
  if (!isZoomIn || state.ZoomArmed != 0) return false;
  state.ClickMode = kStartZoomBox;
  state.ZoomArmed = 1;
  return true;
}

bool LeaveZoom(MapState& state, bool isZoomIn) {
  if (isZoomIn) return false;
  state.View.ShowAll(state.View.UniverseExtent);
  state.ClickMode = kOrdinaryClick;
  state.ZoomArmed = 0;
  return true;
}

bool ScrollView(MapState& state, ScrollKey key, int shiftMask) {
  if (state.ZoomArmed == 0) return false;
  MapView& view = state.View;
  const int step = ScrollStep(view.MapScale, shiftMask);
  switch (key) {
    case ScrollKey::Left:
      MoveEdges(view.ViewXMin, view.ViewXMax, -step, view.UniverseExtent);
      break;
    case ScrollKey::Up:
      MoveEdges(view.ViewYMin, view.ViewYMax, -step, view.UniverseExtent);
      break;
    case ScrollKey::Right:
      MoveEdges(view.ViewXMin, view.ViewXMax, step, view.UniverseExtent);
      break;
    case ScrollKey::Down:
      MoveEdges(view.ViewYMin, view.ViewYMax, step, view.UniverseExtent);
      break;
  }
  return true;
}

}  // namespace quorvane
