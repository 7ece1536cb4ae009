#include "map/map_state.h"

#include <cmath>

#include "model/game_session.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

int ScrollStep(double mapScale, int shiftMask) {
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

void StartZoomBox(MapState& state, SurfacePoint corner) {
  state.BoxXMin = ToWhole16(corner.X / state.View.MapScale);
  state.BoxYMin = ToWhole16(corner.Y / state.View.MapScale);
  state.ClickMode = kEndZoomBox;
}

double ZoomBoxSide(double left, double x) { return std::fabs(x - left); }

bool EndZoomBox(MapState& state, double side) {
  MapView& view = state.View;
  const int xMax = ToWhole16(side / view.MapScale + state.BoxXMin);
  const int yMax = ToWhole16(side / view.MapScale + state.BoxYMin);
  if (xMax <= state.BoxXMin) return false;
  view.ViewXMin = state.BoxXMin;
  view.ViewXMax = xMax;
  view.ViewYMin = state.BoxYMin;
  view.ViewYMax = yMax;
  view.MapScale = kMapUnits / (view.ViewXMax - view.ViewXMin);
  state.ClickMode = kOrdinaryClick;
  return true;
}

bool GiveUpZoomBox(MapState& state) {
  if (state.ClickMode != kEndZoomBox) return false;
  state.ClickMode = kStartZoomBox;
  return true;
}

}  // namespace quorvane
