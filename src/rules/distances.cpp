#include "rules/distances.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <limits>
#include <tuple>

namespace quorvane {
namespace {

bool HasStargate(const PlanetRecord& planet) { return GateOf(planet).Range > 0; }

std::vector<NearPlanet> NearestPlanets(const GameSession& session, int planet,
                                       const std::function<bool(const PlanetRecord&)>& isWanted) {
  if (planet < 1 || planet > session.PlanetCount) return {};
  std::vector<NearPlanet> near;
  const PlanetRecord& from = session.Planet(planet);
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& to = session.Planet(number);
    if (number != planet && isWanted(to)) near.push_back({number, LightYearsBetween(from, to)});
  }
  const std::size_t count = std::min(near.size(), kNearestPlanets);
  std::partial_sort(near.begin(), near.begin() + static_cast<std::ptrdiff_t>(count), near.end(),
                    [](const NearPlanet& left, const NearPlanet& right) {
                      return std::tie(left.LightYears, left.Number) <
                             std::tie(right.LightYears, right.Number);
                    });
  near.resize(count);
  return near;
}

std::vector<const PlanetRecord*> OwnPlanetsByX(const GameSession& session) {
  std::vector<const PlanetRecord*> own;
  if (session.MyRaceName.empty()) return own;
  for (const PlanetRecord& planet : session.Planets()) {
    if (planet.Owner() == session.MyRaceName) own.push_back(&planet);
  }
  std::ranges::stable_sort(own, {}, &PlanetRecord::X);
  return own;
}

}  // namespace

double LightYearsBetween(double fromX, double fromY, double toX, double toY) {
  // Exact for whole light years: a way of 81 is not a little more, which would take a year longer.
  return std::sqrt((toX - fromX) * (toX - fromX) + (toY - fromY) * (toY - fromY));
}

double LightYearsBetween(const PlanetRecord& from, const PlanetRecord& to) {
  return LightYearsBetween(from.X(), from.Y(), to.X(), to.Y());
}

int YearsAtWarp(double lightYears, int warp) {
  return static_cast<int>(std::ceil(lightYears / (warp * warp)));
}

GateWay GateWayBetween(const PlanetRecord& from, const PlanetRecord& to) {
  if (!HasStargate(from) || !HasStargate(to)) return {};
  const Gate sender = GateOf(from);
  const int distance = GateDistance(sender, GateOf(to));
  const GateReach reach = ReachOf(sender.Range, distance);
  if (reach == GateReach::None) return {};
  return {reach, static_cast<double>(distance) / sender.Range};
}

std::vector<NearPlanet> NearestOwnPlanets(const GameSession& session, int planet) {
  // Without a race of one's own the planets that nobody owns would bear its name.
  if (session.MyRaceName.empty()) return {};
  return NearestPlanets(session, planet, [&](const PlanetRecord& other) {
    return other.Owner() == session.MyRaceName;
  });
}

std::vector<NearPlanet> NearestStargates(const GameSession& session, int planet) {
  return NearestPlanets(session, planet, HasStargate);
}

// From every planet outwards, to the left and to the right, until whatever comes next is farther
// away by its X alone.
std::vector<double> DistancesToOwnPlanets(const GameSession& session) {
  const std::vector<const PlanetRecord*> own = OwnPlanetsByX(session);
  if (own.empty()) return {};
  std::vector<double> distances(session.PlanetTable.size());
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& from = session.Planet(number);
    double nearest = std::numeric_limits<double>::infinity();
    const auto right = std::ranges::lower_bound(own, from.X(), {}, &PlanetRecord::X);
    for (auto to = right; to != own.end() && (*to)->X() - from.X() < nearest; ++to) {
      nearest = std::min(nearest, LightYearsBetween(from, **to));
    }
    for (auto to = right; to != own.begin() && from.X() - (*std::prev(to))->X() < nearest;) {
      nearest = std::min(nearest, LightYearsBetween(from, **--to));
    }
    distances[static_cast<std::size_t>(number)] = nearest;
  }
  return distances;
}

}  // namespace quorvane
