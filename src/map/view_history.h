#pragma once

#include <cstddef>
#include <deque>

#include "map/map_view.h"

namespace quorvane {

/// The views of a game that were shown lately, to go back to.
class ViewHistory {
 public:
  static constexpr std::size_t kMostViews = 50;

  /// Begins anew with the first view of a game.
  void Begin(const MapView& view);
  /// Takes a view that is shown from now on; views that were gone back from are forgotten. The same
  /// view again changes nothing.
  /// @param continues whether it is the next step of the movement that led to the view before,
  ///        which nobody would go back to
  void Visit(const MapView& view, bool continues = false);

  /// The view on show.
  const MapView& Shown() const { return views_[shown_]; }
  bool CanGoBack() const { return shown_ > 0; }
  bool CanGoForward() const { return shown_ + 1 < views_.size(); }
  /// The view before, or the one that was gone back from; both only where there is one.
  const MapView& GoBack() { return views_[--shown_]; }
  const MapView& GoForward() { return views_[++shown_]; }

 private:
  std::deque<MapView> views_ = {MapView()};
  std::size_t shown_ = 0;
};

}  // namespace quorvane
