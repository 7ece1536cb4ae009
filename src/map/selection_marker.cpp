#include "map/selection_marker.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "map/discs.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr double kMarkerLightYears = 45;

bool FitsInto16Bits(double whole) {
  using Limits = std::numeric_limits<std::int16_t>;
  return whole >= Limits::min() && whole <= Limits::max();
}

}  // namespace

std::optional<MarkerSquare> MarkerAround(const MapView& view, int x, int y) {
  if (x == 0 || y == 0) return std::nullopt;
  const SurfacePoint at = view.ToSurface({static_cast<double>(x), static_cast<double>(y)});
  const double centreX = RoundHalfEven(at.X);
  const double centreY = RoundHalfEven(at.Y);
  if (!FitsInto16Bits(centreX) || !FitsInto16Bits(centreY)) return std::nullopt;
  const double side = kMarkerLightYears * view.MapScale;
  // Half of the rounded side, without its fraction: a side of 375 begins 187 before the centre.
  const double half = std::trunc(RoundHalfEven(side) / 2);
  return MarkerSquare{centreX - half, centreY - half, side};
}

Colour MarkerColour(double red, double green, double blue) {
  constexpr double kDarkest = 192;
  constexpr double kRange = 64;
  return RoundedColour(kDarkest + kRange * red, kDarkest + kRange * green,
                       kDarkest + kRange * blue);
}

}  // namespace quorvane
