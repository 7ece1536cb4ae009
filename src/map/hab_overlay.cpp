#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "map/discs.h"
#include "map/overlays.h"
#include "map/palette.h"
#include "map/planets_in_view.h"
#include "model/rounding.h"
#include "rules/estimated_hab.h"

namespace quorvane {
namespace {

constexpr Pen kMergedDiscPen = {
    .Mode = DrawMode::Merge, .Style = DrawStyle::NoOutline, .Filled = true, .Width = 1};
constexpr double kSmallestRadius = 30;
constexpr int kNearZero = 10;  // percent; values up to here are sized on a scale of their own

// The classes of habitability, each up to its highest value.
struct HabClass {
  int Highest;
  Colour ClassColour;
};
constexpr HabClass kHabClasses[] = {{-kNearZero - 1, kRed},
                                    {-1, kMagenta},
                                    {kNearZero, kYellow},
                                    {std::numeric_limits<int>::max(), kGreen}};

Colour HabColour(int value) {
  return std::ranges::find_if(kHabClasses,
                              [&](const HabClass& each) { return value <= each.Highest; })
      ->ClassColour;
}

double HabRadius(int value, bool isReported) {
  double radius = value;
  if (isReported && value < -kNearZero) {
    radius = RoundHalfEven(TimesHundredths(value, 333));
  } else if (isReported && value <= kNearZero) {
    radius = std::abs(12 * value) + kSmallestRadius;
  } else if (isReported) {
    radius = RoundHalfEven(TimesHundredths(value, 150));
  }
  return std::max(std::fabs(radius), kSmallestRadius);
}

void DrawTerraformed(const PlanetInView& planet, DrawingSurface& surface, int hundredths,
                     Colour colour) {
  const double value = planet.Planet[PlanetField::TerraValue].Number();
  const double radius = RoundHalfEven(TimesHundredths(std::fabs(value), hundredths));
  DrawDisc(surface, planet.At, radius, colour);
}

}  // namespace

void DrawCurrentHabValues(const GameSession& session, const MapView& view,
                          DrawingSurface& surface) {
  surface.SetPen(kMergedDiscPen);
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const FieldValue& reported = planet[PlanetField::HabValue];
    if (FieldText(reported).empty()) continue;
    const int value = ToWhole16(reported.Number());
    DrawDisc(surface, at, HabRadius(value, planet.IsExplored()), HabColour(value));
  }
}

void DrawEstimatedHabValues(const GameSession& session, const MapView& view,
                            DrawingSurface& surface, std::string_view raceName) {
  surface.SetPen(kMergedDiscPen);
  const int race = session.FindPlayerByName(raceName);
  int value = 0;
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& planet = session.Planet(number);
    if (race > 0 && planet.IsEnvironmentKnown()) value = EstimatedHab(session, race, number);
    if (!view.Contains(planet.X(), planet.Y())) continue;
    const SurfacePoint at = PositionOf(planet, view);
    if (!planet.IsExplored()) {
      DrawUnexploredDisc(surface, at);
    } else if (race > 0) {
      DrawDisc(surface, at, HabRadius(value, true), HabColour(value));
    }
  }
}

void DrawValueAfterTerraforming(const GameSession& session, const MapView& view,
                                DrawingSurface& surface) {
  surface.SetPen(kDiscPen);
  const std::vector<PlanetInView> planets = PlanetsInView(session, view);
  const auto value = [](const PlanetInView& each) {
    return each.Planet[PlanetField::TerraValue].Number();
  };
  for (const PlanetInView& each : planets) {
    if (value(each) == 0) DrawUnexploredDisc(surface, each.At);
  }
  for (const PlanetInView& each : planets) {
    if (value(each) < 0) DrawTerraformed(each, surface, 333, kRed);
  }
  for (const PlanetInView& each : planets) {
    if (value(each) > 0) DrawTerraformed(each, surface, 150, kGreen);
  }
}

}  // namespace quorvane
