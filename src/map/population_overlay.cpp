#include <algorithm>
#include <cmath>
#include <vector>

#include "map/discs.h"
#include "map/map_key.h"
#include "map/overlays.h"
#include "map/planets_in_view.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr Pen kPopulationPen = {
    .Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = 1};
constexpr double kRadius = 50;
constexpr double kFullRed = 255;
// A million people over 205 shades of red, cut to four places: 200,000 people are 40 shades, where
// the whole quotient would make 41 of them.
constexpr double kPeoplePerShade = 4878.0488;
constexpr double kStarbaseShades = 50;
// What lives on a planet of 100 % when it is full.
constexpr double kLargestPopulation = 1'000'000;
// A planet of 0 … 5 % holds as much as one of 5 %.
constexpr double kLeastHab = 5;
constexpr double kOrbitalPopulation = 3'000'000;
constexpr double kFewMines = 10;

// The colour between green (0) and red (255).
Colour GreenToRed(double red) {
  red = std::min(red, kFullRed);
  return RoundedColour(red, kFullRed - red, 0);
}

Colour DifficultyColour(double people, bool hasStarbase) {
  return GreenToRed(std::floor(people / kPeoplePerShade) + (hasStarbase ? kStarbaseShades : 0));
}

// The share of its possible population that a planet has, in whole percent; below 0 where the
// habitability is.
double PercentFull(const PlanetRecord& planet) {
  const auto number = [&](PlanetField field) { return planet[field].Number(); };
  const double hab = number(PlanetField::HabValue);
  const bool isPoor = hab >= 0 && hab <= kLeastHab;
  const double possible = (isPoor ? kLeastHab : hab) / 100 * kLargestPopulation;
  double fullness = planet.Population() / possible;
  // Ironium without mines is mined from orbit, by a race that lives there.
  if (number(PlanetField::IronMR) > 0 && number(PlanetField::Mines) < kFewMines &&
      planet.Starbase() != kNoStarbase && hab > 0) {
    fullness = planet.Population() / kOrbitalPopulation;
  }
  // In these steps 290,000 of a million come out a hair below 29 %, and count as 28.
  return std::floor(fullness * 100);
}

Colour GrowthColour(const PlanetRecord& planet) {
  const double percent = PercentFull(planet);
  if (percent < 0) {
    const double hab = std::fabs(planet[PlanetField::HabValue].Number());
    // Rounded after the difference: -10 % is a red of 198, not of 199.
    return RoundedColour(kFullRed - TimesHundredths(hab, 565), 0, kFullRed);
  }
  return GreenToRed(RoundHalfEven(percent / 100 * kFullRed));
}

}  // namespace

void DrawDifficultyOfAttack(const GameSession& session, const MapView& view,
                            DrawingSurface& surface) {
  surface.SetPen(kPopulationPen);
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    if (!(planet.Population() > 0)) continue;
    DrawDisc(surface, at, kRadius, DifficultyColour(planet.Population(), planet.HasStarbase()));
  }
}

void DrawGrowth(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  surface.SetPen(kPopulationPen);
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const bool isProductive =
        planet.Population() > 0 && planet[PlanetField::Resources].Number() > 0;
    if (!isProductive || planet.Owner() != session.MyRaceName) continue;
    DrawDisc(surface, at, kRadius, GrowthColour(planet));
  }
}

namespace {

KeyLine PopulationKeyLine(const char* words, Colour colour) {
  const auto draw = [colour](DrawingSurface& surface, SurfacePoint at) {
    surface.SetPen(kPopulationPen);
    DrawDisc(surface, at, kRadius, colour);
  };
  return {words, draw, kRadius};
}

// The colour of a planet with such a habitability and so many people.
Colour GrowthColourOf(double hab, double people) {
  PlanetRecord planet;
  planet[PlanetField::HabValue] = hab;
  planet[PlanetField::Population] = people;
  return GrowthColour(planet);
}

}  // namespace

std::vector<KeyLine> DifficultyKey(const KeyAsked&) {
  return {PopulationKeyLine("green: hardly anybody lives there", DifficultyColour(1000, false)),
          PopulationKeyLine("olive: 600,000 people", DifficultyColour(600'000, false)),
          PopulationKeyLine("red: a million people and a starbase",
                            DifficultyColour(kLargestPopulation, true))};
}

std::vector<KeyLine> GrowthKey(const KeyAsked&) {
  return {PopulationKeyLine("green: nearly empty", GrowthColourOf(100, 0)),
          PopulationKeyLine("olive: half full", GrowthColourOf(100, kLargestPopulation / 2)),
          PopulationKeyLine("red: full", GrowthColourOf(100, kLargestPopulation)),
          PopulationKeyLine("purple: hostile", GrowthColourOf(-20, kLargestPopulation)),
          PopulationKeyLine("blue: as hostile as can be", GrowthColourOf(-45, kLargestPopulation))};
}

}  // namespace quorvane
