#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "map/discs.h"
#include "map/map_key.h"
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
  const char* Words;
  int Example;
};
constexpr HabClass kHabClasses[] = {
    {-kNearZero - 1, kRed, "red: hostile, the larger the worse", -20},
    {-1, kMagenta, "magenta: habitable after terraforming", -5},
    {kNearZero, kYellow, "yellow: barely habitable, up to 10\u00a0%", 5},
    {std::numeric_limits<int>::max(), kGreen, "green: habitable, the larger the better", 50}};

// The classes of habitability after terraforming.
struct TerraClass {
  Colour ClassColour;
  int RadiusHundredths;  // for each percent
  const char* Words;
  double Example;
};
constexpr TerraClass kHostile = {kRed, 333, "red: stays hostile, the larger the worse", -20};
constexpr TerraClass kHabitable = {kGreen, 150, "green: habitable then, the larger the better", 50};

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

void DrawHab(DrawingSurface& surface, SurfacePoint at, int value, bool isReported) {
  DrawDisc(surface, at, HabRadius(value, isReported), HabColour(value));
}

double TerraRadius(const TerraClass& terra, double value) {
  return RoundHalfEven(TimesHundredths(std::fabs(value), terra.RadiusHundredths));
}

void DrawTerraformed(DrawingSurface& surface, SurfacePoint at, const TerraClass& terra,
                     double value) {
  DrawDisc(surface, at, TerraRadius(terra, value), terra.ClassColour);
}

}  // namespace

void DrawCurrentHabValues(const GameSession& session, const MapView& view,
                          DrawingSurface& surface) {
  surface.SetPen(kMergedDiscPen);
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const FieldValue& reported = planet[PlanetField::HabValue];
    if (FieldText(reported).empty()) continue;
    const int value = ToWhole16(reported.Number());
    DrawHab(surface, at, value, planet.IsExplored());
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
      DrawHab(surface, at, value, true);
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
    if (value(each) < 0) DrawTerraformed(surface, each.At, kHostile, value(each));
  }
  for (const PlanetInView& each : planets) {
    if (value(each) > 0) DrawTerraformed(surface, each.At, kHabitable, value(each));
  }
}

std::vector<KeyLine> CurrentHabKey(const KeyAsked&) {
  std::vector<KeyLine> lines;
  for (const HabClass& each : kHabClasses) {
    const auto draw = [&each](DrawingSurface& surface, SurfacePoint at) {
      surface.SetPen(kMergedDiscPen);
      DrawHab(surface, at, each.Example, true);
    };
    lines.push_back({each.Words, draw, HabRadius(each.Example, true)});
  }
  return lines;
}

std::vector<KeyLine> EstimatedHabKey(const KeyAsked& asked) {
  std::vector<KeyLine> lines;
  if (asked.Session.FindPlayerByName(asked.Switches.RaceName) > 0) lines = CurrentHabKey(asked);
  lines.push_back(UnexploredKeyLine());
  return lines;
}

std::vector<KeyLine> TerraformedKey(const KeyAsked&) {
  std::vector<KeyLine> lines = {UnexploredKeyLine()};
  lines[0].Words = "dull: worth nothing, or not known";
  for (const TerraClass* each : {&kHostile, &kHabitable}) {
    const auto draw = [each](DrawingSurface& surface, SurfacePoint at) {
      surface.SetPen(kDiscPen);
      DrawTerraformed(surface, at, *each, each->Example);
    };
    lines.push_back({each->Words, draw, TerraRadius(*each, each->Example)});
  }
  return lines;
}

}  // namespace quorvane
