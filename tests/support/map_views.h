#pragma once

#include "map/map_view.h"

namespace quorvane {

/// The whole of a universe of 1000 light years, at 10 surface units to a light year.
inline MapView FullView() {
  MapView view;
  view.ShowAll(2000);
  return view;
}

/// A square window of the same universe.
inline MapView Zoomed(int xMin, int yMin, int width) {
  MapView view = FullView();
  view.ShowWindow(xMin, yMin, width);
  return view;
}

}  // namespace quorvane
