#include "render/stargate_overlay.h"

#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

#include "analysis/stargates.h"
#include "model/rounding.h"
#include "render/palette.h"

namespace quorvane {
namespace {

constexpr Colour kArrowheadColour = {0, 200, 0};
constexpr Colour kSafeColour = kGreen;
constexpr double kStrokeLength = 5;  // light years
constexpr int kArrowheads = 2;       // at one and two thirds of a link
constexpr double kFullComponent = 255;

struct Gate {
  const PlanetRecord& Planet;
  double X;
  double Y;
  std::int32_t Range;
};

std::vector<Gate> GatesOf(const GameSession& session) {
  std::vector<Gate> gates;
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& planet = session.Planet(number);
    const std::int32_t range = GateRangeOf(planet);
    if (range <= 0) continue;
    gates.push_back(
        {planet, static_cast<double>(planet.X()), static_cast<double>(planet.Y()), range});
  }
  return gates;
}

// A place on the way from one coordinate to another, counted in thirds.
double Third(double from, double to, int thirds) {
  return RoundHalfEven(to < from ? from - (from - to) / 3 * thirds
                                 : (to - from) / 3 * thirds + from);
}

// Two arrowheads that point from the sending gate to the receiving one: their strokes leave the
// mark backwards, at 45 degrees on either side of the link.
void DrawArrowheads(const Gate& from, const Gate& to, const MapView& view,
                    DrawingSurface& surface) {
  using std::numbers::pi;
  const bool isVertical = from.X == to.X;
  const bool isUpwards = to.Y < from.Y;
  const double theta =
      isVertical ? (isUpwards ? -pi / 2 : pi / 2) : std::atan((to.Y - from.Y) / (to.X - from.X));
  const double sign = to.X >= from.X ? 1 : -1;
  const auto stroke = [](double length) { return RoundHalfEven(kStrokeLength * length); };
  const double a = 3 * pi / 4 - theta;
  const double b = pi / 4 - theta;
  const StoredPoint first = {sign * stroke(std::cos(a)), -sign * stroke(std::sin(a))};
  const StoredPoint second = {-sign * stroke(std::cos(b)), sign * stroke(std::sin(b))};
  for (int mark = 1; mark <= kArrowheads; ++mark) {
    const StoredPoint at = {Third(from.X, to.X, mark), Third(from.Y, to.Y, mark)};
    for (const StoredPoint& way : {first, second}) {
      surface.Line(view.ToSurface(at), view.ToSurface({at.X + way.X, at.Y + way.Y}),
                   kArrowheadColour);
    }
  }
}

// Yellow just beyond the range, red at five times the range.
Colour DangerColour(std::int32_t range, std::int32_t distance) {
  const double excess = static_cast<double>(distance) - range;
  const double green = std::floor(kFullComponent - excess / (4.0 * range) * kFullComponent);
  return {255, static_cast<int>(green), 0};
}

void DrawLink(const Gate& from, const Gate& to, const MapView& view, DrawingSurface& surface,
              bool isComplete) {
  const std::int32_t distance = GateDistance(from.Planet, to.Planet);
  const GateReach reach = ReachOf(from.Range, distance);
  const SurfacePoint start = view.ToSurface({from.X, from.Y});
  const SurfacePoint end = view.ToSurface({to.X, to.Y});
  if (reach == GateReach::Safe) {
    DrawArrowheads(from, to, view, surface);
    surface.Line(start, end, kSafeColour);
  } else if (reach == GateReach::Dangerous && isComplete) {
    surface.Line(start, end, DangerColour(from.Range, distance));
  }
}

}  // namespace

void DrawStargates(const GameSession& session, const MapView& view, DrawingSurface& surface,
                   bool isComplete) {
  surface.SetPen({.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Width = 1});
  const std::vector<Gate> gates = GatesOf(session);
  for (const Gate& from : gates) {
    for (const Gate& to : gates) {
      if (&from != &to) DrawLink(from, to, view, surface, isComplete);
    }
  }
}

}  // namespace quorvane
