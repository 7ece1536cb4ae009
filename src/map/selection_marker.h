#pragma once

#include <optional>

#include "map/map_view.h"
#include "model/race_colours.h"

namespace quorvane {

/// Where the selection marker lies on the map, in surface units.
struct MarkerSquare {
  double Left = 0;
  double Top = 0;
  double Side = 0;

  bool operator==(const MarkerSquare&) const = default;
};

/// The square around a selected planet, 45 light years wide at every zoom.
/// @param x, y the planet's stored position; 0 in either: nothing is selected
/// @return nothing when there is no marker to show, which is also so for a planet far outside the
///         view, at a place beyond 16 bits
std::optional<MarkerSquare> MarkerAround(const MapView& view, int x, int y);

/// A colour of the marker's flicker, near white, from one random number in [0, 1) for each
/// component.
Colour MarkerColour(double red, double green, double blue);

}  // namespace quorvane
