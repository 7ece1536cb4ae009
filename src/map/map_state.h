#pragma once

#include "map/map_view.h"

namespace quorvane {

/// `ClickMode`: what the next click on the map does.
inline constexpr int kOrdinaryClick = 0;
inline constexpr int kStartZoomBox = 1;
inline constexpr int kEndZoomBox = 2;

/// The view of the map and how far a zoom has got.
struct MapState {
  MapView View;
  /// 1 from the moment the Zoom In button was honoured until it is released.
  int ZoomArmed = 0;
  int ClickMode = kOrdinaryClick;
  /// Where the window of an open zoom box will begin, in stored coordinates. The view is changed
  /// only once the box is complete.
  int BoxXMin = 0;
  int BoxYMin = 0;
};

/// Honours a Zoom In button that has just been pressed: the next click on the map starts the zoom
/// box, and until the box is drawn the map keeps what it shows.
/// @return whether that has happened, so that nothing is to be drawn now
bool ArmZoom(MapState& state, bool isZoomIn);

/// Goes back to the full view and ordinary clicks when the Zoom In button is up; a button that is
/// down keeps the view.
/// @return whether the view is now the full one for that reason
bool LeaveZoom(MapState& state, bool isZoomIn);

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

/// The keys that move a zoomed map.
enum class ScrollKey { Left, Up, Right, Down };

/// Moves the window of a zoomed map by one step: a light year, or with modifier keys a quarter of
/// the scale times the mask. A move that would reach the universe's edge is not made at all.
/// @param shiftMask 1 Shift, 2 Ctrl, 4 Alt, added together
/// @return whether the map is to be drawn again: always, moved or not, unless it is not zoomed
bool ScrollView(MapState& state, ScrollKey key, int shiftMask);

}  // namespace quorvane
