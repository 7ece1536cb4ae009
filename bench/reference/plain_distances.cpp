#include "reference/plain_distances.h"

#include <algorithm>
#include <limits>

#include "rules/distances.h"

namespace quorvane::reference {

std::vector<double> PlainDistancesToOwnPlanets(const GameSession& session) {
  std::vector<double> distances(session.PlanetTable.size());
  bool hasOwn = false;
  for (int from = 1; from <= session.PlanetCount; ++from) {
    double nearest = std::numeric_limits<double>::infinity();
    for (const PlanetRecord& to : session.Planets()) {
      if (session.MyRaceName.empty() || to.Owner() != session.MyRaceName) continue;
      hasOwn = true;
      nearest = std::min(nearest, LightYearsBetween(session.Planet(from), to));
    }
    distances[static_cast<std::size_t>(from)] = nearest;
  }
  return hasOwn ? distances : std::vector<double>();
}

}  // namespace quorvane::reference
