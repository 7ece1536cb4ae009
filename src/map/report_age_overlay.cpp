#include "map/report_age_overlay.h"

#include "map/discs.h"
#include "map/planets_in_view.h"

namespace quorvane {
namespace {

constexpr double kRadius = 60;
constexpr double kShadesPerYear = 10;  // of red
constexpr int kFullRed = 255;

}  // namespace

void DrawReportAge(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  surface.SetPen({.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = 1});
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const double years = planet[PlanetField::ReportAge].Number();
    if (!(years > 0) && planet.AgeText() != kCurrentAge) continue;
    const int red = RoundedColour(years * kShadesPerYear, 0, 0).Red;
    DrawDisc(surface, at, kRadius, {red, kFullRed - red, 0});
  }
}

}  // namespace quorvane
