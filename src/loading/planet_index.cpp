#include "loading/planet_index.h"

#include "model/text.h"

namespace quorvane {

PlanetIndex::PlanetIndex(const GameSession& session) {
  numbers_.reserve(static_cast<std::size_t>(session.PlanetCount));
  for (int planet = 1; planet <= session.PlanetCount; ++planet) {
    Add(session.Planet(planet).Name(), planet);
  }
}

PlanetIndex::PlanetIndex(const std::vector<std::string>& names) {
  numbers_.reserve(names.size());
  int planet = 0;
  for (const std::string& name : names) Add(name, ++planet);
}

void PlanetIndex::Add(std::string_view name, int number) {
  const auto [first, isNew] = numbers_.try_emplace(Trimmed(name), number);
  if (!isNew) namesakes_.push_back({.Number = number, .First = first->second});
}

int PlanetIndex::Find(std::string_view name) const {
  const auto found = numbers_.find(Trimmed(name));
  return found != numbers_.end() ? found->second : 0;
}

}  // namespace quorvane
