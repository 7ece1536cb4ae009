#include <vector>

#include "map/discs.h"
#include "map/map_key.h"
#include "map/overlays.h"
#include "map/palette.h"
#include "map/planets_in_view.h"

namespace quorvane {
namespace {

constexpr Pen kFilledPen = {
    .Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = 1};

// Penetrating ranges come second so that they stay visible where the two overlap.
struct ScanRange {
  PlanetField Range;
  Colour RangeColour;
  const char* Words;
};
constexpr ScanRange kScanRanges[] = {
    {PlanetField::ScanRange, {96, 0, 0}, "dark red: in range of a scanner"},
    {PlanetField::PenScanRange, {96, 96, 0}, "dark yellow: of a penetrating one, too"}};
constexpr int kCurrentPointWidth = 4;

constexpr double kAgeRadius = 60;
constexpr double kShadesPerYear = 10;  // of red
constexpr int kFullRed = 255;

Colour AgeColour(double years) {
  const int red = RoundedColour(years * kShadesPerYear, 0, 0).Red;
  return {red, kFullRed - red, 0};
}

void DrawCurrentPoint(DrawingSurface& surface, SurfacePoint at) {
  Pen pen = kFilledPen;
  pen.Width = kCurrentPointWidth;
  surface.SetPen(pen);
  surface.Point(at, kYellow);
}

void DrawRanges(const std::vector<PlanetInView>& planets, const MapView& view,
                DrawingSurface& surface, const ScanRange& range) {
  std::vector<DiscPlace> discs;
  for (const auto& [planet, at] : planets) {
    const double lightYears = planet[range.Range].Number();
    if (lightYears > 0) discs.push_back({at, lightYears * view.MapScale});
  }
  surface.Discs(discs, range.RangeColour);
}

}  // namespace

void DrawScannedPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  surface.SetPen(kFilledPen);
  const std::vector<PlanetInView> planets = PlanetsInView(session, view);
  if (session.ReportStyle == kNewReportStyle) {
    for (const ScanRange& range : kScanRanges) DrawRanges(planets, view, surface, range);
  }
  for (const auto& [planet, at] : planets) {
    if (planet.AgeText() == kCurrentAge) DrawCurrentPoint(surface, at);
  }
}

void DrawReportAge(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  surface.SetPen(kFilledPen);
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const double years = planet[PlanetField::ReportAge].Number();
    if (!(years > 0) && planet.AgeText() != kCurrentAge) continue;
    DrawDisc(surface, at, kAgeRadius, AgeColour(years));
  }
}

std::vector<KeyLine> ScannedPlanetsKey(const KeyAsked& asked) {
  constexpr double kSampleRange = 150;  // those on the map are as wide as the scanners reach
  std::vector<KeyLine> lines;
  for (const ScanRange& range : kScanRanges) {
    if (asked.Session.ReportStyle != kNewReportStyle) break;
    const auto draw = [&range](DrawingSurface& surface, SurfacePoint at) {
      surface.SetPen(kFilledPen);
      DrawDisc(surface, at, kSampleRange, range.RangeColour);
    };
    lines.push_back({range.Words, draw, kSampleRange});
  }
  lines.push_back({"yellow: a report of this year", DrawCurrentPoint, kSampleRange / 3});
  return lines;
}

std::vector<KeyLine> ReportAgeKey(const KeyAsked&) {
  struct Age {
    double Years;
    const char* Words;
  };
  constexpr Age kAges[] = {{0, "green: a report of this year"},
                           {13, "olive: of 13 years ago"},
                           {kFullRed / kShadesPerYear + 1, "red: of 26 years ago and older"}};
  std::vector<KeyLine> lines;
  for (const Age& age : kAges) {
    const auto draw = [years = age.Years](DrawingSurface& surface, SurfacePoint at) {
      surface.SetPen(kFilledPen);
      DrawDisc(surface, at, kAgeRadius, AgeColour(years));
    };
    lines.push_back({age.Words, draw, kAgeRadius});
  }
  return lines;
}

}  // namespace quorvane
