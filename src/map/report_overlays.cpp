#include <vector>

#include "map/discs.h"
#include "map/overlays.h"
#include "map/palette.h"
#include "map/planets_in_view.h"

namespace quorvane {
namespace {

constexpr Colour kScanColour = {96, 0, 0};
constexpr Colour kPenScanColour = {96, 96, 0};
constexpr int kCurrentPointWidth = 4;

constexpr double kAgeRadius = 60;
constexpr double kShadesPerYear = 10;  // of red
constexpr int kFullRed = 255;

void DrawRanges(const std::vector<PlanetInView>& planets, const MapView& view,
                DrawingSurface& surface, PlanetField range, Colour colour) {
  std::vector<DiscPlace> discs;
  for (const auto& [planet, at] : planets) {
    const double lightYears = planet[range].Number();
    if (lightYears > 0) discs.push_back({at, lightYears * view.MapScale});
  }
  surface.Discs(discs, colour);
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

void DrawReportAge(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  surface.SetPen({.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = 1});
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const double years = planet[PlanetField::ReportAge].Number();
    if (!(years > 0) && planet.AgeText() != kCurrentAge) continue;
    const int red = RoundedColour(years * kShadesPerYear, 0, 0).Red;
    DrawDisc(surface, at, kAgeRadius, {red, kFullRed - red, 0});
  }
}

}  // namespace quorvane
