#include <algorithm>
#include <functional>
#include <optional>
#include <tuple>
#include <vector>

#include "map/map_key.h"
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

void DrawPlanet(DrawingSurface& surface, SurfacePoint at, int dotSize) {
  surface.SetFillColour(kBlack);
  surface.Circle(at, kPlanetRim * dotSize, kBlack);
  surface.SetFillColour(kWhite);
  surface.Circle(at, kPlanetDot * dotSize, kWhite);
}

void DrawOwnedRim(DrawingSurface& surface, SurfacePoint at, bool hasStarbase, int dotSize) {
  surface.SetFillColour(kBlack);
  surface.Circle(at, (hasStarbase ? kStarbaseRim : kOwnedRim) * dotSize, kBlack);
}

void DrawOwnedDisc(DrawingSurface& surface, SurfacePoint at, bool hasStarbase, const MapView& view,
                   Colour colour) {
  Pen pen = MarkerPen(view);
  surface.SetPen(pen);
  surface.SetFillColour(colour);
  surface.Circle(at, kOwnedDisc * view.DotSize(), kBlack);
  if (!hasStarbase) return;
  pen.Filled = false;
  surface.SetPen(pen);
  surface.Circle(at, kStarbaseRing * view.DotSize(), kYellow);
}

int NameFont(const MapView& view) { return kSmallestNameFont + ToWhole16(view.DotSize() / 2.0); }

// A planet's name where it is printed.
struct PlacedName {
  const PlanetRecord& Planet;
  SurfacePoint TopLeft;
  double Width;
  double Height;

  bool Overlaps(const PlacedName& other) const {
    return TopLeft.X < other.TopLeft.X + other.Width && other.TopLeft.X < TopLeft.X + Width &&
           TopLeft.Y < other.TopLeft.Y + other.Height && other.TopLeft.Y < TopLeft.Y + Height;
  }
};

std::vector<PlacedName> NamesInView(const GameSession& session, const MapView& view,
                                    const DrawingSurface& surface) {
  std::vector<PlacedName> names;
  const double height = surface.TextHeight();
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const double width = surface.TextWidth(planet.Name());
    names.push_back(
        {planet, {at.X - width / 2, at.Y + kNameBelow * view.DotSize()}, width, height});
  }
  return names;
}

// Greater for a planet whose name matters more.
std::tuple<bool, bool, bool, double> WeightOf(const PlanetRecord& planet,
                                              const GameSession& session,
                                              const std::optional<StoredPoint>& selected) {
  return {selected == PlaceOf(planet), planet.Owner() == session.MyRaceName, planet.HasStarbase(),
          planet.Population()};
}

// The names that overlap none that matters more, in the order given. Of two that matter alike the
// first one is kept.
std::vector<PlacedName> NamesApart(const GameSession& session,
                                   const std::optional<StoredPoint>& selected,
                                   const std::vector<PlacedName>& names) {
  std::vector<const PlacedName*> byWeight;
  byWeight.reserve(names.size());
  for (const PlacedName& name : names) byWeight.push_back(&name);
  std::ranges::stable_sort(byWeight, std::ranges::greater(), [&](const PlacedName* name) {
    return WeightOf(name->Planet, session, selected);
  });
  std::vector<const PlacedName*> kept;
  for (const PlacedName* name : byWeight) {
    const auto overlaps = [&](const PlacedName* other) { return name->Overlaps(*other); };
    if (std::ranges::none_of(kept, overlaps)) kept.push_back(name);
  }
  std::ranges::sort(kept);  // all are parts of one vector
  std::vector<PlacedName> apart;
  apart.reserve(kept.size());
  for (const PlacedName* name : kept) apart.push_back(*name);
  return apart;
}

}  // namespace

void DrawPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  surface.SetPen(MarkerPen(view));
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    DrawPlanet(surface, at, view.DotSize());
  }
}

void DrawOwnedPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  const std::vector<OwnedPlanet> owned = OwnedPlanetsInView(session, view);
  surface.SetPen(MarkerPen(view));
  for (const OwnedPlanet& each : owned) {
    DrawOwnedRim(surface, each.At, each.Planet.HasStarbase(), view.DotSize());
  }
  // The coloured discs come in a pass of their own, so that no neighbour's black rim covers one.
  for (const OwnedPlanet& each : owned) {
    DrawOwnedDisc(surface, each.At, each.Planet.HasStarbase(), view, each.OwnersColour);
  }
}

void DrawPlanetNames(const GameSession& session, const MapView& view, DrawingSurface& surface,
                     const NameStyle& style) {
  surface.SetFontSize(NameFont(view));
  std::vector<PlacedName> names = NamesInView(session, view, surface);
  if (style.Fewer) names = NamesApart(session, style.Selected, names);
  // All outlines come first, so that no neighbour's outline covers a letter.
  for (const PlacedName& name : names) {
    if (style.Outlined) surface.PrintOutline(name.TopLeft, name.Planet.Name(), kBlack);
  }
  for (const PlacedName& name : names) {
    const Colour* owners = style.Coloured ? session.ColourOf(name.Planet.OwnerIndex()) : nullptr;
    surface.SetForeColour(owners != nullptr ? *owners : kWhite);
    surface.Print(name.TopLeft, name.Planet.Name());
  }
}

std::vector<KeyLine> PlanetsKey(const KeyAsked& asked) {
  const auto draw = [view = asked.View](DrawingSurface& surface, SurfacePoint at) {
    surface.SetPen(MarkerPen(view));
    DrawPlanet(surface, at, view.DotSize());
  };
  return {{"white: a planet", draw, kPlanetRim * asked.View.DotSize()}};
}

std::vector<KeyLine> OwnedPlanetsKey(const KeyAsked& asked) {
  std::vector<KeyLine> lines;
  for (const bool hasStarbase : {false, true}) {
    const auto draw = [hasStarbase, view = asked.View, colour = SampleRaceColour(asked.Session)](
                          DrawingSurface& surface, SurfacePoint at) {
      surface.SetPen(MarkerPen(view));
      DrawOwnedRim(surface, at, hasStarbase, view.DotSize());
      DrawOwnedDisc(surface, at, hasStarbase, view, colour);
    };
    lines.push_back({hasStarbase ? "with a yellow ring: a starbase orbits it"
                                 : "in its owner's colour: an owned planet",
                     draw, kStarbaseRim * asked.View.DotSize()});
  }
  return lines;
}

std::vector<KeyLine> NamesKey(const KeyAsked& asked) {
  const auto line = [&](const char* words, Colour colour) {
    const auto draw = [colour, font = NameFont(asked.View), options = asked.Options](
                          DrawingSurface& surface, SurfacePoint at) {
      constexpr const char* kName = "Abc";
      surface.SetFontSize(font);
      const SurfacePoint corner = {at.X - surface.TextWidth(kName) / 2,
                                   at.Y - surface.TextHeight() / 2};
      if (options.OutlineNames) surface.PrintOutline(corner, kName, kBlack);
      surface.SetForeColour(colour);
      surface.Print(corner, kName);
    };
    // Letters are as large on every map: half the sample's width is about 0.9 of the font's size.
    constexpr double kReachInTwips = 18;
    const double unitsPerTwip = 1.0 * kSurfaceUnits / std::max(asked.MapWidthInTwips, 1);
    return KeyLine{words, draw, kReachInTwips * NameFont(asked.View) * unitsPerTwip};
  };
  std::vector<KeyLine> lines;
  if (asked.Switches.IsOn(OverlayKind::NamesColoured)) {
    lines.push_back(
        line("in its owner's colour: an owned planet", SampleRaceColour(asked.Session)));
  }
  lines.push_back(line("white: a planet's name", kWhite));
  return lines;
}

}  // namespace quorvane
