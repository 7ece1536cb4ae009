#include "render/zoom_box.h"

#include <cmath>

#include "model/rounding.h"

namespace quorvane {

void StartZoomBox(MapState& state, SurfacePoint corner) {
  MapView& view = state.View;
  view.ViewXMin = ToWhole16(corner.X / view.MapScale);
  view.ViewYMin = ToWhole16(corner.Y / view.MapScale);
  state.ClickMode = kEndZoomBox;
}

double ZoomBoxSide(double left, double x) { return std::fabs(x - left); }

bool EndZoomBox(MapState& state, double side) {
  MapView& view = state.View;
  const int xMax = ToWhole16(side / view.MapScale + view.ViewXMin);
  const int yMax = ToWhole16(side / view.MapScale + view.ViewYMin);
  if (xMax <= view.ViewXMin) return false;
  view.ViewXMax = xMax;
  view.ViewYMax = yMax;
  view.MapScale = kMapUnits / (view.ViewXMax - view.ViewXMin);
  state.ClickMode = kOrdinaryClick;
  return true;
}

}  // namespace quorvane
