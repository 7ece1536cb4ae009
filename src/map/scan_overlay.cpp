#include "map/scan_overlay.h"

#include <vector>

#include "map/discs.h"
#include "map/palette.h"
#include "map/planets_in_view.h"

namespace quorvane {
namespace {

constexpr Colour kScanColour = {96, 0, 0};
constexpr Colour kPenScanColour = {96, 96, 0};
constexpr int kCurrentPointWidth = 4;

void DrawRanges(const std::vector<PlanetInView>& planets, const MapView& view,
                DrawingSurface& surface, PlanetField range, Colour colour) {
  for (const auto& [planet, at] : planets) {
    const double lightYears = planet[range].Number();
    if (lightYears > 0) DrawDisc(surface, at, lightYears * view.MapScale, colour);
  }
}

}  // namespace

void DrawScannedPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  Pen pen = {.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = 1};
  surface.SetPen(pen);
  const std::vector<PlanetInView> planets = PlanetsInView(session, view);
  if (session.ReportStyle == kNewReportStyle) {
    // Penetrating ranges come second so that they stay visible where the two overlap.
    DrawRanges(planets, view, surface, PlanetField::ScanRange, kScanColour);
    DrawRanges(planets, view, surface, PlanetField::PenScanRange, kPenScanColour);
  }
  pen.Width = kCurrentPointWidth;
  surface.SetPen(pen);
  for (const auto& [planet, at] : planets) {
    if (planet.AgeText() == kCurrentAge) surface.Point(at, kYellow);
  }
}

}  // namespace quorvane
