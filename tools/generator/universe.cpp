#include "generator/universe.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace quorvane::generator {
namespace {

constexpr int kEdge = 10;  // light years that stay free along every side of the universe
constexpr int kOrigin = 1000;

bool IsFree(const std::vector<Planet>& planets, const Planet& candidate, int spacing) {
  return std::ranges::none_of(planets, [&](const Planet& planet) {
    const int dx = planet.X - candidate.X;
    const int dy = planet.Y - candidate.Y;
    return dx * dx + dy * dy <= spacing * spacing;
  });
}

}  // namespace

const Tenure* Planet::LatestChange(int year) const {
  const Tenure* latest = nullptr;
  for (const Tenure& tenure : History) {
    if (tenure.Year <= year) latest = &tenure;
  }
  return latest;
}

const Tenure* Planet::TenureIn(int year) const {
  const Tenure* latest = LatestChange(year);
  return latest != nullptr && latest->Race >= 0 ? latest : nullptr;
}

int Planet::OwnerIn(int year) const {
  const Tenure* tenure = TenureIn(year);
  return tenure != nullptr ? tenure->Race : -1;
}

int WholeRoot(long long value) { return static_cast<int>(std::sqrt(static_cast<double>(value))); }

int DistanceBetween(const Planet& first, const Planet& second) {
  const int dx = first.X - second.X;
  const int dy = first.Y - second.Y;
  return WholeRoot(static_cast<long long>(dx) * dx + static_cast<long long>(dy) * dy);
}

std::vector<Planet> ScatterPlanets(int side, int count, Random& random) {
  constexpr int kPatience = 30;  // misses in a row before planets may stand closer
  std::vector<Planet> planets;
  int spacing = WholeRoot(static_cast<long long>(side) * side / count) / 2;
  for (int misses = 0; planets.size() < static_cast<std::size_t>(count);) {
    Planet planet;
    planet.X = kOrigin + random.Between(kEdge, side - kEdge);
    planet.Y = kOrigin + random.Between(kEdge, side - kEdge);
    if (IsFree(planets, planet, spacing)) {
      planets.push_back(planet);
      misses = 0;
    } else if (++misses == kPatience) {
      spacing = std::max(spacing - 1, 0);
      misses = 0;
    }
  }
  std::ranges::sort(planets, {}, [](const Planet& planet) { return std::tie(planet.X, planet.Y); });
  return planets;
}

std::vector<Planet> PlanetsOfMap(std::span<const MapPlanet> map) {
  std::vector<Planet> planets(map.size());
  for (std::size_t i = 0; i < map.size(); ++i) {
    planets[i].X = map[i].X;
    planets[i].Y = map[i].Y;
    planets[i].Name = map[i].Name;
  }
  return planets;
}

void FurnishPlanets(std::vector<Planet>& planets, Random& random) {
  for (Planet& planet : planets) {
    for (int& position : planet.Original) position = random.Between(1, 99);
    // The mean of two throws: middling concentrations are common, poor and rich ones are rare.
    for (int& concentration : planet.Concentrations) {
      const int first = random.Between(1, 120);
      concentration = (first + random.Between(1, 90)) / 2;
    }
    planet.IsBackwater = random.Chance(7);
    planet.StarbaseRoll = random.Between(0, 99);
    planet.GateRoll = random.Between(0, 99);
    planet.GrowthRoll = random.Between(0, 99);
    planet.StockRoll = random.Between(0, 99);
  }
}

std::string MapText(std::span<const Planet> planets) {
  std::string text = "#\tX\tY\tName\r\n";
  int number = 0;
  for (const Planet& planet : planets) {
    text += std::to_string(++number) + '\t' + std::to_string(planet.X) + '\t' +
            std::to_string(planet.Y) + '\t' + planet.Name + "\r\n";
  }
  return text;
}

}  // namespace quorvane::generator
