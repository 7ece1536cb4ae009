#include "generator/intelligence.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace quorvane::generator {
namespace {

constexpr int kSeenFromOrbit = 40;   // light years that patrols see around every planet
constexpr int kScoutingPerYear = 8;  // light years by which scouts reach further every year
constexpr int kFurthestScouting = 380;
constexpr int kSightedOnlyPercent = 20;

std::vector<int> DistancesFrom(const Universe& universe, int author, int year) {
  std::vector<int> distances(universe.Planets.size(), std::numeric_limits<int>::max());
  for (const Planet& own : universe.Planets) {
    if (own.OwnerIn(year) != author) continue;
    for (std::size_t i = 0; i < distances.size(); ++i) {
      distances[i] = std::min(distances[i], DistanceBetween(own, universe.Planets[i]));
    }
  }
  return distances;
}

// How old the news from so far beyond the scanners are; none when no scout has come back.
std::optional<int> AgeOfNews(int beyond, int year, Random& random) {
  const int lag = beyond / 18 + random.Between(1, 7);
  const int scouted = std::min(kFurthestScouting, (year - kFirstYear) * kScoutingPerYear);
  // Drawn in every case, so that one planet's fate does not depend on another's distance.
  const bool isVisited = random.Between(1, 100) * scouted > beyond * 100;
  if (!isVisited) return std::nullopt;
  return std::min(lag, year - kFirstYear);
}

}  // namespace

std::vector<Sighting> KnowledgeOf(const Universe& universe, int author, int year, Random& random) {
  const Scanner& scanner = universe.Races[static_cast<std::size_t>(author)].PlanetScanner;
  const int horizon = std::max(scanner.PenetratingRange, kSeenFromOrbit);
  const std::vector<int> distances = DistancesFrom(universe, author, year);
  std::vector<Sighting> known;
  for (std::size_t i = 0; i < universe.Planets.size(); ++i) {
    const Planet& planet = universe.Planets[i];
    const int beyond = std::max(0, std::min(distances[i], 1000000) - horizon);
    const std::optional<int> age = AgeOfNews(beyond, year, random);
    const bool isOnlySighted = random.Chance(kSightedOnlyPercent);
    Sighting sighting = {.Planet = i};
    if (planet.OwnerIn(year) == author) {
      sighting.Depth = Insight::Own;
    } else if (beyond > 0) {
      if (!age || (planet.IsBackwater && planet.History.empty())) continue;
      sighting.Age = *age;
      // Nobody overlooks the loss of an own planet.
      if (planet.OwnerIn(year - *age) == author) {
        sighting.Age = year - planet.LatestChange(year)->Year;
      }
      const bool isForeign = planet.OwnerIn(year - sighting.Age) >= 0;
      if (isForeign && isOnlySighted) sighting.Depth = Insight::Sighted;
    }
    known.push_back(sighting);
  }
  return known;
}

}  // namespace quorvane::generator
