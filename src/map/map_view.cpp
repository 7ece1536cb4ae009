#include "map/map_view.h"

#include <algorithm>
#include <cmath>

#include "model/game_session.h"
#include "model/rounding.h"

namespace quorvane {

void MapView::ShowAll(int universeExtent) {
  UniverseExtent = universeExtent;
  ViewXMin = 0;
  ViewYMin = 0;
  ViewXMax = universeExtent;
  ViewYMax = universeExtent;
  MapScale = UniverseWidth() > 0 ? kMapUnits / UniverseWidth() : 0;
}

void MapView::ShowWindow(int xMin, int yMin, int width) {
  ViewXMin = xMin;
  ViewYMin = yMin;
  ViewXMax = xMin + width;
  ViewYMax = yMin + width;
  MapScale = kMapUnits / (ViewXMax - ViewXMin);
}

int MapView::UniverseWidth() const { return std::max(UniverseExtent - kUniverseOrigin, 0); }

GamePoint MapView::ToGame(SurfacePoint point) const {
  // Divided by the scale itself, and rounded down before Y is turned round: both decide which light
  // year a pixel on the line between two belongs to.
  return {std::floor(point.X / MapScale) + ViewXMin + kUniverseOrigin,
          (UniverseExtent - ViewYMin) - std::floor(point.Y / MapScale)};
}

int MapView::ZoomFactor() const {
  const int width = ViewXMax - ViewXMin;
  return width > 0 ? UniverseExtent / width : 1;
}

int MapView::DotSize() const {
  if (ViewXMax - ViewXMin >= UniverseExtent) return 1;
  const int size = ToWhole16(ZoomFactor() / 2.0);  // halves to even: 2 at zoom 3, 4 and 5
  return size == 0 ? 1 : size;
}

}  // namespace quorvane
