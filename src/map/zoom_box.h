#pragma once

#include "map/map_state.h"

namespace quorvane {

/// Starts the zoom box with its top left corner at a point of the full map: the window will begin
/// there, and the next click ends the box. Until then the map keeps its view.
void StartZoomBox(MapState& state, SurfacePoint corner);

/// Side of the zoom box, in surface units, while the pointer is at `x` and the box began at `left`.
/// The box grows to the right and downwards, whichever way the pointer moves.
double ZoomBoxSide(double left, double x);

/// Ends the zoom box: shows the window that it encloses.
/// @return false, and the box stays, for one that encloses less than a light year
bool EndZoomBox(MapState& state, double side);

/// Gives an open zoom box up: the next click starts another one.
/// @return false when none is open
bool GiveUpZoomBox(MapState& state);

}  // namespace quorvane
