#include "screens/planet_search.h"

namespace quorvane {

std::vector<std::string> PlanetEntries(const GameSession& session) {
  std::vector<std::string> entries;
  for (const PlanetRecord& planet : session.Planets()) {
    const std::string owner = planet.Owner().empty() ? "" : " (" + planet.Owner() + ")";
    entries.push_back(planet.Name() + owner);
  }
  return entries;
}

int FindPlanetNamed(const GameSession& session, std::string_view name) {
  for (int number = 1; number <= session.PlanetCount; ++number) {
    if (session.Planet(number).Name() == name) return number;
  }
  return 0;
}

}  // namespace quorvane
