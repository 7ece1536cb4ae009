#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "formats/universe_map.h"
#include "generator/environment.h"
#include "generator/race.h"
#include "generator/random.h"

namespace quorvane::generator {

/// The year in which every game begins.
inline constexpr int kFirstYear = 2400;

/// Ironium, boranium and germanium, in this order.
inline constexpr std::size_t kMineralKinds = 3;
using Minerals = std::array<int, kMineralKinds>;

/// Who took a planet, and when; or when the last owner gave it up.
struct Tenure {
  int Year = kFirstYear;
  int Race = 0;  // index into the universe's races; -1: nobody, the planet is free again
};

/// What happened to a planet, and the rolls that decide its details in every year alike, so that
/// reports of different years tell one story.
struct Planet {
  int X = 0;  // game coordinates
  int Y = 0;
  std::string Name;
  Environment Original = {};
  Minerals Concentrations = {};
  std::vector<Tenure> History;  // oldest first; empty: nobody ever lived there
  bool IsHomeWorld = false;
  bool IsBackwater = false;  // no scout ever came by
  int StarbaseRoll = 0;      // 0 … 99 each
  int GateRoll = 0;
  int GrowthRoll = 0;
  int StockRoll = 0;

  /// The latest entry of the history up to a year, nullptr while there is none.
  const Tenure* LatestChange(int year) const;
  /// The tenure that held in a year, or nullptr while the planet was free.
  const Tenure* TenureIn(int year) const;
  /// Index of the race that held the planet in a year; -1: nobody.
  int OwnerIn(int year) const;
};

/// All that is true of a generated game; reports tell parts of it.
struct Universe {
  int Year = kFirstYear;
  std::vector<Race> Races;
  std::vector<Planet> Planets;  // in map order
};

/// Light years between two planets, rounded down.
int DistanceBetween(const Planet& first, const Planet& second);

/// The largest whole number whose square is not above the value.
int WholeRoot(long long value);

/// Scatters so many planets over a universe of this side, sorted as the game sorts its maps.
std::vector<Planet> ScatterPlanets(int side, int count, Random& random);

/// The planets of a map that the game exported.
std::vector<Planet> PlanetsOfMap(std::span<const MapPlanet> map);

/// Gives every planet its environment, minerals and rolls.
void FurnishPlanets(std::vector<Planet>& planets, Random& random);

/// The text of the universe map file.
std::string MapText(std::span<const Planet> planets);

}  // namespace quorvane::generator
