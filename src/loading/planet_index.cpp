#include "loading/planet_index.h"

#include "model/text.h"

namespace quorvane {

PlanetIndex::PlanetIndex(const GameSession& session) {
  numbers_.reserve(static_cast<std::size_t>(session.PlanetCount));
  for (int planet = 1; planet <= session.PlanetCount; ++planet) {
    numbers_[Trimmed(session.Planet(planet).Name())].push_back(planet);
  }
}

const std::vector<int>& PlanetIndex::Find(std::string_view name) const {
  static const std::vector<int> kNone;
  const auto found = numbers_.find(Trimmed(name));
  return found != numbers_.end() ? found->second : kNone;
}

}  // namespace quorvane
