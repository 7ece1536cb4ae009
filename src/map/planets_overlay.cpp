#include <vector>

#include "map/overlays.h"
#include "map/palette.h"
#include "map/planets_in_view.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

// Radii and distances in surface units at full view.
constexpr double kPlanetRim = 20;
constexpr double kPlanetDot = 10;
constexpr double kOwnedRim = 40;
constexpr double kStarbaseRim = 80;
constexpr double kStarbaseRing = 70;
constexpr double kOwnedDisc = 30;
constexpr double kNameBelow = 50;

constexpr int kSmallestNameFont = 6;  // points

Pen MarkerPen(const MapView& view) {
  return {
      .Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = view.DotSize()};
}

// A planet in view whose owner has a colour.
struct OwnedPlanet {
  const PlanetRecord& Planet;
  SurfacePoint At;
  Colour OwnersColour;
};

std::vector<OwnedPlanet> OwnedPlanetsInView(const GameSession& session, const MapView& view) {
  std::vector<OwnedPlanet> owned;
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const Colour* colour = session.ColourOf(planet.OwnerIndex());
    if (colour != nullptr) owned.push_back({planet, at, *colour});
  }
  return owned;
}

}  // namespace

void DrawPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  surface.SetPen(MarkerPen(view));
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    surface.SetFillColour(kBlack);
    surface.Circle(at, kPlanetRim * view.DotSize(), kBlack);
    surface.SetFillColour(kWhite);
    surface.Circle(at, kPlanetDot * view.DotSize(), kWhite);
  }
}

void DrawOwnedPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  const std::vector<OwnedPlanet> owned = OwnedPlanetsInView(session, view);
  const Pen filled = MarkerPen(view);
  Pen hollow = filled;
  hollow.Filled = false;

  surface.SetPen(filled);
  surface.SetFillColour(kBlack);
  for (const OwnedPlanet& each : owned) {
    const double radius = each.Planet.HasStarbase() ? kStarbaseRim : kOwnedRim;
    surface.Circle(each.At, radius * view.DotSize(), kBlack);
  }
  // The coloured discs come in a pass of their own, so that no neighbour's black rim covers one.
  for (const OwnedPlanet& each : owned) {
    surface.SetPen(filled);
    surface.SetFillColour(each.OwnersColour);
    surface.Circle(each.At, kOwnedDisc * view.DotSize(), kBlack);
    if (!each.Planet.HasStarbase()) continue;
    surface.SetPen(hollow);
    surface.Circle(each.At, kStarbaseRing * view.DotSize(), kYellow);
  }
}

void DrawPlanetNames(const GameSession& session, const MapView& view, DrawingSurface& surface,
                     bool coloured) {
  const int dotSize = view.DotSize();
  surface.SetFontSize(kSmallestNameFont + ToWhole16(dotSize / 2.0));
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const Colour* ownColour = coloured ? session.ColourOf(planet.OwnerIndex()) : nullptr;
    surface.SetForeColour(ownColour != nullptr ? *ownColour : kWhite);
    surface.Print({at.X - surface.TextWidth(planet.Name()) / 2, at.Y + kNameBelow * dotSize},
                  planet.Name());
  }
}

}  // namespace quorvane
