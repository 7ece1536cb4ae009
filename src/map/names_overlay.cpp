#include "map/names_overlay.h"

#include "map/palette.h"
#include "map/planets_in_view.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr int kSmallestFont = 6;       // points
constexpr double kDistanceBelow = 50;  // surface units at full view

}  // namespace

void DrawPlanetNames(const GameSession& session, const MapView& view, DrawingSurface& surface,
                     bool coloured) {
  const int dotSize = view.DotSize();
  surface.SetFontSize(kSmallestFont + ToWhole16(dotSize / 2.0));
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const Colour* ownColour = coloured ? session.ColourOf(planet.OwnerIndex()) : nullptr;
    surface.SetForeColour(ownColour != nullptr ? *ownColour : kWhite);
    surface.Print({at.X - surface.TextWidth(planet.Name()) / 2, at.Y + kDistanceBelow * dotSize},
                  planet.Name());
  }
}

}  // namespace quorvane
