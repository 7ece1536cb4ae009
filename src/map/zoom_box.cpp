#include "map/zoom_box.h"

#include <cmath>

#include "model/rounding.h"

namespace quorvane {

void StartZoomBox(MapState& state, SurfacePoint corner) {
  state.BoxXMin = ToWhole16(corner.X / state.View.MapScale);
  state.BoxYMin = ToWhole16(corner.Y / state.View.MapScale);
  state.ClickMode = kEndZoomBox;
}

double ZoomBoxSide(double left, double x) { return std::fabs(x - left); }

bool EndZoomBox(MapState& state, double side) {
  MapView& view = state.View;
  // The corner is part of what is rounded: half a light year goes to the even edge, so that it
  // depends on the corner whether it counts.
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
