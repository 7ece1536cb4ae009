#include "rules/distances.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "model/field_value.h"
#include "rules/stargates.h"

namespace quorvane {
namespace {

template <typename IsWanted>
std::vector<int> Nearest(const GameSession& session, int planet, std::size_t most,
                         const IsWanted& isWanted) {
  std::vector<std::pair<double, int>> found;
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& other = session.Planet(number);
    if (number == planet || !isWanted(other)) continue;
    found.emplace_back(LightYearsBetween(session.Planet(planet), other), number);
  }
  const auto end = found.begin() + static_cast<std::ptrdiff_t>(std::min(most, found.size()));
  std::partial_sort(found.begin(), end, found.end());
  std::vector<int> numbers;
  std::transform(found.begin(), end, std::back_inserter(numbers),
                 [](const auto& each) { return each.second; });
  return numbers;
}

}  // namespace

double LightYearsBetween(double x, double y, double otherX, double otherY) {
  // The root of a sum of squares is exact wherever the distance is a whole number: 9 light years
  // must not become a hair more, which would be a year more.
  return std::sqrt((x - otherX) * (x - otherX) + (y - otherY) * (y - otherY));
}

double LightYearsBetween(const PlanetRecord& planet, const PlanetRecord& other) {
  return LightYearsBetween(planet.X(), planet.Y(), other.X(), other.Y());
}

int YearsAtWarp(double lightYears, int warp) {
  return static_cast<int>(std::ceil(lightYears / (warp * warp)));
}

std::string GateWayText(const PlanetRecord& from, const PlanetRecord& to) {
  const Gate sender = GateOf(from);
  const Gate receiver = GateOf(to);
  if (sender.Range <= 0 || receiver.Range <= 0) return "no";
  const int distance = GateDistance(sender, receiver);
  switch (ReachOf(sender.Range, distance)) {
    case GateReach::Safe:
      return "safe";
    case GateReach::None:
      return "no";
    case GateReach::Dangerous:
      break;
  }
  return "damage, " + FixedText(static_cast<double>(distance) / sender.Range, 1) + " x range";
}

std::vector<int> NearestOwnPlanets(const GameSession& session, int planet, std::size_t most) {
  return Nearest(session, planet, most,
                 [&](const PlanetRecord& other) { return other.Owner() == session.MyRaceName; });
}

std::vector<int> NearestStargates(const GameSession& session, int planet, std::size_t most) {
  return Nearest(session, planet, most,
                 [](const PlanetRecord& other) { return GateOf(other).Range > 0; });
}

}  // namespace quorvane
