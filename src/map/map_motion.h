#pragma once

#include <optional>

#include "map/map_state.h"

namespace quorvane {

/// By how much one notch of the wheel zooms.
inline constexpr double kZoomPerNotch = 1.25;
/// The smallest window that wheel, pinch and keys zoom to, in light years.
inline constexpr int kSmallestWindow = 25;

/// Moves the view by the small steps of wheels, touch pads and pinches. Windows have edges at whole
/// light years inside the universe; what a step leaves over is kept for the next one, so that many
/// small steps come as far as a large one, and the place under a resting pointer does not wander.
class MapMotion {
 public:
  /// The view a zoom leads to. The place under the pointer stays there, within half a light year,
  /// as far as the edges of the universe allow.
  /// @param notches of the wheel, or parts of them: above 0 the window gets smaller, down to
  ///        `kSmallestWindow`; a window as wide as the universe is the full view
  MapView Zoomed(const MapView& view, SurfacePoint pointer, double notches);
  /// The view that a window gets to when it is moved over the map by so many surface units. The
  /// full view stays.
  MapView Panned(const MapView& view, double right, double down);

 private:
  void Continue(const MapView& view);

  // The view that was given last, and what it would be without whole edges.
  MapView shown_;
  double left_ = 0;
  double top_ = 0;
  double width_ = 0;
  // Which place the last zoom has kept where.
  SurfacePoint pointer_;
  std::optional<StoredPoint> place_;
};

/// The view in which a place lies under the pointer, as far as the edges of the universe allow. The
/// full view stays.
MapView DraggedView(const MapView& view, StoredPoint place, SurfacePoint pointer);

/// A view with a place in its middle, as far as the edges of the universe allow.
/// @param width of the window in light years; as wide as the universe: the full view
MapView CentredView(const MapView& view, StoredPoint place, int width);

/// Shows another view of the same game: a smaller window is shown as one that a zoom box ended in,
/// the full view as after the zoom's release. The corner of an open zoom box keeps its place in the
/// universe, and the zoom waits for its other corner still.
void ShowView(MapState& state, const MapView& view);

}  // namespace quorvane
