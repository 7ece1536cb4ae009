#include "map/map_motion.h"

#include <algorithm>
#include <cmath>

#include "model/rounding.h"

namespace quorvane {
namespace {

// The window of a width whose edges come nearest to a place inside the universe.
MapView WindowAt(MapView view, double left, double top, int width) {
  if (width >= view.UniverseWidth()) {
    view.ShowAll(view.UniverseExtent);
    return view;
  }
  const auto inside = [&](double edge) {
    return std::clamp<int>(ToWhole32(edge), 0, view.UniverseWidth() - width);
  };
  view.ShowWindow(inside(left), inside(top), width);
  return view;
}

bool IsWhole(double value) { return value == std::floor(value); }

}  // namespace

// A view that somebody else has changed meanwhile is taken as it is.
void MapMotion::Continue(const MapView& view) {
  if (view == shown_) return;
  shown_ = view;
  left_ = view.ViewXMin;
  top_ = view.ViewYMin;
  width_ = view.WidthShown();
  place_.reset();
}

MapView MapMotion::Zoomed(const MapView& view, SurfacePoint pointer, double notches) {
  if (view.UniverseWidth() == 0) return view;
  Continue(view);
  if (!place_ || pointer != pointer_) place_ = view.ToStored(pointer);
  pointer_ = pointer;
  const double smallest = std::min(kSmallestWindow, view.WidthShown());
  const double wanted = width_ * std::pow(kZoomPerNotch, -notches);
  const double exact = std::clamp<double>(wanted, smallest, view.UniverseWidth());
  const int width = ToWhole32(exact);
  left_ = place_->X - pointer.X / kMapUnits * width;
  top_ = place_->Y - pointer.Y / kMapUnits * width;
  shown_ = WindowAt(view, left_, top_, width);
  width_ = IsWhole(notches) ? width : exact;
  return shown_;
}

MapView MapMotion::Panned(const MapView& view, double right, double down) {
  if (view.IsFull()) return view;
  Continue(view);
  place_.reset();
  const auto moved = [&](double edge, double by) {
    return std::clamp<double>(edge + by / view.MapScale, 0,
                              std::max(view.UniverseWidth() - view.WidthShown(), 0));
  };
  left_ = moved(left_, right);
  top_ = moved(top_, down);
  shown_ = WindowAt(view, left_, top_, view.WidthShown());
  return shown_;
}

MapView DraggedView(const MapView& view, StoredPoint place, SurfacePoint pointer) {
  if (view.IsFull()) return view;
  return WindowAt(view, place.X - pointer.X / view.MapScale, place.Y - pointer.Y / view.MapScale,
                  view.WidthShown());
}

MapView CentredView(const MapView& view, StoredPoint place, int width) {
  return WindowAt(view, place.X - width / 2.0, place.Y - width / 2.0, width);
}

void ShowView(MapState& state, const MapView& view) {
  const bool isBoxOpen = state.ClickMode == kEndZoomBox;
  if (isBoxOpen) {
    state.BoxCorner = view.ToSurface(state.View.ToStored(state.BoxCorner));
    state.BoxSide *= view.MapScale / state.View.MapScale;
  } else {
    state.ClickMode = kOrdinaryClick;
  }
  state.View = view;
  state.ZoomArmed = isBoxOpen || !view.IsFull() ? 1 : 0;
}

}  // namespace quorvane
