#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <span>
#include <vector>

#include "map/map_key.h"
#include "map/overlays.h"
#include "map/palette.h"
#include "model/rounding.h"
#include "rules/stargates.h"

namespace quorvane {
namespace {

constexpr Colour kArrowheadColour = {0, 200, 0};
constexpr Colour kSafeColour = kGreen;
constexpr double kStrokeLength = 5;  // light years
constexpr int kArrowheads = 2;       // at one and two thirds of a link
constexpr std::size_t kStrokes = 4;  // two for each of them
constexpr double kFullComponent = 255;

struct Stroke {
  SurfacePoint From;
  SurfacePoint To;
};

// What is drawn for a link.
struct Link {
  std::array<Stroke, kStrokes> Arrowheads;
  Stroke Line;
  Colour LineColour;
  GateReach Reach = GateReach::None;
};

std::vector<Gate> GatesOf(const GameSession& session) {
  std::vector<Gate> gates;
  for (const PlanetRecord& planet : session.Planets()) {
    const Gate gate = GateOf(planet);
    if (gate.Range > 0) gates.push_back(gate);
  }
  return gates;
}

StoredPoint PlaceOf(const Gate& gate) {
  return {static_cast<double>(gate.X), static_cast<double>(gate.Y)};
}

// The distance within which a gate's links end; one more, as distances are rounded.
std::int64_t ReachIn(const Gate& gate, bool isComplete) {
  return (isComplete ? kDangerousRanges : 1) * gate.Range + 1;
}

// A place on the way from one coordinate to another, counted in thirds.
double Third(double from, double to, int thirds) {
  return RoundHalfEven(to < from ? from - (from - to) / 3 * thirds
                                 : (to - from) / 3 * thirds + from);
}

// Two arrowheads that point from the sending gate to the receiving one: their strokes leave the
// mark backwards, at 45 degrees on either side of the link.
std::array<Stroke, kStrokes> ArrowheadsOf(StoredPoint from, StoredPoint to, const MapView& view) {
  using std::numbers::pi;
  const bool isVertical = from.X == to.X;
  const bool isUpwards = to.Y < from.Y;
  const double theta =
      isVertical ? (isUpwards ? -pi / 2 : pi / 2) : std::atan((to.Y - from.Y) / (to.X - from.X));
  const double sign = to.X >= from.X ? 1 : -1;
  const auto lengthOf = [](double part) { return RoundHalfEven(kStrokeLength * part); };
  const double a = 3 * pi / 4 - theta;
  const double b = pi / 4 - theta;
  const StoredPoint first = {sign * lengthOf(std::cos(a)), -sign * lengthOf(std::sin(a))};
  const StoredPoint second = {-sign * lengthOf(std::cos(b)), sign * lengthOf(std::sin(b))};
  std::array<Stroke, kStrokes> strokes;
  auto* stroke = strokes.begin();
  for (int mark = 1; mark <= kArrowheads; ++mark) {
    const StoredPoint at = {Third(from.X, to.X, mark), Third(from.Y, to.Y, mark)};
    for (const StoredPoint& way : {first, second}) {
      *stroke++ = {view.ToSurface(at), view.ToSurface({at.X + way.X, at.Y + way.Y})};
    }
  }
  return strokes;
}

// Yellow just beyond the range, red at five times the range.
Colour DangerColour(std::int32_t range, std::int32_t distance) {
  const double excess = static_cast<double>(distance) - range;
  // Rounded down after the subtraction: 51 light years by a gate of 50 are 253, not 254.
  const double green = std::floor(kFullComponent - excess / (4.0 * range) * kFullComponent);
  return {255, static_cast<int>(green), 0};
}

Link LinkOf(const Gate& from, const Gate& to, const MapView& view, bool isComplete) {
  const std::int32_t distance = GateDistance(from, to);
  const StoredPoint start = PlaceOf(from);
  const StoredPoint end = PlaceOf(to);
  Link link = {.Line = {view.ToSurface(start), view.ToSurface(end)},
               .LineColour = kSafeColour,
               .Reach = ReachOf(from.Range, distance)};
  if (link.Reach == GateReach::Safe) link.Arrowheads = ArrowheadsOf(start, end, view);
  if (link.Reach == GateReach::Dangerous) {
    link.LineColour = DangerColour(from.Range, distance);
    if (!isComplete) link.Reach = GateReach::None;
  }
  return link;
}

void DrawLink(const Link& link, DrawingSurface& surface) {
  if (link.Reach == GateReach::None) return;
  if (link.Reach == GateReach::Safe) {
    for (const Stroke& stroke : link.Arrowheads) {
      surface.Line(stroke.From, stroke.To, kArrowheadColour);
    }
  }
  surface.Line(link.Line.From, link.Line.To, link.LineColour);
}

// The same on a surface that is drawn from the top down, which has the link back already.
// @param isLineHidden below that of the link back
// @return whether this link's line hides that of the link back, which comes later
bool DrawLinkTopDown(const Link& link, DrawingSurface& surface, bool isLineHidden) {
  if (link.Reach == GateReach::None) return false;
  const bool hidesReverse =
      !isLineHidden && surface.LineHidesItsReverse(link.Line.From, link.Line.To, link.LineColour);
  if (link.Reach == GateReach::Safe) {
    std::for_each(link.Arrowheads.rbegin(), link.Arrowheads.rend(), [&](const Stroke& stroke) {
      surface.Line(stroke.From, stroke.To, kArrowheadColour);
    });
  }
  return hidesReverse;
}

// Which links have a line that is hidden below the link back, by the numbers of their gates.
class HiddenLines {
 public:
  explicit HiddenLines(std::size_t gates)
      : gates_(gates <= kMostGates ? gates : 0), hidden_(gates_ * gates_) {}

  bool Has(std::size_t from, std::size_t to) const {
    return from < gates_ && hidden_[from * gates_ + to];
  }
  void Add(std::size_t from, std::size_t to) {
    if (from < gates_) hidden_[from * gates_ + to] = true;
  }

 private:
  static constexpr std::size_t kMostGates = 16384;  // 32 MB; more are drawn without

  std::size_t gates_;
  std::vector<bool> hidden_;
};

void DrawTopDown(std::span<const Gate> gates, const MapView& view, DrawingSurface& surface,
                 bool isComplete) {
  const GateMap map(gates);
  HiddenLines hidden(gates.size());
  for (std::size_t from = gates.size(); from-- > 0 && !surface.IsStopped();) {
    const std::vector<std::size_t> near = map.Near(gates[from], ReachIn(gates[from], isComplete));
    for (auto to = near.rbegin(); to != near.rend(); ++to) {
      if (from == *to) continue;
      const Link link = LinkOf(gates[from], gates[*to], view, isComplete);
      if (DrawLinkTopDown(link, surface, hidden.Has(from, *to))) hidden.Add(*to, from);
    }
  }
}

// The links of one planet alone, in the order in which they come among all.
void DrawLinksOf(StoredPoint planet, std::span<const Gate> gates, const MapView& view,
                 DrawingSurface& surface, bool isComplete) {
  const auto isThere = [&](const Gate& gate) { return PlaceOf(gate) == planet; };
  for (const Gate& from : gates) {
    for (const Gate& to : gates) {
      if (&from == &to || (!isThere(from) && !isThere(to))) continue;
      DrawLink(LinkOf(from, to, view, isComplete), surface);
    }
  }
}

}  // namespace

void DrawStargates(const GameSession& session, const MapView& view, DrawingSurface& surface,
                   bool isComplete, std::optional<StoredPoint> only) {
  surface.SetPen({.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Width = 1});
  const std::vector<Gate> gates = GatesOf(session);
  if (only) return DrawLinksOf(*only, gates, view, surface, isComplete);
  if (surface.BeginTopDown(gates.size() * gates.size())) {
    DrawTopDown(gates, view, surface, isComplete);
    surface.EndTopDown();
    return;
  }
  const GateMap map(gates);
  for (std::size_t from = 0; from < gates.size() && !surface.IsStopped(); ++from) {
    for (const std::size_t to : map.Near(gates[from], ReachIn(gates[from], isComplete))) {
      if (from != to) DrawLink(LinkOf(gates[from], gates[to], view, isComplete), surface);
    }
  }
}

std::vector<KeyLine> StargatesKey(const KeyAsked& asked) {
  constexpr double kReach = 200;
  // A link of 40 light years, which is as long as its sample on the map of a small universe.
  constexpr int kDistance = 40;
  const bool isComplete = asked.Switches.IsOn(OverlayKind::CompleteStargateNetwork);
  const auto line = [&](const char* words, int range) {
    MapView view;
    view.ShowWindow(0, 0, 1000);
    const Link link = LinkOf({0, 0, range}, {kDistance, 0, range}, view, /*isComplete=*/true);
    const auto draw = [link](DrawingSurface& surface, SurfacePoint at) {
      Link moved = link;
      const auto move = [&](Stroke& stroke) {
        for (SurfacePoint* end : {&stroke.From, &stroke.To}) {
          *end = {end->X + at.X - kReach, end->Y + at.Y};
        }
      };
      std::ranges::for_each(moved.Arrowheads, move);
      move(moved.Line);
      surface.SetPen({.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Width = 1});
      DrawLink(moved, surface);
    };
    return KeyLine{words, draw, kReach};
  };
  std::vector<KeyLine> lines = {line("green: safe, the way the arrows point", kDistance)};
  if (isComplete) {
    lines.push_back(line("yellow: just beyond the gate's range", kDistance - 1));
    lines.push_back(line("red: five times the range, great losses", kDistance / 5));
  }
  return lines;
}

}  // namespace quorvane
